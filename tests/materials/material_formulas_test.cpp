#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <map>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "common/physics.h"
#include "materials/bars.h"
#include "materials/copper_wire.h"
#include "materials/feed_cable.h"
#include "materials/galvanic_series.h"
#include "materials/metals.h"
#include "materials/round_wire.h"
#include "materials/skin_effect.h"
#include "materials/strand.h"

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

// Conductivities as tables of eddy-current testing print them, in % of copper's.
TEST(Metals, ConductAsInTablesOfConductivity) {
  const std::map<std::string_view, double> published{
      {"ARGENTO", 108}, {"RAME", 100},   {"ORO", 77},           {"ALLUMINIO", 61}, {"OTTONE", 27},
      {"ZINCO", 29},    {"FERRO", 17.7}, {"ACCIAIO INOX", 2.4}, {"STAGNO", 15}};
  std::size_t found = 0;
  for (const Metal& metal : metals()) {
    if (const auto of_copper = published.find(metal.name); of_copper != published.end()) {
      ++found;
      EXPECT_NEAR(100 * copper.resistivity_ohm_mm2_per_m / metal.resistivity_ohm_mm2_per_m,
                  of_copper->second, 0.02 * of_copper->second)
          << metal.name;
    }
  }
  EXPECT_EQ(found, published.size());
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

// Atoms in a cell of the lattice, their mass in u and the cell's edge in angstrom, by X-rays.
TEST(Bars, DensitiesOfElementsAsOfTheirLattices) {
  struct Lattice {
    int atoms;
    double mass_u;
    double edge;
  };
  const std::map<std::string_view, Lattice> lattices{
      {"ALLUMINIO", {4, 26.982, 4.0495}}, {"RAME", {4, 63.546, 3.6149}},
      {"FERRO", {2, 55.845, 2.8665}},     {"PIOMBO", {4, 207.2, 4.9508}},
      {"NICHEL", {4, 58.693, 3.5240}},    {"ARGENTO", {4, 107.868, 4.0857}},
      {"ORO", {4, 196.967, 4.0782}}};
  std::size_t found = 0;
  for (const BarMaterial& material : bar_materials()) {
    if (const auto lattice = lattices.find(material.name); lattice != lattices.end()) {
      ++found;
      const auto& [atoms, mass_u, edge] = lattice->second;
      const double density = 1.66054 * atoms * mass_u / (edge * edge * edge);
      EXPECT_NEAR(material.density_kg_per_dm3, density, 0.004 * density) << material.name;
    }
  }
  EXPECT_EQ(found, lattices.size());
}

TEST(Bars, ATubeIsARodWithoutItsCore) {
  for (const auto& [outer, wall] : {std::pair{25.0, 1.5}, {10.0, 4.9}, {1e6, 1.0}}) {
    const Real tube = tube_section_mm2(outer, wall);
    const double core = outer - 2 * wall;
    EXPECT_NEAR(tube.value(), pi / 4 * (outer - core) * (outer + core), tube.value() * 1e-9);
  }
  EXPECT_DOUBLE_EQ(bar_weight_g(bar_materials().back(), 1000, 1).value(),
                   1000);  // a litre of water
}

// The greatest resistances of IEC 60228, class 5, plain copper at 20 degrees.
TEST(FeedCable, DropAsOfFlexibleConductors) {
  const double ohm_per_km[] = {39.0, 26.0, 19.5, 13.3,  7.98,  4.95,  3.30,
                               1.91, 1.21, 0.78, 0.554, 0.386, 0.272, 0.206};
  ASSERT_EQ(cable_sections().size(), std::size(ohm_per_km));
  for (std::size_t i = 0; i < std::size(ohm_per_km); ++i) {
    const double section = cable_sections()[i].section_mm2;
    EXPECT_NEAR(cable_drop_v(1, 500, section).value(), ohm_per_km[i], 0.03 * ohm_per_km[i]);
  }
}

TEST(FeedCable, IsTheSmallestThatCarriesTheCurrent) {
  const auto section = [](Real section_mm2, Real current_a) {
    const CableSection* cable = smallest_cable(section_mm2, current_a);
    return cable == nullptr ? 0 : cable->section_mm2;
  };
  EXPECT_EQ(section(10 * (1 + 5e-10), 63), 10);
  EXPECT_EQ(section(10 * (1 + 2e-9), 63), 16);
  EXPECT_EQ(section(1, 63.1), 16);
  EXPECT_EQ(section(95, 258), 95);
  EXPECT_EQ(section(96, 1), 0);
  EXPECT_EQ(section(1, 259), 0);
}

// Wires touch and do not overlap; the numbers of full layers are as narrow as cable makers say.
TEST(Strand, WiresLieDenselyAndApart) {
  for (int wires = 1; wires <= 37; ++wires) {
    const std::vector<WirePlace> places = wires_in_strand(wires);
    ASSERT_EQ(places.size(), static_cast<std::size_t>(wires));
    double nearest = 1;
    for (std::size_t i = 1; i < places.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        nearest =
            std::min(nearest, std::hypot(places[i].x - places[j].x, places[i].y - places[j].y));
      }
    }
    EXPECT_NEAR(nearest, 1, 1e-12) << wires;
  }
  for (const auto& [wires, diameter] :
       {std::pair{1, 1.0}, {2, 2.0}, {3, 2.1547}, {7, 3.0}, {19, 5.0}, {37, 7.0}}) {
    const WirePlace outermost = wires_in_strand(wires).back();
    EXPECT_NEAR(2 * std::hypot(outermost.x, outermost.y) + 1, diameter, 1e-4) << wires;
  }
}

TEST(Strand, BothWaysAgree) {
  const Strand strand = strand_of_wires(7, 0.67);
  const Strand back = strand_of_section(7, strand.section_mm2);
  EXPECT_NEAR(back.wire_diameter_mm.value(), 0.67, 1e-15);
  EXPECT_NEAR(back.equivalent_diameter_mm.value(), strand.equivalent_diameter_mm.value(), 1e-15);
  EXPECT_NEAR(round_section_mm2(strand.equivalent_diameter_mm).value(), strand.section_mm2.value(),
              1e-15);
}

TEST(GalvanicSeries, FallsFromTheLeastNobleMetalToGold) {
  const std::span<const GalvanicMetal> series = galvanic_series();
  EXPECT_TRUE(
      std::ranges::is_sorted(series, std::ranges::greater{}, &GalvanicMetal::anodic_index_v));
  EXPECT_EQ(series.back().anodic_index_v, 0);
}

TEST(GalvanicSeries, LimitsCountAsAllowed) {
  const std::pair<double, Contact> table[] = {
      {0, Contact::outdoors},         {0.9 - 0.75, Contact::outdoors}, {0.151, Contact::indoors},
      {0.5 - 0.25, Contact::indoors}, {0.251, Contact::dry},           {0.85 - 0.35, Contact::dry},
      {0.501, Contact::nowhere}};
  for (const auto& [voltage_v, contact] : table) {
    EXPECT_EQ(contact_at(voltage_v), contact) << voltage_v;
  }
}

}  // namespace
}  // namespace eterlab::materials
