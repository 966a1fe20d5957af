#pragma once

#include <span>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::lines {

/// A line that can be bought, or joined of two equal cables. In series, the two inner conductors
/// are a balanced line and the braids are joined.
struct LineOnSale {
  double impedance_ohm;   ///< characteristic
  std::string_view name;  ///< "2 x 75 Ohm IN PARALLELO"
};

/// The catalogue, by impedance.
std::span<const LineOnSale> lines_on_sale();
/// Those of it that are one coaxial cable.
std::span<const LineOnSale> single_cables();

/// The nearest to an impedance by ratio, of several, the first of two equally near.
const LineOnSale& nearest_line(std::span<const LineOnSale> lines, Real impedance_ohm);

}  // namespace eterlab::lines
