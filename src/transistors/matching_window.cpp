#include "transistors/matching_window.h"

#include <string>

#include "common/number_text.h"
#include "common/rounding.h"

namespace eterlab::transistors {

MatchingWindow::MatchingWindow(std::string_view name, std::string_view title,
                               std::string_view hint_name, ui::TwipsPoint corner_beside_coils)
    : Calculator{name, title},
      cmdchiamabobine{*this,
                      "cmdchiamabobine",
                      "COSTRUZIONE BOBINE",
                      {"frmbobine", corner_beside_coils, {4100, 2800}}} {
  name_hint(hint_name);
}

void MatchingWindow::require_q(bool fulfils, Real least, ui::Input& txtq,
                               ui::Input& otherwise) const {
  if (fulfils) {
    return;
  }
  const Real told = rounded_down(least) + 1;
  require(told > txtq.range().highest, txtq, "Q TROPPO BASSO: USARE ALMENO " + fixed(told, 0));
  require(false, otherwise, "RAPPORTO TRA LE IMPEDENZE TROPPO GRANDE PER UNA SOLA RETE");
}

void MatchingWindow::draw_supply(ui::Schematic& drawing, ui::At node, std::string_view coil_name,
                                 ui::Value& coil, std::string_view capacitor) {
  using Side = ui::Schematic::Side;
  constexpr double supply_y = 4.5;
  constexpr double capacitor_bottom_y = 9.5;
  const double capacitor_x = node.x + 14;
  constexpr double coil_bottom_y = 13;
  drawing.inductor({node.x, supply_y}, {node.x, coil_bottom_y})
      .named(coil_name, coil)
      .wire({{node.x, coil_bottom_y}, node})
      .junction({node.x, supply_y})
      .wire({{node.x, 2}, {node.x, supply_y}, {capacitor_x, supply_y}})
      .terminal({node.x, 2})
      .named("+V", Side::right)
      .capacitor({capacitor_x, supply_y}, {capacitor_x, capacitor_bottom_y})
      .named(capacitor, Side::right)
      .ground({capacitor_x, capacitor_bottom_y});
}

void MatchingWindow::draw_final_stage(ui::Schematic& drawing, ui::At collector, double ground_y) {
  const ui::Transistor stage{{collector.x - 1, collector.y + 5.5}};
  const ui::At input{3, stage.base.y};
  const ui::At ground{stage.emitter.x, ground_y};
  drawing.junction(collector)
      .wire({collector, stage.collector})
      .npn(stage)
      .wire({input, stage.base})
      .terminal(input)
      .wire({stage.emitter, ground})
      .ground(ground);
}

}  // namespace eterlab::transistors
