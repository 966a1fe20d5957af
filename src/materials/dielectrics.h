#pragma once

#include <span>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::materials {

/// An insulator between the plates of a capacitor.
struct Dielectric {
  std::string_view name;       ///< in Italian, with the trade name behind it
  Real relative_permittivity;  ///< typical of it, at room temperature
};

/// Air first, then plastics, then paper and what comes out of the earth or a kiln. Source: CRC
/// Handbook of Chemistry and Physics and data sheets.
std::span<const Dielectric> dielectrics();

}  // namespace eterlab::materials
