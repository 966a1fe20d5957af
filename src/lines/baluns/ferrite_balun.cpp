#include "lines/baluns/ferrite_balun.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include "common/complex.h"
#include "common/physics.h"
#include "common/rounding.h"
#include "lines/standing_wave.h"

namespace eterlab::lines {

namespace {

using coils::FerriteCore;

Real least_turns(const FerriteBalunTask& task) {
  const auto& [kind, core, frequency_hz, cable_ohm, power_w] = task;
  const Real least_ohm = traits_of(kind).least_impedance * cable_ohm;
  const Real for_impedance = sqrt(least_ohm / turn_impedance_ohm(core, frequency_hz));
  const Real voltage_v = sqrt(power_w * cable_ohm);
  const Real for_flux = voltage_v / greatest_winding_voltage_v(core, frequency_hz, 1);
  const Real for_heat =
      voltage_v * sqrt(turn_loss_conductance_s(core, frequency_hz) / greatest_core_loss_w(core));
  return std::max({rounded_up(for_impedance), rounded_up(for_flux), rounded_up(for_heat)});
}

Real greatest_wire_mm(const FerriteCore& core, Real strands) {
  constexpr double thickest_mm = 2;
  constexpr double used = 0.9 * pi;  // of the hole's edge over its diameter
  const Real fitting_mm = used * core.inner_diameter_mm / (strands + used);
  return rounded_down(10 * std::min<Real>(fitting_mm, thickest_mm)) / 10;
}

}  // namespace

const std::vector<FerriteCore>& balun_cores() {
  static const std::vector<FerriteCore> cores = [] {
    std::vector<FerriteCore> suitable;
    std::ranges::copy_if(coils::ferrite_cores(), std::back_inserter(suitable),
                         [](const FerriteCore& core) {
                           return core.name.starts_with("FT-") && !core.name.starts_with("FT-37-");
                         });
    return suitable;
  }();
  return cores;
}

FerriteBalunTraits traits_of(FerriteBalunKind kind) {
  static constexpr std::array<FerriteBalunTraits, 4> traits{
      {{2, 1, 1, 10}, {2, 4, 2, 10}, {2, 4, 2, 5}, {3, 9, 3, 5}}};
  return traits[static_cast<std::size_t>(kind)];
}

FerriteBalun ferrite_balun(const FerriteBalunTask& task) {
  constexpr double ends_mm = 100;
  const auto& [kind, core, frequency_hz, cable_ohm, power_w] = task;
  const Real turns = least_turns(task);
  const Real squared = turns * turns;
  const Complex winding_ohm = squared * relaxing_turn_impedance_ohm(core, frequency_hz);
  const Real flux_per_volt =
      sqrt(2) / (2 * pi * frequency_hz * effective_section_m2(core));  // of one turn
  const Real wire_mm = greatest_wire_mm(core, traits_of(kind).wires * turns);
  const Real turn_mm =
      2 * core.height_mm + core.outer_diameter_mm - core.inner_diameter_mm + 4 * wire_mm;
  return {
      .turns = turns,
      .inductance_h = squared * core.inductance_index_nh * 1e-9,
      .impedance_ohm = squared * turn_impedance_ohm(core, frequency_hz),
      .swr_at_lowest = standing_wave_ratio(parallel(Complex{cable_ohm}, winding_ohm), cable_ohm),
      .flux_density_t = flux_per_volt * sqrt(power_w * cable_ohm) / turns,
      .greatest_flux_density_t = flux_per_volt * greatest_winding_voltage_v(core, frequency_hz, 1),
      .greatest_wire_mm = wire_mm,
      .wire_length_cm = rounded_up((turns * turn_mm + ends_mm) / 10)};
}

}  // namespace eterlab::lines
