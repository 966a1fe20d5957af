#include "common/number_text.h"
#include "resistors/pads/l_pad_window.h"

namespace eterlab::resistors {

namespace {

// The unbalanced minimum-loss pad.
class frmretiadL final : public LPadWindow {
  ui::Note Label1{this, "Label1",
                  "La rete a L è la più semplice rete idonea ad adattare due impedenze diverse "};

 public:
  frmretiadL() : LPadWindow{"frmretiadL", "RETI AD ELLE"} {
    schematic.wire({{left, bottom}, {right, bottom}});
    arrange(ui::column(Label1, ui::form(field(lblZI, txtRH), field(lblZo, txtRL)), Label3,
                       schematic, lblperdita, ui::buttons(cmdcalcola, cmdesci)));
  }

 private:
  void write_series_resistors(Real series_ohm) override { lblR1 = fixed(series_ohm, 1); }
};

const ui::Registration<frmretiadL> registration{"frmretiadL"};

}  // namespace

}  // namespace eterlab::resistors
