#include "antennas/dipoles/trap_dipole.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "circuits/impedance.h"
#include "common/numerics.h"

namespace eterlab::antennas {

namespace {

Real reactance_ohm(const WirePorts& ports, std::span<const Real> trap_reactances_ohm) {
  std::vector<Complex> traps;
  for (const Real trap_ohm : trap_reactances_ohm) {
    traps.emplace_back(0, trap_ohm);
  }
  return ports.feed_impedance_ohm(traps).imaginary();
}

}  // namespace

Real trap_reactance_ohm(Real frequency_mhz, Real trap_mhz, Real inductance_h) {
  const Real ratio = frequency_mhz / trap_mhz;
  return circuits::inductive_reactance_ohm(frequency_mhz * 1e6, inductance_h) /
         ((1 - ratio) * (1 + ratio));
}

OuterSection::OuterSection(std::span<const Real> trap_places_m, const Conductor& conductor)
    : trap_places_m_{trap_places_m.begin(), trap_places_m.end()}, conductor_{conductor} {
  constexpr double factor = 1.3;
  const Real wavelength_m = conductor.wavelength_m();
  const Real longest_m = 0.26 * wavelength_m;
  for (Real length_m = 0.002 * wavelength_m; length_m < longest_m; length_m *= factor) {
    tried_.push_back({length_m, ports(length_m)});
  }
  tried_.push_back({longest_m, ports(longest_m)});
}

WirePorts OuterSection::ports(Real length_m) const {
  std::vector<Real> places_m = trap_places_m_;
  places_m.push_back(places_m.back() + length_m);
  return dipole_ports(places_m, conductor_);
}

std::optional<Real> OuterSection::length_m(std::span<const Real> trap_reactances_ohm) const {
  const auto resonant = std::ranges::find_if(tried_, [&](const Tried& tried) {
    return reactance_ohm(tried.ports, trap_reactances_ohm) >= 0;
  });
  if (resonant == tried_.begin() || resonant == tried_.end()) {
    return std::nullopt;
  }
  return root_between(std::prev(resonant)->length_m, resonant->length_m, [&](Real length_m) {
    return reactance_ohm(ports(length_m), trap_reactances_ohm);
  });
}

std::optional<std::vector<TrapSection>> trap_dipole(std::span<const Real> frequencies_mhz,
                                                    std::span<const Real> capacitances_pf,
                                                    Real diameter_mm) {
  std::vector<TrapSection> sections;
  std::vector<Real> places_m;
  for (std::size_t band = 0; band < frequencies_mhz.size(); ++band) {
    const Conductor conductor{frequencies_mhz[band], diameter_mm};
    std::vector<Real> traps_ohm;
    for (const TrapSection& inner : sections) {
      traps_ohm.push_back(
          trap_reactance_ohm(conductor.frequency_mhz, inner.frequency_mhz, inner.inductance_h));
    }
    const std::optional<Real> length_m =
        band == 0 ? half_wave_arm_m(conductor)
                  : OuterSection{places_m, conductor}.length_m(traps_ohm);
    if (!length_m) {
      return std::nullopt;
    }
    places_m.push_back(band == 0 ? *length_m : places_m.back() + *length_m);
    Real inductance_h = 0;
    if (band < capacitances_pf.size()) {
      const Real frequency_hz = conductor.frequency_mhz * 1e6;
      inductance_h = circuits::inductance_of_reactance_h(
          frequency_hz,
          circuits::capacitive_reactance_ohm(frequency_hz, capacitances_pf[band] * 1e-12));
    }
    sections.push_back({conductor.frequency_mhz, *length_m, inductance_h,
                        dipole_impedance_ohm(places_m, traps_ohm, conductor).real()});
  }
  return sections;
}

Complex SinglePairDipole::impedance_ohm(Real frequency_mhz) const {
  const Conductor conductor{frequency_mhz, diameter_mm};
  if (frequency_mhz == bands.trap_mhz) {
    return dipole_impedance_ohm(inner_m, conductor);
  }
  return dipole_impedance_ohm(
      std::array{inner_m, inner_m + outer_m},
      std::array{trap_reactance_ohm(frequency_mhz, bands.trap_mhz, inductance_h)}, conductor);
}

std::optional<SinglePairDipole> single_pair_dipole(const ThreeBands& bands, Real diameter_mm) {
  constexpr double least_ohm = 60;
  constexpr double most_ohm = 1500;
  constexpr double factor = 1.1;
  const Real trap_hz = bands.trap_mhz * 1e6;
  const Real inner_m = half_wave_arm_m({bands.trap_mhz, diameter_mm});
  const OuterSection outer{std::array{inner_m}, {bands.low_mhz, diameter_mm}};
  const auto resonant_when_low = [&](Real trap_ohm) -> std::optional<SinglePairDipole> {
    const Real inductance_h = circuits::inductance_of_reactance_h(trap_hz, trap_ohm);
    const std::optional<Real> outer_m =
        outer.length_m(std::array{trap_reactance_ohm(bands.low_mhz, bands.trap_mhz, inductance_h)});
    if (!outer_m) {
      return std::nullopt;
    }
    return SinglePairDipole{bands,        diameter_mm,
                            inductance_h, circuits::capacitance_of_reactance_f(trap_hz, trap_ohm),
                            inner_m,      *outer_m};
  };
  const auto reactance_when_high_ohm = [&](const SinglePairDipole& dipole) {
    return dipole.impedance_ohm(bands.high_mhz).imaginary();
  };

  bool was_above_zero = false;
  Real last_ohm = 0;
  for (Real trap_ohm = least_ohm; last_ohm < most_ohm;
       last_ohm = trap_ohm, trap_ohm = std::min<Real>(trap_ohm * factor, most_ohm)) {
    const std::optional<SinglePairDipole> dipole = resonant_when_low(trap_ohm);
    if (!dipole) {
      return std::nullopt;
    }
    const bool is_above_zero = reactance_when_high_ohm(*dipole) > 0;
    if (was_above_zero && !is_above_zero) {
      return resonant_when_low(root_between(last_ohm, trap_ohm, [&](Real between_ohm) {
        const std::optional<SinglePairDipole> between = resonant_when_low(between_ohm);
        return between ? reactance_when_high_ohm(*between) : Real{-1};
      }));
    }
    was_above_zero = is_above_zero;
  }
  return std::nullopt;
}

}  // namespace eterlab::antennas
