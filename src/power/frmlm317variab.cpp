#include <array>

#include "common/number_text.h"
#include "power/regulator_circuits.h"
#include "power/regulator_drawing.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::power {

namespace {

constexpr std::array<int, 5> potentiometers_ohm{470, 1000, 2200, 4700, 10000};

// A bench supply: the resistors that make a potentiometer at hand sweep a range of voltages.
class frmlm317variab final : public ui::Calculator {
  ui::Input txtvmin{this,
                    "txtvmin",
                    "TENSIONE MINIMA in VOLT",
                    {.range = ui::Range{1.25, 37}, .prompt_name = "Label1"}};
  ui::Input txtvmax{this,
                    "txtvmax",
                    "TENSIONE MASSIMA in VOLT",
                    {.range = ui::Range{1.25, 37}, .prompt_name = "Label2"}};
  ui::Input txtcorrente{this,
                        "txtcorrente",
                        "CORRENTE MASSIMA in A",
                        {.range = ui::Range{0.001, 1.5}, .prompt_name = "Label3"}};
  ui::Frame Frame1{this, "Frame1", "POTENZIOMETRO"};
  ui::OptionArray Option1{
      Frame1, "Option1", {"470 Ohm", "1 kOhm", "2,2 kOhm", "4,7 kOhm", "10 kOhm"}};
  ui::Schematic drawing{this, "drawing", regulator_drawing::columns, regulator_drawing::rows};
  ui::Label Label6{drawing, "Label6", "2.200 microF"};
  ui::Label Label7{drawing, "Label7", "10 microF"};
  ui::Label Label8{drawing, "Label8", "220 microF"};
  ui::Value lblr1{drawing, "lblr1"};
  ui::Value lblr2{drawing, "lblr2"};
  ui::Value lblpot{drawing, "lblpot"};
  ui::Result lblcampo{this, "lblcampo"};
  ui::Result lblvin{this, "lblvin"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Result lblcorr{this, "lblcorr"};
  ui::Result lblcarico{this, "lblcarico"};
  ui::Note Label4{this, "Label4",
                  "CON IL POTENZIOMETRO A ZERO OHM LA TENSIONE E' LA MINIMA. IL CARICO MINIMO (UNA "
                  "RESISTENZA FISSA O UN LED) TIENE L'INTEGRATO IN REGOLAZIONE ANCHE A VUOTO. LA "
                  "TOLLERANZA DEL POTENZIOMETRO (FINO AL 20 %) SPOSTA LA TENSIONE MASSIMA: "
                  "MISURARLO"};

 public:
  frmlm317variab()
      : Calculator{"frmlm317variab", "ALIMENTATORE STABILIZZATO VARIABILE CON LM 317"} {
    name_hint("Label5", "USARE IL PUNTO PER SEPARARE I DECIMALI");
    Option1.preset(3);
    draw();
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtvmin, txtvmax, txtcorrente), ui::stretch()),
                Frame1.arrange(ui::column(ui::row(Option1[0], Option1[1], Option1[2]),
                                          ui::row(Option1[3], Option1[4], ui::stretch()))),
                ui::stretch()),
        drawing, lblcampo, lblvin, lblpotenza, lblcorr, lblcarico, Label4));
  }

  void show_example() override { fill_in({"5", "15", "1"}); }

 private:
  void draw() {
    using namespace regulator_drawing;
    using Side = ui::Schematic::Side;
    constexpr double potentiometer_y = 19;
    constexpr double slider_x = 46;
    draw_supply(drawing, "ADJ", Label6);
    draw_output(drawing, Label8);
    draw_protection(drawing, Label7);
    drawing.mark(name_place, "LM 317")
        .resistor({divider_x, supply_y}, {divider_x, reference_y})
        .named_beside("R1", lblr1, Side::right)
        .resistor({divider_x, reference_y}, {divider_x, potentiometer_y})
        .named_beside("R2", lblr2, Side::right)
        .potentiometer({divider_x, potentiometer_y}, {divider_x, ground_y}, {slider_x, ground_y})
        .junction({divider_x, supply_y})
        .junction({divider_x, reference_y})
        .junction({divider_x, ground_y})
        .junction({slider_x, ground_y})
        .mark({slider_x + 0.5, 20.6}, "P", Side::right)
        .label(lblpot, {slider_x + 0.5, 22.6}, Side::right);
  }

  void compute() override {
    const Real lowest_v = txtvmin.value();
    const Real highest_v = txtvmax.value();
    const Real wanted_a = txtcorrente.value();
    const Real potentiometer_ohm = potentiometers_ohm[static_cast<std::size_t>(Option1.selected())];
    constexpr double narrowest_range_v = 0.47;
    constexpr double least_divider_a = 0.001;
    constexpr double greatest_potentiometer_w = 0.25;
    constexpr double noise = 1e-9;
    require(highest_v > lowest_v, txtvmax, "DATO NON CONGRUO");
    require(highest_v - lowest_v >= narrowest_range_v - noise, txtvmax,
            "CAMPO TROPPO STRETTO: ALLARGARE LA DIFFERENZA TRA LE DUE TENSIONI");
    require((highest_v - lowest_v) / potentiometer_ohm >= least_divider_a - noise, txtvmax,
            "POTENZIOMETRO TROPPO GRANDE: SCEGLIERE UN VALORE MINORE");
    const VariableSupply supply = variable_supply({lowest_v, highest_v, potentiometer_ohm});
    require(supply.potentiometer_w <= greatest_potentiometer_w, txtvmax,
            "POTENZIOMETRO TROPPO PICCOLO: SCEGLIERE UN VALORE MAGGIORE");
    const Real input_v = variable_supply_input_v(highest_v);
    lblr1 = eng(supply.r1_ohm, "Ohm");
    lblr2 = supply.r2_ohm ? eng(*supply.r2_ohm, "Ohm") : "PONTICELLO";
    lblpot = eng(potentiometer_ohm, "Ohm");
    lblcampo = "CAMPO DI REGOLAZIONE DA " + fixed(supply.lowest_v, 2) + " A " +
               fixed(supply.highest_v, 2) + " V";
    lblvin = "TENSIONE DI INGRESSO = " + fixed(input_v, 1) + " V   (MASSIMA 40 V)";
    lblpotenza =
        "POTENZA MASSIMA SULL'INTEGRATO = " + fixed((input_v - lowest_v) * wanted_a, 1) + " W";
    lblcorr = "CORRENTE SEMPRE DISPONIBILE = " +
              fixed(always_available_a(input_v, lowest_v, wanted_a), 2) +
              " A CON DISSIPATORE DA 1 GRADO/W";
    lblcarico =
        "CARICO MINIMO DA LASCIARE COLLEGATO = " + fixed(1000 * supply.least_load_a, 1) + " mA";
  }
};

const ui::Registration<frmlm317variab> registration{"frmlm317variab"};

}  // namespace

}  // namespace eterlab::power
