#include "common/number_text.h"
#include "ui/ui.h"
#include "units/wire_gauge.h"

namespace eterlab::units {

namespace {

// A wire's diameter from its American wire gauge, as the user types.
class frmawg final : public ui::Window {
  ui::Label lblinput{this, "lblinput", "DIAMETRO DEL FILO ESPRESSO IN  AWG"};
  ui::TextBox txtawg{this, "txtawg", ui::tooltip("VALORI AMMESSI DA 0 a  80")};
  ui::Result lbld{this, "lbld"};
  ui::Note lbl2{this, "lbl2",
                "VALORI PARTICOLARI:    AWG  OOOO = 11,684 mm     AWG  OOO = 10,45 mm      "
                "AWG  OO = 9,266 mm  "};
  ui::ExitButton cmdesci{this, "cmdesci", "CHIUDI"};

 public:
  frmawg() : Window{"frmawg", "CONVERSIONE VALORE AMERICAN WIRE GAUGE IN MILLIMETRI"} {
    lbl2.hide();
    arrange(ui::column(ui::form(field(lblinput, txtawg)), lbld, lbl2, ui::buttons(cmdesci)), 96);

    txtawg.on_change([this] { txtawg_change(); });
  }

  void show_example() override { txtawg = "24"; }

 private:
  void txtawg_change() {
    constexpr int highest_gauge = 80;
    const Real gauge = txtawg.number();
    if (gauge > highest_gauge) {
      txtawg = std::to_string(highest_gauge);  // a change of its own, which computes
      return;
    }
    lbld = "IL DIAMETRO DEL FILO CORRISPONDE A " + fixed(awg_diameter_mm(gauge), 3) + " MILLIMETRI";
    lbl2.show();
  }
};

const ui::Registration<frmawg> registration{"frmawg"};

}  // namespace

}  // namespace eterlab::units
