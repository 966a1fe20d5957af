#include "common/number_text.h"
#include "resistors/pads/l_pad_window.h"

namespace eterlab::resistors {

namespace {

// The balanced minimum-loss pad: half of the series resistor stands in each leg.
class frmretiadLbilanciata final : public LPadWindow {
  ui::Label lblR1a{schematic, "lblR1a"};

 public:
  frmretiadLbilanciata() : LPadWindow{"frmretiadLbilanciata", "RETI AD ELLE   BILANCIATE"} {
    schematic.resistor({left, bottom}, {shunt, bottom})
        .named("R1a", lblR1a, ui::Schematic::Side::above)
        .wire({{shunt, bottom}, {right, bottom}});
    arrange(ui::column(ui::form(field(lblZI, txtRH), field(lblZo, txtRL)), Label3, schematic,
                       lblperdita, ui::buttons(cmdcalcola, cmdesci)));
  }

 private:
  void write_series_resistors(Real series_ohm) override {
    lblR1 = fixed(series_ohm / 2, 1);
    lblR1a = lblR1.content();
  }
};

const ui::Registration<frmretiadLbilanciata> registration{"frmretiadLbilanciata"};

}  // namespace

}  // namespace eterlab::resistors
