#pragma once

#include "common/arithmetic.h"

namespace eterlab::power {

/// What a load takes out of the mains, and how it becomes ohmic to them.
struct AcPower {
  Real apparent_va;             ///< S = U I
  Real active_w;                ///< P = S cos phi
  Real reactive_var;            ///< Q = S sin phi
  Real phase_degrees;           ///< phi, between voltage and current
  Real impedance_ohm;           ///< U / I
  Real correcting_capacitor_f;  ///< across an inductive load, C = Q / (2 pi f U^2)
};

/// Voltage, current and frequency above zero; the power factor, cos phi, above 0 and at most 1.
/// Source: IEC 60050-131.
AcPower ac_power(Real rms_v, Real rms_a, Real power_factor, Real frequency_hz);

}  // namespace eterlab::power
