#include "common/number_text.h"
#include "ui/ui.h"
#include "units/mils.h"

namespace eterlab::units {

namespace {

constexpr int to_mils = 0;
constexpr int to_mm = 1;
constexpr int width_of_a_result = 76;

// Millimetres and mils, turned into each other as the user types.
class frmmils final : public ui::Window {
  ui::Frame Frame1{this, "Frame1", " Opzioni "};
  ui::OptionArray Option1{Frame1, "Option1", {"DA MILLIMETRI A MILS", "DA MILS A MILLIMETRI"}};
  ui::Label lblinput{this, "lblinput", {}, ui::tooltip("USA IL PUNTO PER SEPARARE I DECIMALI")};
  ui::TextBox txtinput{this, "txtinput", ui::tooltip("USA IL PUNTO PER SEPARARE I DECIMALI")};
  ui::Result lblout{this, "lblout"};
  ui::Note Label1{this, "Label1", "UN MIL CORRISPONDE A UN MILLESIMO DI POLLICE"};
  ui::Note Label3{this, "Label3", "PER SEPARARE I DECIMALI USARE IL PUNTO"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmmils() : Window{"frmmils", "CONVERSIONE DA MILLIMETRI IN MILS E DA MILS IN MILLIMETRI"} {
    lblinput.reserve("INSERIRE MILLIMETRI");
    arrange(ui::column(Frame1.arrange(Option1), ui::form(field(lblinput, txtinput)), lblout, Label1,
                       Label3, ui::buttons(cmdesci)),
            width_of_a_result);

    Option1.on_click([this](int index) { Option1_click(index); });
    txtinput.on_change([this] { txtinput_change(); });
  }

  void load() override { Option1.click(to_mils); }

  void show_example() override {
    Option1.click(to_mm);
    txtinput = "62.5";
  }

 private:
  void Option1_click(int index) {
    lblinput = index == to_mm ? "INSERIRE MILS" : "INSERIRE MILLIMETRI";
    txtinput = "";  // what stood there was of the other unit; its result goes with it
  }

  void txtinput_change() {
    const Real length = txtinput.number();
    if (length <= 0) {
      txtinput.setFocus();
      lblout.hide();
      return;
    }
    if (Option1.selected() == to_mils) {
      lblout = "CORRISPONDENTE A MILS : " + plain(mils_from_mm(length));
    } else {
      const MetricLength metric = metric_from_mils(length);
      lblout = "CORRISPONDENTI A mm : " + plain(metric.mm) + "   PARI A " +
               plain(metric.micrometres) + " microMETRI";
    }
    lblout.show();
  }
};

const ui::Registration<frmmils> registration{"frmmils"};

}  // namespace

}  // namespace eterlab::units
