#pragma once

#include "common/arithmetic.h"

namespace eterlab::signals {

/// What a gain is compared with.
enum class GainReference : unsigned char {
  half_wave_dipole,  ///< dBd
  isotropic,         ///< dBi
};

/// Gain of the half-wave dipole over the isotropic antenna, as agreed.
inline constexpr double half_wave_dipole_gain_dbi = 2.15;

/// A gain over the isotropic antenna.
Real gain_dbi(Real gain_db, GainReference reference);

/// A transmitter's power on its way to the waves.
struct RadiatedPower {
  Real loss_db;       ///< in the line and what is inserted into it
  Real lost_w;        ///< that power, without cancellation
  Real at_antenna_w;  ///< what is left
  Real erp_w;         ///< effective radiated power: a half-wave dipole would need it
  Real eirp_w;        ///< the same of an isotropic antenna
};

/// Attenuation of a line and of what else is inserted into it; any length.
Real line_loss_db(Real db_per_100_m, Real length_m, Real other_db);

/// The power must be above zero. Source: ITU-R BS.561.
RadiatedPower radiated_power(Real transmitter_w, Real loss_db, Real gain_dbi);

}  // namespace eterlab::signals
