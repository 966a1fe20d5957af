#include <string>

#include "common/number_text.h"
#include "common/physics.h"
#include "common/rounding.h"
#include "lines/baluns/air_balun.h"
#include "lines/section_window.h"
#include "ui/measures.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

constexpr ui::Range choke_frequency_range_mhz{0.5, 150};

// Turns of the feed cable that keep current off its braid.
class frmbalunchoke final : public LineWindow {
  ui::Input txtfmin{this,
                    "txtfmin",
                    "FREQUENZA MINIMA in MHz",
                    {.range = choke_frequency_range_mhz, .prompt_name = "Label1"}};
  ui::Input txtfmax{this,
                    "txtfmax",
                    "FREQUENZA MASSIMA in MHz",
                    {.range = choke_frequency_range_mhz, .prompt_name = "Label2"}};
  ui::Input txtz0{this,
                  "txtz0",
                  "IMPEDENZA DEL CAVO in OHM",
                  {.range = balun_impedance_range_ohm, .prompt_name = "Label3"}};
  ui::Input txtcavo{this,
                    "txtcavo",
                    "DIAMETRO ESTERNO DEL CAVO in mm",
                    {.range = ui::Range{1, 30}, .prompt_name = "Label4"}};
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEL SUPPORTO in mm",
                        {.range = ui::Range{10, 1000}, .prompt_name = "Label5"}};
  ui::Schematic drawing{this, "drawing", 40, 32};
  ui::Value lbln{drawing, "lbln"};
  ui::Value lblavv{drawing, "lblavv"};
  ui::Value lblvaloresupporto{drawing, "lblvaloresupporto"};
  ui::Result lblspire{this, "lblspire"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lblcavo{this, "lblcavo"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Result lblrisonanza{this, "lblrisonanza"};
  ui::Result lblgiudizio{this, "lblgiudizio"};

 public:
  frmbalunchoke() : LineWindow{"frmbalunchoke", "BALUN CHOKE CON CAVO COASSIALE AVVOLTO"} {
    draw();
    lay_out(ui::column(ui::row(ui::column(ui::form(txtfmin, txtfmax, txtz0, txtcavo, txtdiametro),
                                          lblspire, lblinduttanza, lblreattanza, lblcavo,
                                          lbllunghezza, lblrisonanza, ui::stretch()),
                               drawing),
                       lblgiudizio),
            {}, 110);
  }

  void show_example() override { fill_in({"7", "14.35", "50", "5", "110"}); }

 private:
  void draw() {
    constexpr double axis = 20;
    constexpr double radius = 4;
    constexpr double top = 10;
    constexpr double bottom = 20;
    constexpr double lead = 7;
    constexpr int turns = 6;
    drawing.box({axis - radius, 5}, {axis + radius, 25})
        .winding({axis, top}, {axis, bottom}, 2 * radius + 0.8, turns)
        .wire({{axis - radius - 0.4, top}, {lead, top}, {lead, 3}})
        .mark({lead, 3}, "ANTENNA", Side::above)
        .wire({{axis - radius - 0.4, bottom}, {lead, bottom}, {lead, 28}})
        .mark({lead, 28}, "DISCESA", Side::below)
        .label(lbln, {14, (top + bottom) / 2}, Side::left);
    measure_height(drawing, {axis + radius + 1, top}, {axis + radius + 1, bottom}, 27, lblavv,
                   Side::right);
    measure_width(drawing, {axis - radius, 25.5}, {axis + radius, 25.5}, 28, lblvaloresupporto,
                  Side::below);
  }

  void compute() override {
    const Real lowest_mhz = txtfmin.value();
    const Real cable_mm = txtcavo.value();
    const Real former_mm = txtdiametro.value();
    require(txtfmax.value() >= lowest_mhz, txtfmax, "LA FREQUENZA MASSIMA E' MINORE DELLA MINIMA");
    const Real least_former_mm = 6 * cable_mm;  // its bending radius
    require(reaches(former_mm, least_former_mm), txtdiametro,
            "SUPPORTO TROPPO STRETTO PER IL CAVO: ALMENO " + fixed_up(least_former_mm, 0) + " mm");
    const auto choke = cable_choke(lowest_mhz, txtz0.value(), former_mm, cable_mm);
    require(choke.has_value(), txtdiametro, "OLTRE 50 SPIRE: AUMENTARE IL DIAMETRO DEL SUPPORTO");
    const Real inductance_h = choke->inductance_h();
    const std::string turns = plain(choke->turns);
    const std::string length = fixed(1000 * choke->length_m(), 0) + " mm";
    lblspire = "SPIRE = " + turns;
    lblinduttanza = "INDUTTANZA = " + fixed(1e6 * inductance_h, 2) + " uH";
    lblreattanza =
        "REATTANZA ALLA FREQUENZA MINIMA = " + fixed(2 * pi * 1e6 * lowest_mhz * inductance_h, 0) +
        " Ohm";
    lblcavo = "LUNGHEZZA DEL CAVO AVVOLTO = " + fixed(100 * choke->wire_length_m(), 0) + " cm.";
    lbllunghezza = "LUNGHEZZA DELL'AVVOLGIMENTO = " + length;
    tell_resonance(choke->self_resonance_hz() / 1e6);
    lbln = turns + " SPIRE";
    lblavv = length;
    lblvaloresupporto = millimetres(former_mm);
  }

  void tell_resonance(Real resonance_mhz) {
    const std::string frequency = fixed(resonance_mhz, 1) + " MHz";
    lblrisonanza = "AUTORISONANZA STIMATA = " + frequency;
    if (resonance_mhz >= txtfmax.value()) {
      lblgiudizio = "COPRE TUTTA LA GAMMA RICHIESTA";
    } else if (resonance_mhz < txtfmin.value()) {
      lblgiudizio = "AUTORISONANZA SOTTO LA GAMMA: USARE UN SUPPORTO PIU' STRETTO";
    } else {
      lblgiudizio =
          "EFFICACE CON SICUREZZA FINO A " + frequency + ": SOPRA AGGIUNGERE UN SECONDO CHOKE";
    }
  }
};

const ui::Registration<frmbalunchoke> registration{"frmbalunchoke"};

}  // namespace

}  // namespace eterlab::lines
