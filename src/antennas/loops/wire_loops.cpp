#include "antennas/loops/wire_loops.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "common/interpolation.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

/// Values for lambda / a = 1000, 10 000, 100 000.
using ByThickness = std::array<double, 3>;

Real at_thickness(const ByThickness& values, Real wavelength_m, Real wire_diameter_m) {
  std::array<TablePoint, 3> table{{{3, 0}, {4, 0}, {5, 0}}};
  for (std::size_t column = 0; column < values.size(); ++column) {
    table.at(column).y = values.at(column);
  }
  return interpolated(table, log10(2 * wavelength_m / wire_diameter_m));
}

struct LoopRow {
  double shape;  ///< ratio or angle
  ByThickness perimeter_wavelengths;
  ByThickness resistance_ohm;
};

constexpr LoopRow rectangles[] = {
    // height over width
    {0.5, {1.0729, 1.0426, 1.0305}, {224.6, 213.5, 209.6}},
    {0.75, {1.0905, 1.0561, 1.0409}, {172.3, 164.4, 161.1}},
    {1, {1.0954, 1.0608, 1.0448}, {131.0, 125.8, 123.4}},
    {1.25, {1.0948, 1.0614, 1.0454}, {100.8, 97.4, 95.7}},
    {1.5, {1.092, 1.0601, 1.0446}, {79.1, 76.7, 75.5}},
    {1.75, {1.0882, 1.0579, 1.043}, {63.2, 61.5, 60.7}},
    {2, {1.0841, 1.0554, 1.0412}, {51.4, 50.2, 49.6}},
    {2.5, {1.0763, 1.0503, 1.0374}, {35.7, 35.0, 34.7}},
    {3, {1.0694, 1.0457, 1.034}, {26.0, 25.6, 25.4}},
    {4, {1.0586, 1.0384, 1.0285}, {15.5, 15.4, 15.3}},
};

constexpr LoopRow triangles[] = {
    // degrees at the apex
    {45, {1.1166, 1.0756, 1.0558}, {78.5, 74.1, 71.8}},
    {60, {1.1081, 1.0702, 1.0521}, {121.8, 116.4, 113.8}},
    {75, {1.0973, 1.0627, 1.0465}, {164.0, 158.0, 155.3}},
    {90, {1.086, 1.0547, 1.0405}, {202.4, 195.8, 193.1}},
    {105, {1.0748, 1.047, 1.0346}, {235.5, 228.4, 225.8}},
    {120, {1.0635, 1.0398, 1.0293}, {262.1, 255.1, 252.5}},
};

ResonantLoop resonant_loop(std::span<const LoopRow> rows, Real shape, Real wavelength_m,
                           Real wire_diameter_m) {
  const auto found = [&](ByThickness LoopRow::*quantity) {
    std::vector<TablePoint> table;
    for (const LoopRow& row : rows) {
      const Real value = at_thickness(row.*quantity, wavelength_m, wire_diameter_m);
      table.push_back({row.shape, value.value()});
    }
    return interpolated(table, shape);
  };
  return {wavelength_m * found(&LoopRow::perimeter_wavelengths), found(&LoopRow::resistance_ohm)};
}

struct HentennaRow {
  ByThickness height_wavelengths;
  ByThickness bar_height_wavelengths;
  ByThickness resistance_ohm;
};

constexpr HentennaRow classic{{0.5, 0.5, 0.5}, {0.1135, 0.1274, 0.1355}, {66.8, 66.8, 66.4}};
constexpr HentennaRow of_50_ohm{{0.6039, 0.6004, 0.597}, {0.2292, 0.2468, 0.2571}, {50, 50, 50}};

Hentenna hentenna(const HentennaRow& row, Real wavelength_m, Real wire_diameter_m) {
  const auto found = [&](const ByThickness& values) {
    return at_thickness(values, wavelength_m, wire_diameter_m);
  };
  const Real height_m = wavelength_m * found(row.height_wavelengths);
  const Real width_m = wavelength_m / 6;
  return {.height_m = height_m,
          .width_m = width_m,
          .bar_height_m = wavelength_m * found(row.bar_height_wavelengths),
          .wire_m = 2 * height_m + 3 * width_m,
          .resistance_ohm = found(row.resistance_ohm)};
}

}  // namespace

ResonantLoop rectangular_loop(Real height_over_width, Real wavelength_m, Real wire_diameter_m) {
  return resonant_loop(rectangles, height_over_width, wavelength_m, wire_diameter_m);
}

Triangle triangle(Real perimeter_m, Real apex_degrees) {
  const Real half_apex = apex_degrees / 2 * (pi / 180);
  const Real base_m = perimeter_m / (1 + 1 / sin(half_apex));
  return {base_m, base_m / (2 * sin(half_apex)), base_m / (2 * tan(half_apex))};
}

ResonantLoop delta_loop(Real apex_degrees, Real wavelength_m, Real wire_diameter_m) {
  return resonant_loop(triangles, apex_degrees, wavelength_m, wire_diameter_m);
}

Hentenna classic_hentenna(Real wavelength_m, Real wire_diameter_m) {
  return hentenna(classic, wavelength_m, wire_diameter_m);
}

Hentenna hentenna_of_50_ohm(Real wavelength_m, Real wire_diameter_m) {
  return hentenna(of_50_ohm, wavelength_m, wire_diameter_m);
}

}  // namespace eterlab::antennas
