#include "circuits/l_pad_window.h"
#include "common/number_text.h"

namespace eterlab::circuits {

namespace {

// The balanced minimum-loss pad: half of the series resistor stands in each leg.
class frmretiadLbilanciata final : public LPadWindow {
  ui::Label lblR1{schematic, "lblR1"};
  ui::Label lblR2{schematic, "lblR2"};
  ui::Label lblR1a{schematic, "lblR1a"};

 public:
  frmretiadLbilanciata() : LPadWindow{"frmretiadLbilanciata", "RETI AD ELLE   BILANCIATE"} {
    constexpr double shunt = 35;
    constexpr double series = (left + shunt) / 2;
    constexpr double middle = (top + bottom) / 2;
    schematic.resistor({left, top}, {shunt, top})
        .wire({{shunt, top}, {right, top}})
        .resistor({shunt, top}, {shunt, bottom})
        .resistor({left, bottom}, {shunt, bottom})
        .wire({{shunt, bottom}, {right, bottom}})
        .junction({shunt, top})
        .junction({shunt, bottom})
        .mark({series, top - 1.9}, "R1")
        .mark({shunt - 2.2, middle}, "R2")
        .mark({series, bottom + 1.9}, "R1a")
        .label(lblR1, {series, top + 0.65}, ui::Schematic::Side::below)
        .label(lblR2, {shunt + 0.65, middle}, ui::Schematic::Side::right)
        .label(lblR1a, {series, bottom - 0.65}, ui::Schematic::Side::above);
    arrange(ui::column(ui::form(field(lblZI, txtRH), field(lblZo, txtRL)), Label3, schematic,
                       lblperdita, ui::buttons(cmdcalcola, cmdesci)));
  }

 private:
  void write_resistors(const MinimumLossPad& pad) override {
    lblR1 = fixed(pad.series_ohm / 2, 1);
    lblR2 = fixed(pad.shunt_ohm, 1);
    lblR1a = fixed(pad.series_ohm / 2, 1);
  }
};

const ui::Registration<frmretiadLbilanciata> registration{"frmretiadLbilanciata"};

}  // namespace

}  // namespace eterlab::circuits
