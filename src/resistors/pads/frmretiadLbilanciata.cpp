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
        .wire({{shunt, bottom}, {right, bottom}})
        .mark({series, bottom + 1.9}, "R1a")
        .label(lblR1a, {series, bottom - 0.65}, ui::Schematic::Side::above);
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
