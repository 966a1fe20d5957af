#pragma once

#include <span>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::materials {

/// A metal or alloy that wires are made of.
struct Metal {
  std::string_view name;                 ///< as lists show it, in Italian
  double resistivity_ohm_mm2_per_m;      ///< at 20 degrees Celsius
  double temperature_coefficient_per_k;  ///< of resistance, about 20 degrees Celsius
  bool is_magnetic = false;  ///< iron: its permeability is not that of vacuum, nor constant

  /// The same in SI units.
  [[nodiscard]] constexpr Real resistivity_ohm_m() const {
    return 1e-6 * Real{resistivity_ohm_mm2_per_m};
  }
};

/// @name Metals
/// Annealed copper after IEC 60028, hard-drawn aluminium after IEC 60889; the pure metals after the
/// CRC Handbook of Chemistry and Physics, the alloys after the sheets of makers of wire.
/// @{

/// The standard of 100 % IACS.
inline constexpr Metal copper{"RAME", 0.017241, 0.00393};
/// The copper-nickel alloy of resistors and shunts.
inline constexpr Metal constantan{"COSTANTANA", 0.49, 0.00003};
/// The catalogue, in the order of lists.
std::span<const Metal> metals();
/// Those in which a field enters as in copper.
std::span<const Metal> non_magnetic_metals();

/// @}

}  // namespace eterlab::materials
