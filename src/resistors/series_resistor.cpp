#include "resistors/series_resistor.h"

#include <array>

#include "common/number_text.h"

namespace eterlab::resistors {

int zener_standing_ma(ZenerClass zener) {
  constexpr std::array<int, 3> standing_ma{20, 30, 40};
  return standing_ma[static_cast<std::size_t>(zener)];
}

ZenerResistor zener_series_resistor(Real supply_v, Real zener_v, Real load_ma, int standing_ma) {
  const Real current_ma = load_ma + standing_ma;
  const Real drop_v = supply_v - zener_v;
  return {round_to_int16(drop_v / current_ma * 1000), Single{current_ma * drop_v / 1000}};
}

Real led_forward_v(LedColour colour) {
  constexpr std::array<double, 6> forward_v{1.8, 2, 1.9, 2, 3, 3};
  return forward_v[static_cast<std::size_t>(colour)];
}

Single led_series_resistor_ohm(Real supply_v, Real forward_v) {
  constexpr double led_a = 0.01;
  return Single{rounded((supply_v - forward_v) / led_a, 2)};
}

}  // namespace eterlab::resistors
