#include <string>

#include "antennas/verticals/vertical_drawing.h"
#include "antennas/verticals/vertical_texts.h"
#include "antennas/verticals/whip_window.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A short whip whose coil tunes it and, by a tap, matches it to the cable.
class frmcaricoauto final : public LoadedWhipWindow {
  ui::Result lblpresa{this, "lblpresa"};
  ui::Result lblros{this, "lblros"};
  ui::Schematic drawing{this, "drawing", 53, 44};
  ui::Value lblalt{drawing, "lblalt", "ALTEZZA"};
  ui::Value lblind{drawing, "lblind", "L"};
  ui::Value lbltap{drawing, "lbltap", "PRESA"};
  ui::Note Label6{this, "Label6",
                  "REGOLARE PRIMA LA RISONANZA CON LA LUNGHEZZA DELLO STILO, POI LA PRESA PER IL "
                  "MINIMO ROS"};

 public:
  frmcaricoauto()
      : LoadedWhipWindow{"frmcaricoauto", "BOBINA DI CARICO CON ADATTAMENTO", "cmdavvertenza"} {
    draw();
    lay_out(ui::column(ui::row(ui::column(boxes(), lblinduttanza, lblspire, lblfilo, lblpresa,
                                          lblbase, lblros, lblrendimento, lblbanda, ui::stretch()),
                               drawing),
                       Label6),
            {&cmdavviso}, 120);
  }

  void show_example() override { fill_in({"7.05", "2.5", "10", "10", "60"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double radiator = 21.5;
    constexpr double tip = 1;
    constexpr double coil_top = 16;
    constexpr double pitch = 2;
    constexpr int turns = 7;
    constexpr double coil_bottom = coil_top + turns * pitch;
    constexpr double coil_diameter = 3.6;
    constexpr double coil_end = radiator - coil_diameter / 2;
    constexpr double tap = coil_bottom - pitch;
    constexpr double height = radiator + 2;
    constexpr ui::At ground{radiator, coil_bottom + 3};
    constexpr ui::CoaxialCable cable{{1, tap}, {15, tap}};
    drawing.rod({{radiator, tip}, {radiator, coil_top}})
        .winding({radiator, coil_top}, {radiator, coil_bottom}, coil_diameter, turns)
        .wire({{radiator, coil_top}, {coil_end, coil_top}})
        .wire({{coil_end, coil_bottom}, {radiator, coil_bottom}, ground})
        .coaxial_cable(cable)
        .wire({cable.to, {coil_end, tap}})
        .junction({coil_end, tap})
        .wire({cable.screen_to, {cable.screen_to.x, ground.y}, ground})
        .junction(ground)
        .wire({ground, {ground.x, ground.y + 2}})
        .ground({ground.x, ground.y + 2})
        .extension({radiator + 0.5, tip}, {height + 0.7, tip})
        .extension({radiator + 0.5, coil_top}, {height + 0.7, coil_top})
        .dimension({height, tip}, {height, coil_top})
        .label(lblalt, {height, (tip + coil_top) / 2}, right)
        .label(lblind, {radiator + 2.8, (coil_top + coil_bottom) / 2}, right)
        .label(lbltap, {9.5, tap - 0.9}, above);
    draw_radials(drawing, ground);
    mark_not_to_scale(drawing, {radiator, ground.y + 5.5});
  }

  void compute() override {
    const BaseLoading loaded = loading();
    advise(is_below_cable_impedance(loaded), txtterra,
           "LA RESISTENZA ALLA BASE E' GIA' VICINA A 50 Ohm O LI SUPERA: NON USARE LA PRESA");
    advise(can_be_tapped(loaded), txtaltezza, "RADIATORE TROPPO VICINO A 1/4 LAMBDA: ACCORCIARLO");
    const TappedCoil tapped = wound(loaded);
    const Real inductance_uh = coils::inductance_uh(tapped.coil);
    lblinduttanza = "INDUTTANZA TOTALE = " + microhenries(inductance_uh);
    show_coil(tapped.coil);
    const std::string tap = fixed(tapped.tap_turns, 2) + " SPIRE";
    lblpresa = "PRESA PER IL CAVO A " + tap + " DAL LATO MASSA";
    lblros = "ROS SENZA LA PRESA = " + fixed(cable_impedance_ohm / loaded.base_resistance_ohm, 1);
    show_efficiency(loaded);
    lblalt = "ALTEZZA " + metres(txtaltezza.value());
    lblind = "L " + microhenries(inductance_uh);
    lbltap = "PRESA " + tap;
  }

  TappedCoil wound(const BaseLoading& loaded) {
    const auto turns = tapped_coil_turns(loaded, txtbobina.value());
    advise(!turns || *turns >= 4, txtbobina, too_few_turns);
    advise(turns.has_value(), txtbobina, wire_too_thin);
    const TappedCoil tapped = tapped_coil(loaded, txtbobina.value(), *turns);
    advise(can_be_wound(tapped.coil), txtbobina, wire_too_thin);
    return tapped;
  }
};

const ui::Registration<frmcaricoauto> registration{"frmcaricoauto"};

}  // namespace

}  // namespace eterlab::antennas
