#include "coils/ferrite/ferrite_cores.h"

#include <algorithm>
#include <array>

#include "common/physics.h"

namespace eterlab::coils {

namespace {

// clang-format off
constexpr std::array<FerriteCore, 16> cores{{
    {"FT-37-43",        9.53,  4.75,  3.18, 800,  350},
    {"FT-50-43",       12.7,   7.15,  4.78, 800,  440},
    {"FT-82-43",       20.96, 13.2,   6.35, 800,  470},
    {"FT-114-43",      29,    19,     7.49, 800,  510},
    {"FT-140-43",      35.55, 23,    12.7,  800,  885},
    {"FT-240-43",      61,    35.55, 12.7,  800, 1075},
    {"FT-37-61",        9.53,  4.75,  3.18, 125,   55},
    {"FT-50-61",       12.7,   7.15,  4.78, 125,   68},
    {"FT-82-61",       20.96, 13.2,   6.35, 125,   73},
    {"FT-114-61",      29,    19,     7.49, 125,   79},
    {"FT-140-61",      35.55, 23,    12.7,  125,  140},
    {"FT-240-61",      61,    35.55, 12.7,  125,  170},
    {"TN9/6/3-4C65",    9,     6,     3,    125,   30},
    {"TN14/9/5-4C65",  14,     9,     5,    125,   55},
    {"TN23/14/7-4C65", 23,    14,     7,    125,   87},
    {"TN36/23/15-4C65",36,    23,    15,    125,  170},
}};
// clang-format on

/// Where the permeability begins to fall.
Real relaxation_hz(const FerriteCore& core) { return 4500e6 / core.initial_permeability; }

Real inductance_index_h(const FerriteCore& core) { return core.inductance_index_nh * 1e-9; }

/// Of mix 43, whose losses are those of its relaxation.
bool is_high_permeability(const FerriteCore& core) { return core.initial_permeability > 500; }

}  // namespace

std::span<const FerriteCore> ferrite_cores() { return cores; }

Real turn_impedance_ohm(const FerriteCore& core, Real frequency_hz) {
  return 2 * pi * frequency_hz * inductance_index_h(core) /
         hypot(1, frequency_hz / relaxation_hz(core));
}

Real turn_loss_conductance_s(const FerriteCore& core, Real frequency_hz) {
  const Real relaxation = relaxation_hz(core);
  const Real share =
      is_high_permeability(core) ? Real{1} : std::min(Real{1}, pow(frequency_hz / relaxation, 2.2));
  return share / (2 * pi * relaxation * inductance_index_h(core));
}

Real effective_section_m2(const FerriteCore& core) {
  const Real ratio = ln(core.outer_diameter_mm / core.inner_diameter_mm);
  const Real curvature = 2 / core.inner_diameter_mm - 2 / core.outer_diameter_mm;
  return core.height_mm * ratio * ratio / curvature * 1e-6;
}

Real greatest_winding_voltage_v(const FerriteCore& core, Real frequency_hz, Real turns) {
  const Real flux_density_t = std::min(Real{25e-3}, 15e-3 / sqrt(frequency_hz / 1e6));
  return 2 * pi * frequency_hz * turns * effective_section_m2(core) * flux_density_t / sqrt(2);
}

Real greatest_core_loss_w(const FerriteCore& core) {
  constexpr double greatest_w_per_mm2 = 0.1 / 100;
  const Real outer = core.outer_diameter_mm;
  const Real inner = core.inner_diameter_mm;
  const Real surface_mm2 =
      pi / 2 * (outer * outer - inner * inner) + pi * core.height_mm * (outer + inner);
  return greatest_w_per_mm2 * surface_mm2;
}

}  // namespace eterlab::coils
