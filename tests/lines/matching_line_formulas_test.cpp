#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <numbers>

#include "coils/ferrite/ferrite_cores.h"
#include "coils/winding_inductance.h"
#include "lines/baluns/air_balun.h"
#include "lines/baluns/air_winding.h"
#include "lines/baluns/ferrite_balun.h"
#include "lines/baluns/quarter_wave_balun.h"
#include "lines/baluns/two_cable_balun.h"
#include "lines/line_section.h"
#include "lines/lines_on_sale.h"
#include "lines/matching/hairpin.h"
#include "lines/matching/matched_load.h"
#include "lines/matching/usual_sections.h"
#include "lines/standing_wave.h"

// Matching sections and baluns against chain matrices, waves on lines, and limits.

namespace eterlab::lines {
namespace {

using Number = std::complex<double>;
using Chain = std::array<Number, 4>;  // A B C D

constexpr double pi = std::numbers::pi;
constexpr Number j{0, 1};

Chain operator*(const Chain& a, const Chain& b) {
  return {a[0] * b[0] + a[1] * b[2], a[0] * b[1] + a[1] * b[3], a[2] * b[0] + a[3] * b[2],
          a[2] * b[1] + a[3] * b[3]};
}

Chain line(double impedance, double angle) {
  return {std::cos(angle), j * impedance * std::sin(angle), j * std::sin(angle) / impedance,
          std::cos(angle)};
}

Chain shunt(Number admittance) { return {1, 0, admittance, 1}; }

Number input(const Chain& chain, Number load) {
  return (chain[0] * load + chain[1]) / (chain[2] * load + chain[3]);
}

Number number(Complex z) { return {z.real().value(), z.imaginary().value()}; }

/// The input impedance of a matched load by chain matrices, the stub by the waves on it.
Number chain_input(const MatchedLoad& matched, double ratio) {
  Chain chain{1, 0, 0, 1};
  for (const LineSection& section : matched.sections) {
    chain = line(section.impedance_ohm.value(), section.angle.value() * ratio) * chain;
  }
  if (matched.stub) {
    const bool is_open = matched.stub->end == StubEnd::open;
    const Number reflected =
        (is_open ? 1.0 : -1.0) * std::exp(-2.0 * j * matched.stub->line.angle.value() * ratio);
    chain =
        shunt((1.0 - reflected) / (1.0 + reflected) / matched.stub->line.impedance_ohm.value()) *
        chain;
  }
  return input(chain, number(matched.load_ohm));
}

void expect_matched(const MatchedLoad& matched) {
  const double line_ohm = matched.line_ohm.value();
  EXPECT_NEAR(std::abs(chain_input(matched, 1) - line_ohm) / line_ohm, 0, 1e-6);
  for (const double ratio : {0.6, 0.93, 1.01, 1.4}) {
    const Number expected = chain_input(matched, ratio);
    EXPECT_NEAR(std::abs(number(matched.input_impedance_ohm(ratio)) - expected), 0,
                1e-9 * std::abs(expected));
  }
  for (const LineSection& section : matched.sections) {
    EXPECT_TRUE(section.angle >= 0 && section.angle < pi);
  }
}

TEST(MatchedLoads, AreMatchedAtTheirFrequency) {
  for (const Complex load :
       {Complex{36, 0}, {28, -15}, {112, 40}, {1, 10'000}, {10'000, -3}, {50, 1}, {75, 0}}) {
    SCOPED_TRACE(number(load));
    for (const StubEnd end : {StubEnd::shorted, StubEnd::open}) {
      for (const double stub_ohm : {1.0, 50.0, 450.0}) {
        const MatchedLoad matched = stub_match(end, load, 50, stub_ohm);
        expect_matched(matched);
        EXPECT_TRUE(matched.stub->line.angle > 0 && matched.stub->line.angle < pi / 2);
      }
    }
    const auto [low, high] = series_section_limits(50, standing_wave_ratio(load, 50));
    for (const double beyond : {1.0, 1.01, 3.0}) {
      for (const Real section : {low / beyond, high * beyond}) {
        const auto matched = series_section_match(load, 50, section);
        ASSERT_TRUE(matched.has_value());
        expect_matched(*matched);
        EXPECT_LE(matched->sections[1].angle.value(), pi / 2);
      }
    }
    EXPECT_FALSE(series_section_match(load, 50, low * 1.001));
    EXPECT_FALSE(series_section_match(load, 50, high / 1.001));
    EXPECT_FALSE(series_section_match(load, 50, 50));
  }
}

// Regier's own solution: tan l2 = sqrt(((r - 1)^2 + x^2) / (r (n - 1/n)^2 - (r - 1)^2 - x^2)),
// tan l1 = (tan l2 (n - r / n) + x) / (r + x n tan l2 - 1).
TEST(SeriesSection, IsThatOfTheOriginalPaper) {
  for (const auto& [r, x, n] : {std::array{0.72, 0.0, 1.5}, {2.4, -0.7, 3.0}, {0.3, 0.2, 0.2}}) {
    const auto matched = series_section_match({50 * r, 50 * x}, 50, 50 * n);
    const double mismatch = (r - 1) * (r - 1) + x * x;
    const double tan2 = std::sqrt(mismatch / (r * (n - 1 / n) * (n - 1 / n) - mismatch));
    const double tan1 = (tan2 * (n - r / n) + x) / (r + x * n * tan2 - 1);
    EXPECT_NEAR(matched->sections[1].angle.value(), std::atan(tan2), 1e-9);
    EXPECT_NEAR(std::tan(matched->sections[0].angle.value()), tan1, 1e-9);
  }
}

// Collin, Foundations for Microwave Engineering: the reflection of a quarter-wave section.
TEST(QuarterWave, HasTheBandOfTheTextbook) {
  const double z0 = 50;
  const double r = 300;
  const QuarterWaveMatch match = quarter_wave_match(r, z0);
  const double ideal = std::sqrt(r * z0);
  MatchedLoad matched = match.matched;
  matched.sections[0].impedance_ohm = ideal;
  const double rho = 0.2;  // of a standing-wave ratio of 1.5
  const double edge = std::acos(2 * rho * ideal / ((r - z0) * std::sqrt(1 - rho * rho))) / (pi / 2);
  const MatchedBand band = matched.band(1.5);
  EXPECT_NEAR(band.from.value(), edge, 1e-8);
  EXPECT_NEAR(band.to.value(), 2 - edge, 1e-8);
  EXPECT_EQ(quarter_wave_match(60, 50).cable, nullptr);
  // At the greatest ratio itself, 1.5, with a 75 ohm cable.
  const MatchedBand at_limit = quarter_wave_match(168.75, 50).matched.band(1.5);
  EXPECT_TRUE(at_limit.from <= 1 && at_limit.to >= 1);
}

TEST(StandingWaveRatio, OfAnyLoad) {
  EXPECT_DOUBLE_EQ(standing_wave_ratio(Complex{25}, 50).value(), 2);
  EXPECT_DOUBLE_EQ(standing_wave_ratio(Complex{100}, 50).value(), 2);
  EXPECT_DOUBLE_EQ(standing_wave_ratio(Complex{50}, 50).value(), 1);
  // Next to total reflection (X^2 + R^2 + Z0^2) / (R Z0), but for 1E-12 of it.
  EXPECT_NEAR(standing_wave_ratio({1e-9, 1e4}, 50).value() / (100'002'500 / 50e-9), 1, 1e-11);
}

TEST(LinesOnSale, AreNearestByRatio) {
  for (const LineOnSale& line : lines_on_sale()) {
    EXPECT_EQ(&nearest_line(lines_on_sale(), line.impedance_ohm * 1.01), &line);
  }
  EXPECT_EQ(nearest_line(lines_on_sale(), 1e4).impedance_ohm, 450);
  EXPECT_EQ(nearest_line(lines_on_sale(), std::sqrt(25 * 30)).impedance_ohm, 25);
  EXPECT_EQ(nearest_line(single_cables(), 1).name, "50 Ohm");
  EXPECT_EQ(nearest_line(single_cables(), 1000).name, "93 Ohm");
}

TEST(UsualSections, AreMatchedButForOne) {
  for (const UsualSection& usual : usual_sections()) {
    SCOPED_TRACE(usual.section);
    const Number branch = chain_input(usual.matched, 1);
    EXPECT_NEAR(branch.real() / usual.branches, usual.input_impedance_ohm().value(), 1e-9);
    EXPECT_NEAR(branch.imag(), 0, 1e-9);
    EXPECT_LE(usual.swr().value(), usual.branches == 2 ? 1.1251 : 1.005);
  }
}

TEST(Hairpin, CancelsTheReactanceAndMatches) {
  const HairpinTask task{14.15, 25, 50, 25, 6, 50};
  const Hairpin made = hairpin(task);
  const Number radiator{25, -made.radiator_reactance_ohm.value()};
  const Number both = 1.0 / (1.0 / radiator + 1.0 / (j * made.reactance_ohm.value()));
  EXPECT_NEAR(std::abs(both - 50.0), 0, 1e-9);
  // A rectangle of round wire (Grover) without its near side, somewhat longer for a wave than it
  // is.
  const double a = made.length_m.value();
  const double b = 0.05;
  const double r = 0.003;
  const double d = std::hypot(a, b);
  const double rectangle = (a + b) * std::log(2 * a * b / r) - a * std::log(a + d) -
                           b * std::log(b + d) - 2 * (a + b) + 2 * d;
  const double near_side = b / 2 * (std::log(2 * b / r) - 1);
  const double angle = 2 * pi * 14.15 / 299.792458 * a;
  const double expected_h = 4e-7 * (rectangle - near_side) * std::tan(angle) / angle;
  EXPECT_NEAR(made.inductance_h.value() / expected_h, 1, 0.025);
}

TEST(AirWinding, HasTheInductanceOfACurrentSheet) {
  for (const AirWinding& winding : {AirWinding{30, 1.5, 3, 16},
                                    {50, 2, 2, 13},
                                    {110, 5, 1, 10},
                                    {1000, 1, 1, 2},
                                    {5, 10, 1, 50}}) {
    const Real expected = coils::current_sheet_inductance_h(winding.mean_diameter_m() / 2,
                                                            winding.length_m(), winding.turns);
    EXPECT_NEAR((winding.inductance_h() / expected).value(), 1, 1.5e-3) << winding.turns;
  }
}

TEST(AirBalun, HasTheFewestTurnsThatDo) {
  const auto balun = air_balun(AirBalunRatio::one, 3.5, 50, 30, 1.5);
  const double w = 2 * pi * 3.5e6;
  AirWinding fewer = balun->winding;
  EXPECT_GE(4 * w * fewer.inductance_h().value(), 250);
  --fewer.turns;
  EXPECT_LT(4 * w * fewer.inductance_h().value(), 250);
  // Two windings in series feed the cable, the middle and the last one the antenna of 50 ohm.
  const double l = balun->inductance_h.value();
  const Number shunted = 1.0 / (1.0 / 50 + 1.0 / (j * w * 4.0 * l));
  const double rho = std::abs((shunted - 50.0) / (shunted + 50.0));
  EXPECT_NEAR(balun->swr_at_lowest.value(), (1 + rho) / (1 - rho), 1e-12);
  // A wire of one eighth of a wave of 0.8 c
  EXPECT_NEAR(balun->highest_frequency_mhz.value() * balun->winding.wire_length_m().value(),
              0.8 * 299.792458 / 8, 1e-9);
}

// Handbooks: 22 feet of RG-213 in 8 turns for 3.5 MHz, 10 feet in 4 for 14, 6 feet in 8 for 28.
TEST(CableChoke, OfTheHandbooksHasAboutTenTimesTheImpedance) {
  struct Case {
    double feet;
    int turns;
    double frequency_mhz;
  };
  for (const auto& [feet, turns, frequency_mhz] : {Case{22, 8, 3.5}, {10, 4, 14}, {6, 8, 28}}) {
    const double former_mm = 304.8 * feet / turns / pi - 10.3;
    const AirWinding choke{former_mm, 10.3, 1, turns};
    EXPECT_NEAR(2 * pi * 1e6 * frequency_mhz * choke.inductance_h().value(), 530, 50);
    EXPECT_NEAR(choke.wire_length_m().value(), 0.3048 * feet, 0.01);
  }
}

TEST(QuarterWaveBalun, HasFiveTimesTheImpedanceInItsBand) {
  for (const auto kind : {QuarterWaveBalunKind::pawsey_stub, QuarterWaveBalunKind::sleeve}) {
    const QuarterWaveBalun balun = quarter_wave_balun(kind, 145, 50, 8, 20, 0.95);
    for (const Real edge : {balun.lowest_frequency_mhz, balun.highest_frequency_mhz}) {
      const double angle = 2 * pi * edge.value() * balun.length_m.value() / (0.95 * 299.792458);
      EXPECT_NEAR(std::abs(input(line(balun.impedance_ohm.value(), angle), 0)), 250, 1e-9);
    }
  }
}

TEST(TwoCableBalun, ForcesOppositeCurrents) {
  const TwoCableBalun balun = two_cable_balun(112, 50);
  const double zc = balun.cable->impedance_ohm;
  // Into halves of 0.3 and 0.7 of the antenna: of each I = V / (A Z + B) there.
  const Number near = 1.0 / (line(zc, pi / 2)[0] * (0.3 * 112) + line(zc, pi / 2)[1]);
  const Number far = 1.0 / (line(zc, 1.5 * pi)[0] * (0.7 * 112) + line(zc, 1.5 * pi)[1]);
  EXPECT_NEAR(std::abs(near + far), 0, 1e-12);
  const Number each = input(line(zc, pi / 2), 56);
  EXPECT_NEAR(each.real() / 2, balun.input_ohm.value(), 1e-9);
}

TEST(FerriteBalun, KeepsItsCoreWithinItsLimits) {
  for (const coils::FerriteCore& core : balun_cores()) {
    for (const double power_w : {1.0, 100.0, 2000.0}) {
      SCOPED_TRACE(core.name);
      const FerriteBalunTask task{FerriteBalunKind::unun_one_to_nine, core, 3.5e6, 50, power_w};
      const FerriteBalun balun = ferrite_balun(task);
      const double turns = balun.turns.value();
      const double voltage_squared = power_w * 50;
      const double heat_w =
          voltage_squared * turn_loss_conductance_s(core, 3.5e6).value() / (turns * turns);
      const double bounds[] = {
          250 / balun.impedance_ohm.value(),
          std::pow((balun.flux_density_t / balun.greatest_flux_density_t).value(), 2),
          heat_w / greatest_core_loss_w(core).value()};
      const double most = std::max({bounds[0], bounds[1], bounds[2]});
      EXPECT_LE(most, 1 + 1e-9);
      // One turn less would be too few.
      EXPECT_TRUE(turns == 1 || most * std::pow(turns / (turns - 1), 2) > 1);
      EXPECT_LE(balun.swr_at_lowest.value(), 1.23);
    }
  }
  EXPECT_EQ(balun_cores().size(), 10U);
}

}  // namespace
}  // namespace eterlab::lines
