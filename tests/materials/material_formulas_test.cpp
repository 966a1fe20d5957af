#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "common/physics.h"
#include "materials/copper_wire.h"
#include "materials/metals.h"
#include "materials/round_wire.h"
#include "materials/skin_effect.h"

namespace eterlab::materials {
namespace {

// Computed with 50 decimal digits (Python's decimal).
TEST(CopperWire, LengthsAreRoundedBeforeTheyAreUsed) {
  EXPECT_EQ(copper_wire(0.5, 0.0981).resistance_ohm.value(), 0.005378F);  // of 0.06 m, not 0.0562
  EXPECT_EQ(copper_wire(0.05, 5).resistance_ohm.value(), 2567.535F);      // 2567.535460
}

// One metal is magnetic; what is left keeps its order, which windows choose by.
TEST(Metals, WithoutIron) {
  std::vector<std::string_view> expected;
  for (const Metal& metal : metals()) {
    if (metal.name != "FERRO") {
      expected.push_back(metal.name);
    }
  }
  std::vector<std::string_view> names;
  std::ranges::transform(non_magnetic_metals(), std::back_inserter(names), &Metal::name);
  EXPECT_EQ(names, expected);
}

// Resistance of annealed copper in tables of enamelled wire (IEC 60317), ohm/km at 20 degrees.
TEST(RoundWire, AsInTablesOfEnamelledWire) {
  for (const auto& [diameter_mm, ohm_per_km] :
       {std::pair{0.1, 2195.0}, {0.5, 87.81}, {1.0, 21.95}, {2.0, 5.488}}) {
    const Real resistance = resistance_ohm(copper, round_section_mm2(diameter_mm), 1000);
    EXPECT_NEAR(resistance.value(), ohm_per_km, ohm_per_km * 3e-4) << diameter_mm;
  }
}

// mpmath's Bessel functions, 30 digits.
TEST(SkinEffect, OfARoundWireAsOfBesselFunctions) {
  const double table[][3] = {
      {0.001, 1, 2.5e-7},
      {0.1, 1.0000020833299, 0.002499997395838},
      {1, 1.0204923888556, 0.2474419982815},
      {2, 1.2646429062732, 0.87048259560419},
      {5, 2.7681076007343, 2.4767247880709},
      {20, 10.25467911466, 9.9950704761289},
      {29.9, 15.203133013138, 14.946757387628},
  };
  for (const auto& [radius, real, imaginary] : table) {
    const Complex ratio = round_wire_impedance_ratio(radius);
    EXPECT_NEAR(ratio.real().value(), real, real * 1e-12) << radius;
    EXPECT_NEAR(ratio.imaginary().value(), imaginary, imaginary * 1e-12) << radius;
  }
  // Beyond, the asymptotic series.
  const double thick[][3] = {{30.1, 15.303112228778, 15.04677965551},
                             {50, 25.251874490567, 24.998087008204},
                             {200, 100.25046874224, 99.99952889856}};
  for (const auto& [radius, real, imaginary] : thick) {
    const Complex ratio = round_wire_impedance_ratio(radius);
    EXPECT_NEAR(ratio.real().value(), real, real * 1e-6) << radius;
    EXPECT_NEAR(ratio.imaginary().value(), imaginary, imaginary * 1e-6) << radius;
  }
}

// The field inside a thin wire adds mu0 / (8 pi) to its inductance; a thick wire is a flat surface,
// as wide as its circumference.
TEST(SkinEffect, LimitsOfThinAndThickWires) {
  constexpr double length_m = 1;
  constexpr double frequency_hz = 1e6;
  const Real depth_m = skin_depth_m(copper.resistivity_ohm_m(), frequency_hz);
  const auto impedance = [&](double radius_in_skin_depths) {
    const Real diameter_mm = 2000 * radius_in_skin_depths * depth_m;
    return round_wire_impedance_ratio(radius_in_skin_depths) *
           resistance_ohm(copper, round_section_mm2(diameter_mm), length_m);
  };
  const Real inductance_h = impedance(0.01).imaginary() / (2 * pi * frequency_hz);
  EXPECT_NEAR(inductance_h.value() / (vacuum_permeability_h_per_m / (8 * pi)), 1, 1e-6);
  const Real circumference_m = 2 * pi * 1e6 * depth_m;
  const Real surface_ohm = surface_resistance_ohm(copper.resistivity_ohm_m(), frequency_hz);
  EXPECT_NEAR((impedance(1e6).real() * circumference_m / surface_ohm).value(), 1, 1e-6);
}

}  // namespace
}  // namespace eterlab::materials
