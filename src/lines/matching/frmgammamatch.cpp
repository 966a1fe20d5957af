#include <string_view>

#include "common/number_text.h"
#include "lines/matching/gamma_match.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::lines {

namespace {

constexpr std::string_view one_decimal = "##0.#";

// The gamma match that feeds a half-wave radiator with coaxial cable.
class frmgammamatch final : public ui::Window {
  ui::Label Label6{this, "Label6", "FREQUENZA in MHz"};
  ui::TextBox txtfrequenza{this, "txtfrequenza"};
  ui::Schematic disegno{this, "disegno", 75, 22};
  ui::Label Label1{disegno, "Label1", "centro radiatore"};
  ui::Label Label2{disegno, "Label2", "discesa coax"};
  ui::Label Label4{disegno, "Label4", "isolatore"};
  ui::Label Label5{disegno, "Label5", "ponticello regolabile"};
  ui::Label lbllunghezza{disegno, "lbllunghezza", "STUB"};
  ui::Label lbldistanza{disegno, "lbldistanza"};
  ui::Label lblc{disegno, "lblc"};
  ui::Result lbllambda{this, "lbllambda"};
  ui::Result lblpf{this, "lblpf"};
  ui::Result lblcavo{this, "lblcavo"};
  ui::Note lbldiametri{this, "lbldiametri"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmgammamatch() : Window{"frmgammamatch", "ADATTATORE A GAMMA MATCH"} {
    draw();
    arrange(ui::column(ui::form(field(Label6, txtfrequenza)), disegno, lbllambda, lblpf, lblcavo,
                       lbldiametri, ui::buttons(cmdcalcola, cmdesci)));

    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtfrequenza = "14.2";
    cmdcalcola.click();
  }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double radiator = 3.5;
    constexpr double stub = 13;
    constexpr double shield = 12;       // goes to the centre of the radiator
    constexpr double inner = 15;        // conductor of the cable
    constexpr double jacket = 1.1;      // its distance from there
    constexpr double cable_end = 21.8;  // within the drawing with its whole stroke
    constexpr double near_end = 21;
    constexpr double insulator = 25;
    constexpr double spacing = 38;
    constexpr double strap = 62;
    disegno.rod({{2, radiator}, {73, radiator}})
        .dashed({{0, radiator}, {2, radiator}})
        .dashed({{73, radiator}, {75, radiator}})
        .rod({{near_end, stub}, {strap + 2, stub}})
        .wire({{strap, radiator}, {strap, stub}})
        .box({insulator, radiator}, {insulator + 1.2, stub})
        .box({inner - jacket, 16.5}, {inner + jacket, cable_end})
        .wire({{shield, radiator}, {shield, 17.5}, {inner - jacket, 17.5}})
        .wire({{inner, cable_end}, {inner, stub}})
        .capacitor({inner, stub}, {near_end, stub})
        .dimension({spacing, radiator + 0.3}, {spacing, stub - 0.3})
        .dimension({near_end, stub + 2}, {strap, stub + 2});

    disegno.label(Label1, {shield, radiator - 0.5}, above)
        .label(Label5, {strap, radiator - 0.5}, above)
        .label(Label4, {insulator + 1.2, 8}, right)
        .label(lbldistanza, {spacing, 7}, right)
        .label(lblc, {18, stub - 1.4}, above)
        .label(lbllunghezza, {50, stub - 0.3}, above)
        .label(Label2, {inner + 1, 19.5}, right);
  }

  void cmdcalcola_click() {
    const Real frequency_mhz = txtfrequenza.number();
    if (frequency_mhz <= 0) {
      refuse(txtfrequenza, "MANCA INPUT");
      return;
    }
    const GammaMatch match = gamma_match(frequency_mhz);
    lbllunghezza = "cm. " + pattern(match.rod_length_cm, one_decimal);
    lbldistanza = "spaziatura cm " + pattern(match.spacing_cm, one_decimal);
    lbllambda = "VALORE DI LAMBDA = mt. " + pattern(match.wavelength_m, one_decimal);
    lblpf = "CONDENSATORE = pF  " + plain(match.capacitance_pf);
    lblcavo =
        "USANDO L'RG 8/213 COME CONDENSATORE LA LUNGHEZZA E' cm. " + plain(match.cable_length_cm);
    lbldiametri = "IL DIAMETRO DEL RADIATORE E' 2 - 4 VOLTE IL DIAMETRO DELLO STUB";
    lblc = plain(match.capacitance_pf) + " pF";
  }
};

const ui::Registration<frmgammamatch> registration{"frmgammamatch"};

}  // namespace

}  // namespace eterlab::lines
