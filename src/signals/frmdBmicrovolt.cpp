#include "common/number_text.h"
#include "signals/decibel_microvolt.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

constexpr int to_level = 0;
constexpr Real highest_level_dbuv = 120;

// Microvolt and decibels referred to one microvolt, turned into each other as the user types.
class frmdBmicrovolt final : public ui::Window {
  ui::Frame Frame1{this, "Frame1", " Opzioni di calcolo  "};
  ui::OptionArray Option1{
      Frame1, "Option1", {"da microvolt a dBmicrovolt", "da dBmicroV a microvolt"}};
  ui::Label lblinput{this, "lblinput"};
  ui::TextBox txtin{this, "txtin"};
  ui::Label lbloutput{this, "lbloutput"};
  ui::Result lblout{this, "lblout"};
  ui::Note Label2{this, "Label2", "usare il punto del tastierino numerico per i decimali"};
  ui::Note Label1{this, "Label1",
                  "Il dB microvolt E' UNA UNITA' DI MISURA, USATA IN CAMPO TELEVISIVO, CHE ESPRIME "
                  "IL GUADAGNO O L' ATTENUAZIONE IN TENSIONE SU DI UN CARICO DA 75 OHM."};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmdBmicrovolt() : Window{"frmdBmicrovolt", "dBmicrovolt RIFERITO AD IMPEDENZE DI 75 Ohm"} {
    lbloutput.reserve("CORRISPONDE A dBmicrovolt : ");
    lbloutput.hide();
    arrange(ui::column(Frame1.arrange(Option1),
                       ui::form(field(lblinput, txtin), field(lbloutput, lblout)), Label2, Label1,
                       ui::buttons(cmdesci)));

    Option1.on_click([this](int index) { Option1_click(index); });
    txtin.on_change([this] { txtin_change(); });
  }

  void load() override { Option1.click(to_level); }

  void show_example() override { txtin = "1000"; }

 private:
  void Option1_click(int index) {
    if (index == to_level) {
      lblinput = "DIGITARE I microvolt";
      lbloutput = "CORRISPONDE A dBmicrovolt : ";
    } else {
      lblinput = "DIGITARE I dBmicrovolt";
      lbloutput = "CORRISPONDE A microvolt";
    }
  }

  void txtin_change() {
    const Real value = txtin.number();
    if (Option1.selected() == to_level) {
      show_level(value);
    } else {
      show_voltage(value);
    }
    lbloutput.show();
  }

  void show_level(Real voltage_uv) {
    if (voltage_uv < 0) {
      refuse_negative();
    }
    lblout = plain(level_dbuv(voltage_uv > 0 ? voltage_uv : 1));
  }

  void show_voltage(Real level_dbuv) {
    if (level_dbuv > highest_level_dbuv) {
      refuse(txtin, "dBmicroV max = 120");
    } else if (level_dbuv < 0) {
      refuse_negative();
    } else {
      lblout = plain(voltage_uv(level_dbuv));
    }
  }

  void refuse_negative() { refuse(txtin, "NON ESISTONO VALORI NEGATIVI"); }
};

const ui::Registration<frmdBmicrovolt> registration{"frmdBmicrovolt"};

}  // namespace

}  // namespace eterlab::signals
