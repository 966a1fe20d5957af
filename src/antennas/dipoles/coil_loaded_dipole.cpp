#include "antennas/dipoles/coil_loaded_dipole.h"

#include <array>
#include <numbers>

#include "circuits/impedance.h"

namespace eterlab::antennas {

namespace {

constexpr Complex coil_ohm(Real reactance_ohm) {
  return {reactance_ohm * (1 / loading_coil_q), reactance_ohm};
}

WirePorts ports(const CoilLoadedDipole& dipole) {
  return dipole_ports(std::array{dipole.coil_place_m, dipole.arm_m}, dipole.conductor);
}

Real reactance_ohm(const WirePorts& ports, Complex coil_ohm) {
  return ports.feed_impedance_ohm(std::array{coil_ohm}).imaginary();
}

/// At another frequency, where the coils are more or less in proportion.
Real reactance_ohm(const CoilLoadedDipole& dipole, Real coil_reactance_ohm, Real frequency_ratio) {
  CoilLoadedDipole other = dipole;
  other.conductor.frequency_mhz *= frequency_ratio;
  return reactance_ohm(ports(other), coil_ohm(coil_reactance_ohm * frequency_ratio));
}

Real efficiency(const WirePorts& ports, Real coil_reactance_ohm) {
  const std::array coils{coil_ohm(coil_reactance_ohm)};
  const Real current = abs(ports.load_currents(coils).front());
  const Real loss_ohm = 2 * coils[0].real() * current * current;
  return 1 - loss_ohm / ports.feed_impedance_ohm(coils).real();
}

}  // namespace

bool is_resonant_without_coils(const CoilLoadedDipole& dipole) {
  return reactance_ohm(ports(dipole), Complex{}) >= 0;
}

CoilLoading coil_loading(const CoilLoadedDipole& dipole) {
  const Real frequency_hz = dipole.conductor.frequency_mhz * 1e6;
  const WirePorts at_resonance = ports(dipole);
  const Real coil_reactance_ohm = at_resonance.resonating_reactance_ohm();
  const Real resistance_ohm =
      at_resonance.feed_impedance_ohm(std::array{coil_ohm(coil_reactance_ohm)}).real();
  constexpr double step = 0.001;
  const Real slope_ohm = (reactance_ohm(dipole, coil_reactance_ohm, 1 + step) -
                          reactance_ohm(dipole, coil_reactance_ohm, 1 - step)) /
                         (2 * step);
  const Real quality_factor = slope_ohm / (2 * resistance_ohm);
  return {.reactance_ohm = coil_reactance_ohm,
          .inductance_h = circuits::inductance_of_reactance_h(frequency_hz, coil_reactance_ohm),
          .resistance_ohm = resistance_ohm,
          .efficiency = efficiency(at_resonance, coil_reactance_ohm),
          .bandwidth_hz = frequency_hz / (std::numbers::sqrt2 * quality_factor)};
}

Real coil_loading_efficiency(const CoilLoadedDipole& dipole) {
  const WirePorts at_resonance = ports(dipole);
  if (reactance_ohm(at_resonance, Complex{}) >= 0) {
    return 1;
  }
  return efficiency(at_resonance, at_resonance.resonating_reactance_ohm());
}

}  // namespace eterlab::antennas
