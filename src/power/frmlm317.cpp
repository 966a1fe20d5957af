#include <optional>

#include "common/number_text.h"
#include "power/regulator_drawing.h"
#include "power/three_terminal_regulator.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::power {

namespace {

// The divider of an adjustable regulator for an output voltage, and the input to feed it with.
class frmlm317 final : public ui::Window {
  ui::Label Label1{this, "Label1", "TENSIONE DI USCITA in VOLT"};
  ui::TextBox txtvu{this, "txtvu", ui::tooltip("tensione desiderata in uscita")};
  ui::Schematic drawing{this, "drawing", regulator_drawing::columns, regulator_drawing::rows};
  ui::Label Label3{drawing, "Label3", "2.200 microF"};
  ui::Label Label4{drawing, "Label4", "220 microF"};
  ui::Label Label5{drawing, "Label5", "10 microF"};
  ui::Label Label6{drawing, "Label6", "LM 317"};
  ui::Label lblr1{drawing, "lblr1"};
  ui::Label lblr2{drawing, "lblr2"};
  ui::Label lblvin{drawing, "lblvin"};
  ui::Label lblvout{drawing, "lblvout"};
  ui::Result lblvmax{this, "lblvmax"};
  ui::Note Label12{this, "Label12",
                   "UTILIZZANDO L' INTEGRATO LM 337,    -  PER  TENSIONI NEGATIVE -  SI DOVRA'  "
                   "INVERTIRE LA POLARITA'  DEI DIODI E DEGLI ELETTROLITICI"};
  ui::Note Label2{this, "Label2", "USARE IL PUNTO PER SEPARARE I DECIMALI"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmlm317() : Window{"frmlm317", "INTEGRATI PER TENSIONI VARIABILI DELLA SERIE LM 317   LM 337"} {
    draw();
    arrange(ui::column(ui::form(field(Label1, txtvu)), drawing, lblvmax, Label12, Label2,
                       ui::buttons(cmdcalcola, cmdesci)));

    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtvu = "12";
    cmdcalcola.click();
  }

 private:
  void draw() {
    regulator_drawing::draw_supply(drawing, "ADJ", Label3);
    regulator_drawing::draw_divider_and_output(drawing, {lblr1, lblr2, Label4, lblvin, lblvout});
    regulator_drawing::draw_protection(drawing, Label5);
    drawing.label(Label6, regulator_drawing::name_place);
  }

  void cmdcalcola_click() {
    const Real output_v = txtvu.number();
    const std::optional<RegulatorDesign> design = adjustable_regulator(output_v);
    if (!design) {
      refuse(txtvu, "DATO NON CONGRUO");
      return;
    }
    const std::string input_v = plain(design->input_v);
    lblr1 = plain(design->r1_ohm) + " Ohm";
    lblr2 = plain(design->r2_ohm) + " Ohm";
    lblvout = plain(output_v) + " Volt Out";
    lblvin = input_v + " Volt Input";
    lblvmax = "LA TENSIONE OTTIMALE IN ENTRATA E' " + input_v +
              " VOLT   -  LA MASSIMA APPLICABILE E' " +
              plain(adjustable_regulator_highest_input_v(output_v)) + " VOLT";
  }
};

const ui::Registration<frmlm317> registration{"frmlm317"};

}  // namespace

}  // namespace eterlab::power
