#include <string>

#include "antennas/verticals/vertical_drawing.h"
#include "antennas/verticals/vertical_texts.h"
#include "antennas/verticals/whip.h"
#include "antennas/verticals/whip_window.h"
#include "common/number_text.h"
#include "common/physics.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// The capacitance that a whip over a ground plane shows to a tuner, a coil or a receiver.
class frmcapantvert final : public ui::Calculator {
  ui::Input txtlunghezza{this,
                         "txtlunghezza",
                         "LUNGHEZZA DELL'ANTENNA in mt.",
                         {.range = whip_height_range_m, .prompt_name = "Label1"}};
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DELL'ANTENNA in mm",
                        {.range = whip_diameter_range_mm, .prompt_name = "Label2"}};
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA in MHz",
                         {.range = ui::Range{0.01, 3000}, .prompt_name = "Label3"}};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblpermetro{this, "lblpermetro"};
  ui::Result lblcapf{this, "lblcapf"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblrisonanza{this, "lblrisonanza"};
  ui::Schematic drawing{this, "drawing", 46, 36};
  ui::Value lbllung{drawing, "lbllung", "LUNGHEZZA"};
  ui::Value lblcap{drawing, "lblcap", "C"};
  ui::Note Label4{this, "Label4",
                  "LA BASE E' A LIVELLO DEL PIANO DI MASSA O DEI RADIALI: AGGIUNGERE LA CAPACITA' "
                  "DELL'ISOLATORE"};

 public:
  frmcapantvert() : Calculator{"frmcapantvert", "CAPACITA' DI UNA ANTENNA VERTICALE"} {
    name_hint("Label5");
    draw();
    lay_out(ui::column(ui::row(ui::column(ui::form(txtlunghezza, txtdiametro, txtfrequenza),
                                          lblcapacita, lblpermetro, lblcapf, lblreattanza,
                                          lblinduttanza, lblrisonanza, ui::stretch()),
                               drawing),
                       Label4),
            {}, 114);
  }

  void show_example() override { fill_in({"5", "20", "3.6"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double rod = 9;
    constexpr double tip = 1;
    constexpr double base = 24;
    constexpr double plane = 30;
    constexpr double length = rod + 3;
    constexpr double capacitor = rod + 8;
    drawing.rod({{rod, tip}, {rod, base}})
        .terminal({rod, base + 0.4})
        .wire({{rod + 0.4, base + 0.4}, {capacitor, base + 0.4}})
        .capacitor({capacitor, base + 0.4}, {capacitor, plane})
        .label(lblcap, {capacitor + 1.5, (base + 0.4 + plane) / 2}, right)
        .junction({capacitor, plane})
        .wire({{1, plane}, {36, plane}})
        .ground({rod, plane});
    drawing.extension({rod + 0.5, tip}, {length + 0.7, tip})
        .dimension({length, tip}, {length, base - 0.6})
        .extension({rod + 0.5, base - 0.6}, {length + 0.7, base - 0.6})
        .label(lbllung, {length, (tip + base) / 2}, right);
    mark_not_to_scale(drawing, {27, plane + 1.5});
  }

  void compute() override {
    const Whip antenna{txtlunghezza.value(), txtdiametro.value()};
    const Real frequency_mhz = txtfrequenza.value();
    require(is_slender(antenna), txtdiametro,
            "ANTENNA TROPPO GROSSA: LA LUNGHEZZA DEVE ESSERE ALMENO 20 DIAMETRI");
    const std::string resonance = fixed(self_resonance_mhz(antenna), 2) + " MHz";
    advise(is_capacitive(antenna, frequency_mhz), txtfrequenza,
           "OLTRE LA RISONANZA PROPRIA (" + resonance + ") L'ANTENNA NON E' PIU' UNA CAPACITA'");
    const Real static_pf = static_capacitance_pf(antenna);
    const Real reactance_ohm = capacitive_reactance_ohm(antenna, frequency_mhz);
    const Real w = 2 * pi * frequency_mhz;
    const std::string capacitance = fixed(1e6 / (w * reactance_ohm), 2) + " pF";
    lblcapacita = "CAPACITA' STATICA = " + fixed(static_pf, 2) + " pF";
    lblpermetro = "PARI A " + fixed(static_pf / antenna.height_m, 2) + " pF AL METRO";
    lblcapf = "CAPACITA' ALLA FREQUENZA DI LAVORO = " + capacitance;
    lblreattanza = "REATTANZA = -" + fixed(reactance_ohm, 1) + " Ohm";
    lblinduttanza = "INDUTTANZA DI ACCORDO = " + microhenries(reactance_ohm / w);
    lblrisonanza = "RISONANZA PROPRIA = " + resonance;
    lbllung = "LUNGHEZZA " + metres(antenna.height_m);
    lblcap = "C " + capacitance;
  }
};

const ui::Registration<frmcapantvert> registration{"frmcapantvert"};

}  // namespace

}  // namespace eterlab::antennas
