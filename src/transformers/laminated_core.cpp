#include "transformers/laminated_core.h"

#include "common/physics.h"
#include "common/rounding.h"

namespace eterlab::transformers {

namespace {

constexpr double stacking_factor = 0.95;

}  // namespace

Real LaminatedCore::tongue_m() const { return sqrt(gross_section_cm2) / 100; }

Real LaminatedCore::iron_section_m2() const { return stacking_factor * tongue_m() * tongue_m(); }

Real LaminatedCore::iron_path_m() const { return 6 * tongue_m(); }

Real LaminatedCore::iron_mass_kg() const {
  constexpr double density_kg_per_m3 = 7650;
  return density_kg_per_m3 * iron_section_m2() * iron_path_m();
}

Real LaminatedCore::mean_turn_m() const { return (4 + pi / 2) * tongue_m(); }

Real LaminatedCore::copper_room_mm2() const {
  constexpr double filling = 0.30;
  constexpr double mm2_in_m2 = 1e6;
  return filling * 0.75 * tongue_m() * tongue_m() * mm2_in_m2;
}

Real LaminatedCore::tongue_to_buy_mm() const { return rounded_up(10 * sqrt(gross_section_cm2)); }

std::optional<LaminatedCore> smallest_core(const std::function<bool(const LaminatedCore&)>& suits,
                                           Real from_cm2) {
  constexpr double largest_cm2 = 50;
  for (Real tenths = rounded_up(10 * from_cm2); tenths <= 10 * largest_cm2; tenths += 1) {
    const LaminatedCore core{tenths / 10};
    if (suits(core)) {
      return core;
    }
  }
  return {};
}

}  // namespace eterlab::transformers
