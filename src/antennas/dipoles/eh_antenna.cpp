#include "antennas/dipoles/eh_antenna.h"

#include <algorithm>
#include <numbers>

#include "coils/solenoid.h"
#include "common/numerics.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

constexpr double sqrt2 = std::numbers::sqrt2;
constexpr int most_turns = 300;
constexpr double cable_ohm = 50;
constexpr double told_power_w = 100;

Real squared(Real x) { return x * x; }

Real omega_of(const EhAntenna& antenna) { return 2 * pi * antenna.frequency_hz; }

Real gap_capacitance_f(const EhAntenna& antenna) {
  const Real slenderness = antenna.cylinder_m / antenna.diameter_m;
  return vacuum_permittivity_f_per_m * antenna.diameter_m * (2.42 + 2.70 * pow(slenderness, 0.7));
}

Real radiation_ohm(const EhAntenna& antenna) {
  const Real distance_m = (antenna.cylinder_m + antenna.diameter_m) *
                          (0.888 + 0.070 * antenna.diameter_m / antenna.cylinder_m);
  const Real wavelengths = distance_m * antenna.frequency_hz / speed_of_light_m_per_s;
  return 20 * squared(2 * pi * wavelengths);
}

/// Of a part of the coil, or of all of it.
Real turns_inductance_h(const EhAntenna& antenna, Real turns) {
  if (turns <= 0) {
    return 0;
  }
  return coils::handbook_solenoid_inductance_h(antenna.diameter_m / 2, turns * antenna.pitch_m,
                                               turns);
}

/// In a circuit with so much reactance of each sign.
EhRadiation radiation_of(const EhAntenna& antenna, Real radiation_ohm, Real resistance_ohm,
                         Real reactances_ohm, Real voltage_ohm) {
  return {.efficiency = radiation_ohm / resistance_ohm,
          .bandwidth_hz = antenna.frequency_hz * sqrt2 * resistance_ohm / reactances_ohm,
          .peak_v_at_100_w = voltage_ohm * sqrt(2 * told_power_w / resistance_ohm)};
}

}  // namespace

Real eh_length_m(const EhAntenna& antenna) { return 2 * antenna.cylinder_m + antenna.diameter_m; }

std::optional<EhBody> eh_body(const EhAntenna& antenna) {
  const Real gap_f = gap_capacitance_f(antenna);
  for (int turns = 1; turns <= most_turns; ++turns) {
    const Real length_m = turns * antenna.pitch_m;
    const Real coil_f = coils::solenoid_self_capacitance_f(antenna.diameter_m, length_m);
    const Real inductance_h = turns_inductance_h(antenna, turns);
    if (squared(omega_of(antenna)) * inductance_h * (gap_f + coil_f) >= 1) {
      return EhBody{gap_f, radiation_ohm(antenna), turns, length_m, coil_f};
    }
  }
  return {};
}

std::optional<EhStar> eh_star(const EhAntenna& antenna, const EhBody& body) {
  const Real omega = omega_of(antenna);
  const Real whole_f = body.gap_capacitance_f + body.coil_capacitance_f;
  const Real reactance_ohm = 1 / (omega * whole_f);
  const Real radiation_ohm = squared(body.gap_capacitance_f / whole_f) * body.radiation_ohm;
  const Real resistance_ohm = reactance_ohm / antenna.coil_q + radiation_ohm;

  // Above zero where the turns below the tap are more than those that show 50 ohm.
  const auto excess = [&](Real turns_to_tap) {
    const Real below_h = turns_inductance_h(antenna, turns_to_tap);
    const Real coupled_h = (turns_inductance_h(antenna, body.turns) + below_h -
                            turns_inductance_h(antenna, body.turns - turns_to_tap)) /
                           2;
    return squared(omega * coupled_h) -
           cable_ohm * resistance_ohm * (1 + squared(omega * below_h / cable_ohm));
  };
  if (excess(body.turns) <= 0) {
    return {};
  }
  const Real turns_to_tap = root_between(0, body.turns, excess);
  return EhStar{.inductance_h = reactance_ohm / omega,
                .tap_wire_m = turns_to_tap * pi * antenna.diameter_m,
                .radiation = radiation_of(antenna, radiation_ohm, resistance_ohm, 2 * reactance_ohm,
                                          reactance_ohm)};
}

std::optional<EhPhasing> eh_phasing(const EhAntenna& antenna, const EhBody& body) {
  const Real omega = omega_of(antenna);
  const Real antenna_ohm = 1 / (omega * body.gap_capacitance_f);
  // The coil seen with its own capacitance: one of more inductance, and of more loss.
  const auto rise = [&](Real coil_ohm) { return 1 + omega * body.coil_capacitance_f * coil_ohm; };
  const auto resistance = [&](Real coil_ohm) {
    return body.radiation_ohm + coil_ohm * rise(coil_ohm) / antenna.coil_q;
  };
  if (resistance(antenna_ohm) >= cable_ohm) {
    return {};
  }
  const auto excess = [&](Real coil_ohm) {
    const Real branch_ohm = std::min(resistance(coil_ohm), Real{cable_ohm});
    return coil_ohm - antenna_ohm - sqrt(branch_ohm * (cable_ohm - branch_ohm));
  };
  // The root in it is half of the cable's impedance at most.
  const Real coil_ohm = root_between(antenna_ohm, antenna_ohm + cable_ohm, excess);
  const Real resistance_ohm = resistance(coil_ohm);
  const Real q = sqrt(cable_ohm / resistance_ohm - 1);
  return EhPhasing{
      .inductance_h = coil_ohm / (omega * rise(coil_ohm)),
      .capacitance_f = q / (cable_ohm * omega),
      .resistance_ohm = resistance_ohm,
      .phase_degrees = atan(q) * 180 / pi,
      .radiation = radiation_of(antenna, body.radiation_ohm, resistance_ohm,
                                antenna_ohm + coil_ohm * (2 * rise(coil_ohm) - 1), antenna_ohm)};
}

}  // namespace eterlab::antennas
