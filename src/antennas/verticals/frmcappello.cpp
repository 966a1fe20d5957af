#include <array>
#include <cmath>
#include <cstddef>

#include "antennas/verticals/capacity_hat.h"
#include "antennas/verticals/vertical_drawing.h"
#include "antennas/verticals/vertical_texts.h"
#include "antennas/verticals/whip_window.h"
#include "antennas/wavelength.h"
#include "common/number_text.h"
#include "common/physics.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

constexpr std::array<int, 3> spoke_numbers{4, 6, 8};

// A mast below a quarter wave, and the spokes at its top that make it resonate without a coil.
class frmcappello final : public WhipWindow {
  ui::Input txtraggi{this,
                     "txtraggi",
                     "DIAMETRO DEI RAGGI in mm",
                     {.range = ui::Range{0.1, 100}, .prompt_name = "Label4"}};
  ui::Frame Frame1{this, "Frame1", "CAPPELLO"};
  ui::OptionArray Option1{Frame1, "Option1", {"4 RAGGI", "6 RAGGI", "8 RAGGI"}};
  ui::Result lblgradi{this, "lblgradi"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblraggi{this, "lblraggi"};
  ui::Result lblanello{this, "lblanello"};
  ui::Result lblRR{this, "lblRR"};
  ui::Result lblsenza{this, "lblsenza"};
  ui::Result lblradiali{this, "lblradiali"};
  ui::Schematic drawing{this, "drawing", 50, 46};
  ui::Value lblalt{drawing, "lblalt", "ALTEZZA"};
  ui::Value lblraggio{drawing, "lblraggio", "RAGGIO"};
  ui::Note Label5{this, "Label5",
                  "TAGLIARE I RAGGI UN PO' LUNGHI E ACCORCIARLI TUTTI INSIEME FINO ALLA RISONANZA"};

 public:
  frmcappello()
      : WhipWindow{"frmcappello", "ANTENNA VERTICALE CON CAPPELLO CAPACITIVO", "cmdavviso"} {
    name_hint("Label6");
    Option1.preset(0);
    Option1.on_click([this](int) { draw(); });
    draw();
    lay_out(ui::column(
                ui::row(ui::column(ui::form(txtfrequenza, txtaltezza, txtdiametro, txtraggi),
                                   Frame1.arrange(ui::across(Option1)), lblgradi, lblcapacita,
                                   lblraggi, lblanello, lblRR, lblsenza, lblradiali, ui::stretch()),
                        drawing),
                Label5),
            {&cmdavviso}, 121);
  }

  void show_example() override { fill_in({"7.05", "6", "30", "4"}); }

 private:
  [[nodiscard]] int spoke_number() const {
    return spoke_numbers.at(static_cast<std::size_t>(Option1.selected()));
  }

  void draw() {
    using enum ui::Schematic::Side;
    constexpr double mast = 12;
    constexpr double tip = 8;
    constexpr ui::At base{mast, 34};
    constexpr double spoke = 8;
    constexpr ui::At depth{2.5, -2.5};  // of a spoke that points away
    constexpr double radius = 4;        // the line that tells it
    constexpr double height = mast + spoke + 1.5;
    drawing.clear();
    drawing.rod({{mast, tip}, base});
    for (int i = 0; i < spoke_number(); ++i) {
      const double angle = 2 * pi * i / spoke_number();
      const double away = std::sin(angle);
      drawing.wire(
          {{mast, tip}, {mast + spoke * std::cos(angle) + depth.x * away, tip + depth.y * away}});
    }
    drawing.extension({mast, tip - 0.5}, {mast, radius - 0.5})
        .extension({mast + spoke, tip - 0.5}, {mast + spoke, radius - 0.5})
        .dimension({mast, radius}, {mast + spoke, radius})
        .label(lblraggio, {mast + spoke / 2, radius - 0.5}, above)
        .extension({mast + spoke + 0.5, tip}, {height + 0.7, tip})
        .extension({mast + 0.8, base.y}, {height + 0.7, base.y})
        .dimension({height, tip}, {height, base.y})
        .label(lblalt, {height, (tip + base.y) / 2}, right);
    draw_fed_base(drawing, base);
    mark_not_to_scale(drawing, {mast, below_radials(base).y + 0.5});
  }

  void compute() override {
    const Whip mast = whip();
    const Real frequency_mhz = txtfrequenza.value();
    const Real height_rad = electrical_height_rad(mast, frequency_mhz);
    const Real degrees = height_rad * 180 / pi;
    advise(degrees >= 30, txtaltezza,
           "RADIATORE TROPPO CORTO: SERVONO ALMENO 30 GRADI (1/12 LAMBDA)");
    advise(degrees <= 75, txtaltezza, "RADIATORE GIA' VICINO A 1/4 LAMBDA: IL CAPPELLO NON SERVE");
    const Real capacitance_pf = hat_capacitance_pf(mast, frequency_mhz);
    const Real length_m = reachable_spoke_m(capacitance_pf);
    const HatSpokes spokes = told_spokes();
    lblgradi = "ALTEZZA ELETTRICA = " + fixed(degrees, 1) + " GRADI";
    lblcapacita = "CAPACITA' DEL CAPPELLO = " + fixed(capacitance_pf, 1) + " pF";
    lblraggi = fixed(spokes.number, 0) + " RAGGI LUNGHI " + centimetres(length_m);
    lblanello = "CON FILO PERIMETRALE : RAGGI DI CIRCA " +
                fixed(100 * length_m * share_with_rim(spokes), 0) + " cm.";
    lblRR =
        "RESISTENZA DI RADIAZIONE = " + fixed(hat_radiation_resistance_ohm(height_rad), 1) + " Ohm";
    lblsenza = "SENZA CAPPELLO, CON BOBINA ALLA BASE = " +
               fixed(whip_radiation_resistance_ohm(height_rad), 1) + " Ohm";
    lblradiali = "RADIALI DI 1/4 LAMBDA = " + fixed(wavelength_m(frequency_mhz) / 4, 2) + " mt.";
    lblalt = "ALTEZZA " + metres(mast.height_m);
    lblraggio = "RAGGIO " + centimetres(length_m);
  }

  [[nodiscard]] HatSpokes told_spokes() const { return {spoke_number(), txtraggi.value()}; }

  /// The length of the spokes, between the shortest ones and the height of the mast.
  Real reachable_spoke_m(Real capacitance_pf) {
    const HatSpokes spokes = told_spokes();
    const Real height_m = txtaltezza.value();
    const Real shortest_m = shortest_spoke_m(spokes);
    const auto capacitance_of = [&](Real length_m) {
      return capacitance_of_spokes_pf(spokes, length_m, height_m);
    };
    advise(shortest_m < height_m && capacitance_of(shortest_m) <= capacitance_pf, txtraggi,
           "RAGGI TROPPO GROSSI: RIDURRE IL LORO DIAMETRO");
    advise(capacitance_of(height_m) >= capacitance_pf, txtaltezza,
           "CAPPELLO PIU' GRANDE DELL'ALTEZZA: ALLUNGARE IL RADIATORE O AUMENTARE I RAGGI");
    return spoke_length_m(spokes, capacitance_pf, height_m);
  }
};

const ui::Registration<frmcappello> registration{"frmcappello"};

}  // namespace

}  // namespace eterlab::antennas
