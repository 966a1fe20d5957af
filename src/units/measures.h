#pragma once

#include <span>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::units {

/// @name English and metric measures
/// Source: international yard and pound agreement of 1959, British and American gallons as defined
/// by law, standard gravity; the inch of mercury is the conventional one.
/// @{

/// A unit of some quantity.
struct Unit {
  std::string_view name;  ///< as lists show it, in Italian
  double size;            ///< in a unit that all units of the quantity are told in
};

/// English and metric units of length; sizes in metre.
std::span<const Unit> length_units();

/// What is measured.
struct Quantity {
  std::string_view name;        ///< as lists show it, in Italian
  std::span<const Unit> units;  ///< English and metric ones, five
};

/// Other quantities than length.
std::span<const Quantity> quantities();

/// So many of a unit in another one of the same quantity.
Real converted(Real value, const Unit& from, const Unit& to);

/// @}

}  // namespace eterlab::units
