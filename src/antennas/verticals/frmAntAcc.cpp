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

// A short whip, the coil at its foot that makes it resonate, and what it will be worth.
class frmAntAcc final : public LoadedWhipWindow {
  ui::Result lblgradi{this, "lblgradi"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lblRR{this, "lblRR"};
  ui::Schematic drawing{this, "drawing", 48, 46};
  ui::Value lblalt{drawing, "lblalt", "ALTEZZA"};
  ui::Value lblind{drawing, "lblind", "L"};
  ui::Value lblradiali{drawing, "lblradiali", "RADIALI"};
  ui::Note Label6{this, "Label6",
                  "Q DELLA BOBINA PRESO UGUALE A 200 - RITOCCARE LE SPIRE PER LA RISONANZA"};

 public:
  frmAntAcc()
      : LoadedWhipWindow{"frmAntAcc", "ANTENNA VERTICALE ACCORCIATA CON BOBINA ALLA BASE",
                         "cmdavviso"} {
    draw();
    lay_out(ui::column(
                ui::row(ui::column(boxes(), lblgradi, lblreattanza, lblinduttanza, lblspire,
                                   lblfilo, lblRR, lblbase, lblrendimento, lblbanda, ui::stretch()),
                        drawing),
                Label6),
            {&cmdavviso}, 106);
  }

  void show_example() override { fill_in({"7.05", "2.5", "10", "10", "60"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double radiator = 15;
    constexpr double tip = 1;
    constexpr double coil_top = 22;
    constexpr double coil_bottom = 30;
    constexpr double coil_diameter = 3.6;
    constexpr double coil_end = radiator - coil_diameter / 2;
    constexpr ui::At base{radiator, 32.5};
    constexpr double height = radiator + 4;
    drawing.rod({{radiator, tip}, {radiator, coil_top}})
        .winding({radiator, coil_top}, {radiator, coil_bottom}, coil_diameter, 6)
        .wire({{radiator, coil_top}, {coil_end, coil_top}})
        .wire({{coil_end, coil_bottom}, {radiator, coil_bottom}, {radiator, base.y + 0.7}})
        .extension({radiator + 0.5, tip}, {height + 0.7, tip})
        .extension({radiator + 0.5, coil_top}, {height + 0.7, coil_top})
        .dimension({height, tip}, {height, coil_top})
        .label(lblalt, {height, (tip + coil_top) / 2}, right)
        .label(lblind, {radiator + 2.4, (coil_top + coil_bottom) / 2}, right);
    draw_fed_base(drawing, base);
    drawing.label(lblradiali, below_radials(base), below);
    mark_not_to_scale(drawing, {radiator, below_radials(base).y + 2});
  }

  void compute() override {
    const BaseLoading loaded = loading();
    const auto coil = coils::spaced_coil(loaded.inductance_uh, txtbobina.value());
    advise(!coil || coil->turns >= 3, txtbobina, too_few_turns);
    advise(coil.has_value(), txtbobina, wire_too_thin);
    const Real height_rad = electrical_height_rad(whip(), txtfrequenza.value());
    lblgradi = "ALTEZZA ELETTRICA = " + fixed(height_rad * 180 / pi, 1) + " GRADI";
    lblreattanza = "REATTANZA ALLA BASE = -" + fixed(loaded.whip_reactance_ohm, 1) + " Ohm";
    lblinduttanza = "INDUTTANZA = " + microhenries(loaded.inductance_uh);
    show_coil(*coil);
    lblRR = "RESISTENZA DI RADIAZIONE = " + fixed(loaded.radiation_resistance_ohm, 2) + " Ohm";
    show_efficiency(loaded);
    lblalt = "ALTEZZA " + metres(txtaltezza.value());
    lblind = "L " + microhenries(loaded.inductance_uh);
    lblradiali = "RADIALI mt. " + fixed(wavelength_m(txtfrequenza.value()) / 4, 1);
  }
};

const ui::Registration<frmAntAcc> registration{"frmAntAcc"};

}  // namespace

}  // namespace eterlab::antennas
