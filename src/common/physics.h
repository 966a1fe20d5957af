#pragma once

#include <numbers>

namespace eterlab {

/// @name Constants of physics
/// CODATA 2022. Those without a note are exact by definition.
/// @{

/// Circumference of a circle over its diameter.
inline constexpr double pi = std::numbers::pi;
/// In vacuum.
inline constexpr double speed_of_light_m_per_s = 299'792'458;
/// Measured: relative uncertainty 1.6E-10.
inline constexpr double vacuum_permeability_h_per_m = 1.25663706127e-6;
/// Measured: relative uncertainty 1.6E-10.
inline constexpr double vacuum_permittivity_f_per_m = 8.8541878188e-12;
/// Measured: relative uncertainty 1.6E-10.
inline constexpr double free_space_impedance_ohm = 376.730313412;
/// Thermal energy of a degree.
inline constexpr double boltzmann_constant_j_per_k = 1.380649e-23;
/// Charge of a proton.
inline constexpr double elementary_charge_c = 1.602176634e-19;
/// Acceleration of a falling body, as agreed for the earth.
inline constexpr double standard_gravity_m_per_s2 = 9.80665;

/// @}

}  // namespace eterlab
