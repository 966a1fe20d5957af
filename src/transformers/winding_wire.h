#pragma once

#include <span>

#include "common/arithmetic.h"

namespace eterlab::transformers {

/// What winding wires are loaded with, in A/mm2.
inline constexpr double current_density_a_per_mm2 = 2.5;
/// Of the copper of winding wires at 20 degrees Celsius, nominal after IEC 60317.
inline constexpr double winding_resistivity_ohm_mm2_per_m = 1 / 58.5;

/// A size of enamelled copper wire. Lengths, sections and weights are those of the copper.
struct WindingWire {
  double diameter_mm;                               ///< nominal, of the copper
  double greatest_outer_diameter_mm;                ///< with enamel of grade 1
  [[nodiscard]] Real section_mm2() const;           ///< of the copper
  [[nodiscard]] Real resistance_ohm_per_m() const;  ///< at 20 degrees Celsius
  [[nodiscard]] Real weight_g_per_m() const;        ///< without the enamel
  [[nodiscard]] Real current_a() const;             ///< at the density of windings
  [[nodiscard]] Real turns_per_cm() const;          ///< side by side
  [[nodiscard]] Real turns_per_cm2() const;         ///< in layers over each other
};

/// @name Winding wires
/// IEC 60317-0-1: nominal diameters of the series R20 from 0.05 to 4 mm.
/// @{

/// From the thinnest to the thickest.
std::span<const WindingWire> winding_wires();
/// The thinnest that carries a current; none above 31.4 A.
const WindingWire* thinnest_wire_for(Real current_a);
/// The thickest of no more than a section, or the thinnest of all.
const WindingWire& thickest_wire_within(Real section_mm2);

/// @}

}  // namespace eterlab::transformers
