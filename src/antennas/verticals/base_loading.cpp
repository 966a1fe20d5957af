#include "antennas/verticals/base_loading.h"

#include <numbers>

#include "common/numerics.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

constexpr double coil_q = 200;

Real angular_frequency_mhz(const BaseLoading& loading) { return 2 * pi * loading.frequency_mhz; }

/// The parts of the coil, each with the coupling added.
struct TapNetwork {
  Real to_ground_uh;
  Real to_whip_uh;

  [[nodiscard]] Real whole_uh() const { return to_ground_uh + to_whip_uh; }
};

/// What makes 50 ohm of the whip, with -M in the lead to the cable.
TapNetwork tap_network(const BaseLoading& loading, Real mutual_uh) {
  const Real w = angular_frequency_mhz(loading);
  const Real r = loading.base_resistance_ohm;
  const Real mutual_ohm = w * mutual_uh;
  const Real magnitude = cable_impedance_ohm * cable_impedance_ohm + mutual_ohm * mutual_ohm;
  const Real conductance_s = cable_impedance_ohm / magnitude;
  const Real whip_ohm = -sqrt(r / conductance_s - r * r);  // with the upper part of the coil
  const Real susceptance_s = mutual_ohm / magnitude - whip_ohm / (r * r + whip_ohm * whip_ohm);
  return {1 / (w * susceptance_s), (loading.whip_reactance_ohm + whip_ohm) / w};
}

/// Turns below the tap, by how much the lower part has more than the upper one.
Real turns_below_tap(const coils::SpacedCoil& coil, const TapNetwork& network) {
  const auto sheet_uh = [&coil](Real turns) {
    return coils::wheeler_sheet_inductance_uh(turns, coil.diameter_mm, coil.pitch_mm);
  };
  const Real correction_uh = coils::rosa_correction_uh(coil.diameter_mm, coil.turns);
  return root_between(0, coil.turns, [&](Real below) {
    const Real above = coil.turns - below;
    return sheet_uh(below) - sheet_uh(above) - correction_uh * (below - above) -
           (network.to_ground_uh - network.to_whip_uh);
  });
}

/// Between the turns below and above a tap.
Real mutual_inductance_uh(const TappedCoil& tapped) {
  const coils::SpacedCoil& coil = tapped.coil;
  const auto sheet_uh = [&coil](Real turns) {
    return coils::wheeler_sheet_inductance_uh(turns, coil.diameter_mm, coil.pitch_mm);
  };
  return (sheet_uh(coil.turns) - sheet_uh(tapped.tap_turns) -
          sheet_uh(coil.turns - tapped.tap_turns)) /
         2;
}

}  // namespace

BaseLoading base_loading(const Whip& whip, Real frequency_mhz, Real ground_resistance_ohm) {
  BaseLoading loading;
  loading.frequency_mhz = frequency_mhz;
  loading.whip_reactance_ohm = capacitive_reactance_ohm(whip, frequency_mhz);
  loading.radiation_resistance_ohm =
      whip_radiation_resistance_ohm(electrical_height_rad(whip, frequency_mhz));
  loading.base_resistance_ohm = loading.radiation_resistance_ohm + ground_resistance_ohm +
                                loading.whip_reactance_ohm / coil_q;
  loading.inductance_uh = loading.whip_reactance_ohm / angular_frequency_mhz(loading);
  loading.efficiency = loading.radiation_resistance_ohm / loading.base_resistance_ohm;
  const Real q = (loading.whip_reactance_ohm + reactance_slope_ohm(whip, frequency_mhz)) /
                 (2 * loading.base_resistance_ohm);
  loading.bandwidth_mhz = frequency_mhz / (q * std::numbers::sqrt2);
  return loading;
}

bool is_below_cable_impedance(const BaseLoading& loading) {
  return loading.base_resistance_ohm < 48;
}

bool can_be_tapped(const BaseLoading& loading) {
  const Real r = loading.base_resistance_ohm;
  return loading.whip_reactance_ohm >= 3 * sqrt(r * (cable_impedance_ohm - r));
}

std::optional<int> tapped_coil_turns(const BaseLoading& loading, Real coil_diameter_mm) {
  const auto coil = coils::spaced_coil(tap_network(loading, 0).whole_uh(), coil_diameter_mm);
  return coil ? std::optional{coil->turns} : std::nullopt;
}

TappedCoil tapped_coil(const BaseLoading& loading, Real coil_diameter_mm, int turns) {
  constexpr int most_rounds = 500;
  constexpr double tolerance = 1e-9;
  TappedCoil tapped;
  Real mutual_uh = 0;
  for (int round = 0; round < most_rounds; ++round) {
    const TapNetwork network = tap_network(loading, mutual_uh);
    tapped.coil = coils::spaced_to_inductance(network.whole_uh(), coil_diameter_mm, turns);
    tapped.tap_turns = turns_below_tap(tapped.coil, network);
    const Real before_uh = mutual_uh;
    mutual_uh = mutual_inductance_uh(tapped);
    if (abs(mutual_uh - before_uh) < tolerance * network.whole_uh()) {
      break;
    }
  }
  return tapped;
}

}  // namespace eterlab::antennas
