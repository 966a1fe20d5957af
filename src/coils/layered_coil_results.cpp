#include "coils/layered_coil_results.h"

#include "common/number_text.h"

namespace eterlab::coils {

LayeredCoilResults::LayeredCoilResults(ui::Parent parent)
    : lblspire{parent, "lblspire"},
      lblinduttanza{parent, "lblinduttanza"},
      lblstrati{parent, "lblstrati"},
      lblesterno{parent, "lblesterno"},
      lblfilo{parent, "lblfilo"},
      lblresistenza{parent, "lblresistenza"} {}

LayeredCoilResults::operator ui::Item() {
  return ui::column(lblspire, lblinduttanza, lblstrati, lblesterno, lblfilo, lblresistenza);
}

void LayeredCoilResults::show(const LayeredCoil& coil, int turns_per_layer, std::string_view size) {
  lblspire = "SPIRE = " + plain(coil.turns);
  lblinduttanza = "L = " + fixed(coil.inductance_h * 1e6, 2) + " uH";
  lblstrati =
      "STRATI = " + plain(coil.layers) + "  (" + plain(turns_per_layer) + " SPIRE PER STRATO)";
  lblesterno = size;
  lblfilo = "FILO NECESSARIO = " + fixed(coil.wire_length_m, 1) + " mt.";
  lblresistenza = "RESISTENZA CIRCA " + fixed(coil.resistance_ohm, 2) + " Ohm";
}

}  // namespace eterlab::coils
