#include <algorithm>
#include <array>

#include "common/number_text.h"
#include "resistors/series_resistor.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

struct LedTexts {
  std::string_view voltage;
  std::string_view least_supply;
};

// In the order of LedColour.
constexpr std::array<LedTexts, 6> texts{{
    {"LA TENSIONE DA APPLICARE AI DIODI ROSSI E' 1,8 VOLT.", "ALIMENTAZIONE MINIMA 1,8 VOLT "},
    {"LA TENSIONE DA APPLICARE AI DIODI VERDI E' 2 VOLT.", "ALIMENTAZIONE MINIMA 2 VOLT "},
    {"LA TENSIONE DA APPLICARE AI DIODI GIALLI E' 1,9 VOLT.", "ALIMENTAZIONE MINIMA 1,9 VOLT "},
    {"LA TENSIONE DA APPLICARE AI DIODI ARANCIO E' 2 VOLT.", "ALIMENTAZIONE MINIMA 2 VOLT "},
    {"LA TENSIONE DA APPLICARE AI DIODI BLU E' 3 VOLT.", "ALIMENTAZIONE MINIMA 3 VOLT "},
    {"LA TENSIONE DA APPLICARE AI DIODI BIANCHI E' 3 VOLT.", "ALIMENTAZIONE MINIMA 3 VOLT "},
}};

// The series resistor of a light-emitting diode, as the user types.
class frmled final : public ui::Window {
  ui::Frame Frame1{this, "Frame1", " Seleziona il tipo di led "};
  ui::OptionArray Option1{
      Frame1,
      "Option1",
      {"LED ROSSO", "LED VERDE", "LED GIALLO", "LED ARANCIO", "LED BLU", "LED BIANCO"}};
  ui::Label Label1{this, "Label1", "TENSIONE DI ALIMENTAZIONE in VOLT"};
  ui::TextBox txttensione{this, "txttensione", ui::tooltip("Inserire il valore della tensione")};
  ui::Schematic drawing{this, "drawing", 40, 15};
  ui::Label lbltensione{drawing, "lbltensione"};
  ui::Label lblohm{drawing, "lblohm"};
  ui::Label lblled{this, "lblled"};
  ui::Label lblvoltled{this, "lblvoltled"};
  ui::Note Label2{this, "Label2", "USARE IL PUNTO PER SEPARARE I DECIMALI"};
  ui::ExitButton cmdesci{this, "cmdesci"};

  Real forward_v_;

 public:
  frmled() : Window{"frmled", "ALIMENTAZIONE DIODI LED"} {
    draw();
    arrange(ui::column(
        ui::row(Frame1.arrange(Option1), ui::column(ui::form(field(Label1, txttensione)), drawing)),
        lblled, lblvoltled, Label2, ui::buttons(cmdesci)));

    Option1.on_click([this](int index) { Option1_click(index); });
    txttensione.on_change([this] { txttensione_change(); });
  }

  void show_example() override {
    Option1.click(0);
    txttensione = "12";
  }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double supply_y = 4;
    constexpr double ground_y = 12;
    constexpr double input_x = 3;
    constexpr double led_x = 30;
    drawing.terminal({input_x, supply_y})
        .mark({input_x - 1.5, supply_y}, "+")
        .resistor({input_x, supply_y}, {led_x, supply_y})
        .led({led_x, supply_y}, {led_x, ground_y})
        .ground({led_x, ground_y});
    drawing.label(lbltensione, {0, supply_y + 2}, Side::right)
        .label(lblohm, {(input_x + led_x) / 2, supply_y - 0.8}, Side::above);
  }

  void Option1_click(int index) {
    txttensione = "";
    forward_v_ = led_forward_v(static_cast<LedColour>(index));
    const LedTexts& led = texts[static_cast<std::size_t>(index)];
    lblled = led.voltage;
    lblvoltled = led.least_supply;
  }

  void txttensione_change() {
    if (txttensione.content().empty()) {
      lblohm.hide();
      lbltensione.hide();
      return;
    }
    constexpr double highest_supply_v = 100000;
    const Real supply_v = std::min(txttensione.number(), Real{highest_supply_v});
    lbltensione = plain(supply_v) + " V.";
    lblohm = "ohm " + plain(led_series_resistor_ohm(supply_v, forward_v_));
    lbltensione.show();
    lblohm.show();
  }
};

const ui::Registration<frmled> registration{"frmled"};

}  // namespace

}  // namespace eterlab::resistors
