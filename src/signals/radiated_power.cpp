#include "signals/radiated_power.h"

#include <numbers>

#include "signals/decibel_watt.h"

namespace eterlab::signals {

Real gain_dbi(Real gain_db, GainReference reference) {
  return reference == GainReference::isotropic ? gain_db : gain_db + half_wave_dipole_gain_dbi;
}

Real line_loss_db(Real db_per_100_m, Real length_m, Real other_db) {
  return db_per_100_m * length_m / 100 + other_db;
}

RadiatedPower radiated_power(Real transmitter_w, Real loss_db, Real gain_dbi) {
  const Real at_antenna_w = transmitter_w * power_w(-loss_db);
  return {.loss_db = loss_db,
          .lost_w = -transmitter_w * expm1(-loss_db / 10 * std::numbers::ln10),
          .at_antenna_w = at_antenna_w,
          .erp_w = at_antenna_w * power_w(gain_dbi - half_wave_dipole_gain_dbi),
          .eirp_w = at_antenna_w * power_w(gain_dbi)};
}

}  // namespace eterlab::signals
