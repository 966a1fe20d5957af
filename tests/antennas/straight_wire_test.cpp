#include "antennas/straight_wire.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "antennas/dipoles/coil_loaded_dipole.h"
#include "antennas/dipoles/trap_dipole.h"
#include "common/physics.h"

namespace eterlab::antennas {
namespace {

constexpr Conductor forty_metres{7.1, 2};

void expect_near(Complex result, Complex expected, double tolerance, const char* what) {
  EXPECT_NEAR(result.real().value(), expected.real().value(), tolerance) << what;
  EXPECT_NEAR(result.imaginary().value(), expected.imaginary().value(), tolerance) << what;
}

// Worked out apart from this code.
TEST(StraightWire, AgreesWithAnotherSolution) {
  constexpr double last_digit = 1e-4;
  expect_near(dipole_impedance_ohm(5, forty_metres), {11.5890, -962.8149}, last_digit, "plain");
  expect_near(
      dipole_impedance_ohm(std::array<Real, 2>{3, 6}, std::array<Real, 1>{700}, forty_metres),
      {32.6200, -7.1241}, last_digit, "loaded");
  expect_near(wire_ports(std::array<Real, 3>{-10, 4, 10}, 1, forty_metres).feed_impedance_ohm(),
              {94.5836, -65.3317}, last_digit, "off the middle");
  expect_near(dipole_impedance_ohm(15.636, {28.5, 2}), {2402.8420, -1316.8463}, last_digit, "long");
  EXPECT_NEAR(half_wave_arm_m(forty_metres).value(), 10.275978, 1e-6);
}

// 20 (pi l / lambda)^2 of the triangular current; the thinnest half wave has 73.13 + j 42.55 by the
// method of the induced EMF, to which the true current comes near as the logarithm does.
TEST(StraightWire, HasTheLimitsOfTheory) {
  for (const double wavelengths : {0.002, 0.01}) {
    const Real arm_m = wavelengths / 2 * forty_metres.wavelength_m();
    const double expected = 20 * pi * pi * wavelengths * wavelengths;
    EXPECT_NEAR(dipole_impedance_ohm(arm_m, forty_metres).real().value(), expected,
                1e-3 * expected);
  }
  const Conductor thin{7.1, 1e-90};
  expect_near(dipole_impedance_ohm(thin.wavelength_m() / 4, thin), {73.13, 42.55}, 0.2, "thin");
}

// A dipole is a wire with all its ports told, whichever way its currents are found.
TEST(StraightWire, FoldsWhatIsSymmetrical) {
  const std::array<Complex, 2> arm{Complex{20, 300}, Complex{5, -150}};
  const std::array<Complex, 4> wire{arm[1], arm[0], arm[0], arm[1]};
  const WirePorts folded = dipole_ports(std::array<Real, 3>{4, 7.5, 11}, forty_metres);
  const WirePorts whole =
      wire_ports(std::array<Real, 7>{-11, -7.5, -4, 0, 4, 7.5, 11}, 3, forty_metres);
  expect_near(folded.feed_impedance_ohm(arm), whole.feed_impedance_ohm(wire), 1e-7, "impedance");
  expect_near(folded.load_currents(arm)[1], whole.load_currents(wire)[3], 1e-9, "current");
}

// By reciprocity a change of a load is seen at the feed as the square of its share of the current.
TEST(StraightWire, LoadCurrentsTellHowLoadsAreSeen) {
  constexpr double change_ohm = 0.01;
  const WirePorts ports = dipole_ports(std::array<Real, 3>{2, 5, 9}, forty_metres);
  const std::array<Complex, 2> loads{Complex{3, 200}, Complex{1, 100}};
  const std::vector<Complex> currents = ports.load_currents(loads);
  for (std::size_t load = 0; load < loads.size(); ++load) {
    std::array<Complex, 2> changed = loads;
    changed[load] = changed[load] + change_ohm;
    const Complex seen =
        (ports.feed_impedance_ohm(changed) - ports.feed_impedance_ohm(loads)) / change_ohm;
    expect_near(seen, 2 * currents[load] * currents[load], 1e-4, "load");
  }
}

TEST(StraightWire, IsBroughtToResonanceByTheLoadAlone) {
  for (const double place_m : {0.4, 3.0, 5.4}) {
    const WirePorts ports = dipole_ports(std::array<Real, 2>{place_m, 6}, forty_metres);
    const Real load_ohm = ports.resonating_reactance_ohm();
    const auto reactance_ohm = [&](Real factor) {
      return ports.feed_impedance_ohm(std::array{Complex{0, load_ohm * factor}})
          .imaginary()
          .value();
    };
    EXPECT_GT(load_ohm, 0);
    EXPECT_NEAR(reactance_ohm(1), 0, 1e-6);
    EXPECT_LT(reactance_ohm(0.999), 0);
    EXPECT_GT(reactance_ohm(1.001), 0);
  }
}

// At every place of the coils along arms of any diameter and length that is admitted.
TEST(CoilLoadedDipole, AlwaysHasASolution) {
  for (const double diameter_mm : {0.1, 105.5}) {
    const Conductor conductor{7.1, diameter_mm};
    const Real whole_m = half_wave_arm_m(conductor);
    for (const double arm_m : {2.12, 6.0, 0.999 * whole_m.value()}) {
      for (const double share : {0.05, 0.5, 0.9}) {
        const CoilLoadedDipole dipole{arm_m, share * arm_m, conductor};
        if (!is_resonant_without_coils(dipole)) {
          const CoilLoading loading = coil_loading(dipole);
          EXPECT_GT(loading.reactance_ohm, 0) << diameter_mm << ' ' << arm_m << ' ' << share;
          EXPECT_GT(loading.bandwidth_hz, 0) << diameter_mm << ' ' << arm_m << ' ' << share;
          EXPECT_EQ(loading.efficiency, coil_loading_efficiency(dipole));
        }
      }
    }
  }
}

// The outer section is the shortest resonant one: none half of a step shorter is.
TEST(OuterSection, BringsTheDipoleToResonance) {
  const Real inner_m = half_wave_arm_m(forty_metres);
  const Conductor low{3.65, 2};
  const OuterSection section{std::array{inner_m}, low};
  for (const double inductance_uh : {1.0, 8.0, 12.0}) {
    const std::array trap_ohm{trap_reactance_ohm(3.65, 7.1, inductance_uh * 1e-6)};
    const std::optional<Real> outer_m = section.length_m(trap_ohm);
    ASSERT_TRUE(outer_m);
    const auto reactance_ohm = [&](Real length_m) {
      return dipole_impedance_ohm(std::array{inner_m, inner_m + length_m}, trap_ohm, low)
          .imaginary()
          .value();
    };
    EXPECT_NEAR(reactance_ohm(*outer_m), 0, 1e-6);
    EXPECT_LT(reactance_ohm(*outer_m / 2), 0);
  }
  const std::array too_much_ohm{trap_reactance_ohm(3.65, 7.1, 1e-3)};
  EXPECT_FALSE(section.length_m(too_much_ohm));
}

/// Of a wire in NEC-2; odd, so that there is one in the middle.
constexpr int nec2_segments = 401;

/// What NEC-2 finds at the middle of a wire, loaded so many segments to both sides of it; nothing
/// where it is not installed.
std::optional<Complex> by_nec2(double half_m, const Conductor& conductor, int load_segment,
                               double load_reactance_ohm) {
  namespace fs = std::filesystem;
  const fs::path deck = fs::temp_directory_path() / "eterlab_straight_wire.nec";
  const fs::path output = fs::temp_directory_path() / "eterlab_straight_wire.out";
  const int middle = nec2_segments / 2 + 1;
  std::ofstream{deck} << "CM\nCE\nGW 1 " << nec2_segments << " 0 0 " << -half_m << " 0 0 " << half_m
                      << ' ' << conductor.diameter_mm.value() / 2000 << "\nGE 0\nLD 4 1 "
                      << middle - load_segment << ' ' << middle - load_segment << " 0 "
                      << load_reactance_ohm << "\nLD 4 1 " << middle + load_segment << ' '
                      << middle + load_segment << " 0 " << load_reactance_ohm << "\nFR 0 1 0 0 "
                      << conductor.frequency_mhz.value() << " 0\nEX 0 1 " << middle
                      << " 0 1 0\nXQ\nEN\n";
  const std::string command = "nec2c -i " + deck.string() + " -o " + output.string();
  if (std::system((command + " > /dev/null 2>&1").c_str()) != 0) {
    return std::nullopt;
  }
  std::ifstream results{output};
  std::string line;
  while (std::getline(results, line) && line.find("ANTENNA INPUT PARAMETERS") == line.npos) {
  }
  for (int heading = 0; heading < 3; ++heading) {
    std::getline(results, line);
  }
  // Tag and segment, then voltage, current and impedance.
  std::istringstream row{line};
  double skipped = 0;
  for (int column = 0; column < 6; ++column) {
    row >> skipped;
  }
  double resistance_ohm = 0;
  double reactance_ohm = 0;
  row >> resistance_ohm >> reactance_ohm;
  return Complex{resistance_ohm, reactance_ohm};
}

// As reflection against 600 Ohm, which weighs high and low impedances alike.
TEST(StraightWire, AgreesWithNec2) {
  struct Case {
    double half_m;
    Conductor conductor;
    int load_segment;
    double load_reactance_ohm;
  };
  const Case cases[] = {{10.276, {7.1, 2}, 100, 0},
                        {10, {7.1, 20}, 100, 0},
                        {6, {7.1, 2}, 100, 704},
                        {15.636, {14.15, 2}, 60, 0},
                        {15.636, {24.94, 2}, 60, 0}};
  for (const auto& [half_m, conductor, load_segment, load_reactance_ohm] : cases) {
    const std::optional<Complex> expected =
        by_nec2(half_m, conductor, load_segment, load_reactance_ohm);
    if (!expected) {
      GTEST_SKIP() << "nec2c is not installed";
    }
    const double load_place_m = 2 * half_m / nec2_segments * load_segment;
    const Complex result = dipole_impedance_ohm(std::array<Real, 2>{load_place_m, half_m},
                                                std::array<Real, 1>{load_reactance_ohm}, conductor);
    const auto reflection = [](Complex load_ohm) { return (load_ohm - 600) / (load_ohm + 600); };
    EXPECT_LT(abs(reflection(result) - reflection(*expected)), 0.02)
        << half_m << " m: " << result.real().value() << " + j " << result.imaginary().value()
        << ", not " << expected->real().value() << " + j " << expected->imaginary().value();
  }
}

}  // namespace
}  // namespace eterlab::antennas
