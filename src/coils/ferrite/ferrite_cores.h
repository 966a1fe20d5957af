#pragma once

#include <span>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::coils {

/// A ring of nickel-zinc ferrite, as makers' sheets have it.
struct FerriteCore {
  std::string_view name;        ///< size and mix: "FT-240-43"
  double outer_diameter_mm;     ///< of the ring
  double inner_diameter_mm;     ///< of the ring
  double height_mm;             ///< along its axis
  double initial_permeability;  ///< relative, at low frequencies
  double inductance_index_nh;   ///< A_L: inductance of one turn at low frequencies
};

/// The catalogue. Source: Fair-Rite for the mixes 43 and 61; Ferroxcube's data handbook "Soft
/// Ferrites and Accessories" for 4C65, uncoated.
std::span<const FerriteCore> ferrite_cores();

/// @name Laws of ferrite cores
/// Frequencies above zero.
/// @{

/// Magnitude of the impedance of one turn; of more by the square of the turns. Above a frequency of
/// 4500 MHz over the permeability that falls. Source: J. L. Snoek's relation for nickel-zinc
/// ferrites, Physica 14, 1948.
Real turn_impedance_ohm(const FerriteCore& core, Real frequency_hz);

/// Conductance that the losses of the core put across one turn; of more by the inverse square of
/// the turns. Of mix 43 the real part of 1 / Z of a permeability that relaxes, the same at all
/// frequencies; of 61 and 4C65 a power law up to that, fitted to the loss factor of 4C65, 130E-6 at
/// 10 MHz.
Real turn_loss_conductance_s(const FerriteCore& core, Real frequency_hz);

/// Effective section of the ring. Source: IEC 60205.
Real effective_section_m2(const FerriteCore& core);

/// Peak voltage over the square root of two that a winding stands before the flux in the core is
/// too high: 15 mT / sqrt(f in MHz), at most 25 mT, after the makers' guideline of 150 gauss at 1
/// MHz, 57 at 7, 42 at 14, 36 at 21, 30 at 28.
Real greatest_winding_voltage_v(const FerriteCore& core, Real frequency_hz, Real turns);

/// What the surface gives off some 45 degrees above the air, 0.1 W/cm2.
Real greatest_core_loss_w(const FerriteCore& core);

/// @}

}  // namespace eterlab::coils
