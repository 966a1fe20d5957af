#include "signals/received_signal.h"

#include "common/physics.h"
#include "signals/decibel_watt.h"

namespace eterlab::signals {

DipoleSignal dipole_signal(Real field_v_per_m, Real frequency_hz) {
  const Real effective_length_m = speed_of_light_m_per_s / frequency_hz / pi;
  const Real open_circuit_v = field_v_per_m * effective_length_m;
  const Real matched_load_v = open_circuit_v / 2;
  return {.effective_length_m = effective_length_m,
          .open_circuit_v = open_circuit_v,
          .matched_load_v = matched_load_v,
          .available_power_w = matched_load_v * matched_load_v / half_wave_dipole_resistance_ohm};
}

AntennaSignal antenna_signal(Real field_v_per_m, Real frequency_hz, Real gain_dbi,
                             Real receiver_ohm) {
  const Real wavelength_m = speed_of_light_m_per_s / frequency_hz;
  const Real area_m2 = power_w(gain_dbi) * wavelength_m * wavelength_m / (4 * pi);
  const Real density_w_per_m2 = field_v_per_m * field_v_per_m / free_space_impedance_ohm;
  const Real received_w = density_w_per_m2 * area_m2;
  const Real receiver_v = rms_voltage_v(received_w, receiver_ohm);
  return {.effective_area_m2 = area_m2,
          .power_density_w_per_m2 = density_w_per_m2,
          .available_power_w = received_w,
          .receiver_v = receiver_v,
          .antenna_factor_db_per_m = 20 * log10(field_v_per_m / receiver_v)};
}

}  // namespace eterlab::signals
