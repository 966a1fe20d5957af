#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::capacitors {

/// How a reservoir capacitor is charged: twice in a period of the mains, or once.
enum class Rectifier : std::uint8_t { bridge, single_diode };

/// What comes out of a rectifier without a capacitor: half waves of a sine, or every other one.
struct RectifiedMains {
  Rectifier rectifier;
  Real peak_v;        ///< behind the diodes
  Real frequency_hz;  ///< of the mains
};

/// The capacitor behind a rectifier that feeds a constant current.
struct ReservoirCapacitor {
  Real capacitance_f;           ///< the least that keeps the ripple
  Real standard_capacitance_f;  ///< the first of E6 that is not below it
  Real ripple_v;                ///< from peak to peak
  Real effective_ripple_v;      ///< of a sawtooth of that height
  Real mean_v;                  ///< with the load
  Real period_s;                ///< from one charge to the next
  Real discharge_s;             ///< how much of it the capacitor alone feeds the load
};

/// The rectified voltage of a winding: 0.7 V are lost in each diode that conducts. The peak is not
/// above zero where the voltage does not open the diodes.
RectifiedMains rectified_mains(Rectifier rectifier, Real rms_v, Real frequency_hz);

/// Wants a peak above zero and a ripple, as a part of it, of 50 % or less. Source: charge balance,
/// C = I t1 / dU, where the capacitor alone feeds the load from a peak until the next half wave has
/// risen to what is left of its voltage, t1 = T - arccos(1 - r) / (2 pi f).
ReservoirCapacitor reservoir_capacitor(const RectifiedMains& mains, Real load_a,
                                       Real ripple_percent);

/// Without the capacitor, so long after a peak.
Real rectified_voltage_v(const RectifiedMains& mains, Real time_s);
/// With it, so long after a peak: it falls in a straight line, but never below the rectified sine.
Real reservoir_voltage_v(const RectifiedMains& mains, const ReservoirCapacitor& reservoir,
                         Real time_s);

}  // namespace eterlab::capacitors
