#include "circuits/l_pad_window.h"
#include "common/number_text.h"

namespace eterlab::circuits {

namespace {

// The unbalanced minimum-loss pad.
class frmretiadL final : public LPadWindow {
  ui::Note Label1{this, "Label1",
                  "La rete a L è la più semplice rete idonea ad adattare due impedenze diverse "};
  ui::Label lblR1{schematic, "lblR1"};
  ui::Label lblR2{schematic, "lblR2"};

 public:
  frmretiadL() : LPadWindow{"frmretiadL", "RETI AD ELLE"} {
    constexpr double shunt = 35;
    constexpr double series = (left + shunt) / 2;
    constexpr double middle = (top + bottom) / 2;
    schematic.resistor({left, top}, {shunt, top})
        .wire({{shunt, top}, {right, top}})
        .resistor({shunt, top}, {shunt, bottom})
        .wire({{left, bottom}, {right, bottom}})
        .junction({shunt, top})
        .junction({shunt, bottom})
        .mark({series, top - 1.9}, "R1")
        .mark({shunt - 2.2, middle}, "R2")
        .label(lblR1, {series, top + 0.65}, ui::Schematic::Side::below)
        .label(lblR2, {shunt + 0.65, middle}, ui::Schematic::Side::right);
    arrange(ui::column(Label1, ui::form(field(lblZI, txtRH), field(lblZo, txtRL)), Label3,
                       schematic, lblperdita, ui::buttons(cmdcalcola, cmdesci)));
  }

 private:
  void write_resistors(const MinimumLossPad& pad) override {
    lblR1 = fixed(pad.series_ohm, 1);
    lblR2 = fixed(pad.shunt_ohm, 1);
  }
};

const ui::Registration<frmretiadL> registration{"frmretiadL"};

}  // namespace

}  // namespace eterlab::circuits
