#include <optional>

#include "common/number_text.h"
#include "power/regulator_drawing.h"
#include "power/three_terminal_regulator.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::power {

namespace {

// The resistor that makes an adjustable regulator a source of constant current.
class frmlm317correntecost final : public ui::Window {
  ui::Label Label1{this, "Label1", "CORRENTE in mA"};
  ui::TextBox txtcorrente{this, "txtcorrente", ui::tooltip("corrente desiderata")};
  ui::Schematic drawing{this, "drawing", regulator_drawing::columns, regulator_drawing::rows};
  ui::Label Label3{drawing, "Label3", "2.200 microF"};
  ui::Label Label4{drawing, "Label4", "LM 317"};
  ui::Label Label5{drawing, "Label5", "carico"};
  ui::Label lblr1{drawing, "lblr1"};
  ui::Result lblrisultato{this, "lblrisultato"};
  ui::Note Label2{this, "Label2", "USARE IL PUNTO PER SEPARARE I DECIMALI"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmlm317correntecost()
      : Window{"frmlm317correntecost", " LM 317  COME GENERATORE DI CORRENTE COSTANTE"} {
    draw();
    arrange(ui::column(ui::form(field(Label1, txtcorrente)), drawing, lblrisultato, Label2,
                       ui::buttons(cmdcalcola, cmdesci)));

    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtcorrente = "100";
    cmdcalcola.click();
  }

 private:
  void draw() {
    using namespace regulator_drawing;
    constexpr double load_x = 60;
    constexpr double load_top_y = 15.5;
    constexpr double load_bottom_y = 20.5;
    constexpr double half_load = 4.5;
    draw_supply(drawing, "ADJ", Label3);
    drawing.label(Label4, name_place);
    drawing.resistor(output_pin, {load_x, supply_y})
        .wire({{load_x, supply_y}, {load_x, load_top_y}})
        .wire({reference_pin, {reference_pin.x, reference_y - 1}, {load_x, reference_y - 1}})
        .junction({load_x, reference_y - 1})
        .box({load_x - half_load, load_top_y}, {load_x + half_load, load_bottom_y})
        .wire({{load_x, load_bottom_y}, {load_x, ground_y}, ground});
    drawing.label(lblr1, {(output_pin.x + load_x) / 2, supply_y - 1}, ui::Schematic::Side::above)
        .label(Label5, {load_x, (load_top_y + load_bottom_y) / 2});
  }

  void cmdcalcola_click() {
    const Real current_ma = txtcorrente.number();
    const std::optional<Real> resistance_ohm = constant_current_resistor_ohm(current_ma);
    if (!resistance_ohm) {
      refuse(txtcorrente, "DATO NON CONGRUO");
      return;
    }
    const std::string resistance = fixed(*resistance_ohm, 1);
    lblr1 = resistance + " Ohm";
    lblrisultato = "PER OTTENERE " + plain(current_ma) + " mA LA RESISTENZA DEVE ESSERE  " +
                   resistance + " OHM";
  }
};

const ui::Registration<frmlm317correntecost> registration{"frmlm317correntecost"};

}  // namespace

}  // namespace eterlab::power
