#include "lines/geometry/round_rods.h"

#include <algorithm>

namespace eterlab::lines {

namespace {

constexpr double rods_mm[] = {0.5, 0.6, 0.8, 1,  1.2, 1.5, 2,  2.5, 3,  4,  5,  6,  8,  10, 12,
                              14,  15,  16,  18, 20,  22,  25, 28,  30, 32, 35, 40, 50, 60};
constexpr double thinnest_wanted_mm = 0.45;
constexpr double thickest_wanted_mm = 65;

}  // namespace

std::optional<Real> nearest_rod_mm(Real diameter_mm) {
  if (diameter_mm < thinnest_wanted_mm || diameter_mm > thickest_wanted_mm) {
    return std::nullopt;
  }
  return *std::ranges::min_element(rods_mm, {},
                                   [&](double rod_mm) { return abs(rod_mm - diameter_mm); });
}

}  // namespace eterlab::lines
