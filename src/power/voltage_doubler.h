#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::power {

/// Two rectifier diodes and two capacitors that give twice the peak voltage of a winding.
enum class VoltageDoubler : std::uint8_t {
  full_wave,  ///< symmetric: each half wave charges a capacitor of its own, the load is across both
  half_wave,  ///< with a common ground: the first capacitor lifts the winding's other half wave
};

/// The parts of a voltage doubler and what it gives.
struct DoublerDesign {
  Real no_load_v;           ///< direct voltage without a load
  Real mean_v;              ///< direct voltage with the load
  Real capacitance_f;       ///< of each of the two capacitors
  Real ripple_v;            ///< peak to peak
  Real ripple_hz;           ///< its frequency
  Real first_capacitor_v;   ///< that C1 must stand, 20 % more than it gets without a load
  Real second_capacitor_v;  ///< that C2 must stand, likewise
  Real diode_reverse_v;     ///< that each diode must stand, likewise
};

/// Peak voltage of a winding behind a silicon diode; not above 0 where the winding gives too
/// little.
Real rectified_peak_v(Real winding_rms_v);

/// All arguments are above zero and so is the rectified peak. The ripple, peak to peak, is a
/// fraction of the voltage without a load, small beside 1. Source: the charge balance of a period,
/// C = I / (f dU); of the half-wave doubler, the Cockcroft-Walton formulas for one stage. The time
/// that charging takes is neglected, which is on the safe side.
DoublerDesign voltage_doubler(VoltageDoubler circuit, Real winding_rms_v, Real load_a,
                              Real ripple_fraction, Real mains_hz);

}  // namespace eterlab::power
