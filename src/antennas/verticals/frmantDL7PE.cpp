#include <string>

#include "antennas/verticals/microvert.h"
#include "antennas/verticals/vertical_drawing.h"
#include "antennas/verticals/vertical_texts.h"
#include "antennas/verticals/whip_window.h"
#include "coils/spaced_coil.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// The Microvert: a short tube, a coil under it, and the cable as counterpoise up to a choke.
class frmantDL7PE final : public ui::Calculator {
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA in MHz",
                         {.range = ui::Range{1.8, 30}, .prompt_name = "Label1"}};
  ui::Input txtdiametro{this, "txtdiametro", "DIAMETRO DEL TUBO in mm", {.prompt_name = "Label2"}};
  ui::Input txtbobina{this,
                      "txtbobina",
                      "DIAMETRO DELLA BOBINA in mm",
                      {.range = coil_diameter_range_mm, .prompt_name = "Label3"}};
  ui::Result lbltubo{this, "lbltubo"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblspire{this, "lblspire"};
  ui::Result lblfilo{this, "lblfilo"};
  ui::Result lblcontrappeso{this, "lblcontrappeso"};
  ui::Result lblchoke{this, "lblchoke"};
  ui::Result lblresistenza{this, "lblresistenza"};
  ui::Result lbladatta{this, "lbladatta"};
  ui::Schematic drawing{this, "drawing", 35, 52};
  ui::Value lbldistubo{drawing, "lbldistubo", "TUBO"};
  ui::Value lbldisind{drawing, "lbldisind", "L"};
  ui::Value lbldiscontr{drawing, "lbldiscontr", "CONTRAPPESO"};
  ui::Value lbldischoke{drawing, "lbldischoke", "CHOKE"};
  ui::Note Label4{this, "Label4",
                  "TERRENO E CAVO AGGIUNGONO PERDITE: IL ROS SCENDE E IL RENDIMENTO ANCHE. TARARE "
                  "LE SPIRE, POI SPOSTARE IL CHOKE. DISPOSITIVO A BANDA STRETTA"};

 public:
  frmantDL7PE() : Calculator{"frmantDL7PE", "ANTENNA MICROVERT DL7PE"} {
    name_hint("Label5");
    draw();
    lay_out(
        ui::column(ui::row(ui::column(ui::form(txtfrequenza, txtdiametro, txtbobina), lbltubo,
                                      lblcapacita, lblinduttanza, lblspire, lblfilo, lblcontrappeso,
                                      lblchoke, lblresistenza, lbladatta, ui::stretch()),
                           drawing),
                   Label4),
        {}, 121);
  }

  void show_example() override { fill_in({"7.05", "40", "40"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double axis = 6;
    constexpr double tube_bottom = 15;
    constexpr double coil_top = 16.5;
    constexpr double coil_bottom = 22.5;
    constexpr double coil_diameter = 3;
    constexpr double coil_end = axis - coil_diameter / 2;
    constexpr double connector_top = 24.5;
    constexpr double connector_bottom = 26.5;
    constexpr double half_cable = ui::CoaxialCable::half_thickness;
    constexpr double choke_top = 38;
    constexpr double choke_bottom = 44;
    constexpr double cable_end = 48.5;
    constexpr double counterpoise = axis + 4;
    drawing.shaded_box({axis - 1.2, 1}, {axis + 1.2, tube_bottom})
        .label(lbldistubo, {axis + 2, (1 + tube_bottom) / 2}, right)
        .winding({axis, coil_top}, {axis, coil_bottom}, coil_diameter, 5)
        .wire({{axis, tube_bottom}, {axis, coil_top}, {coil_end, coil_top}})
        .wire({{coil_end, coil_bottom}, {axis, coil_bottom}, {axis, connector_top}})
        .label(lbldisind, {axis + 2, (coil_top + coil_bottom) / 2}, right)
        .box({axis - 1.4, connector_top}, {axis + 1.4, connector_bottom})
        .box({axis - half_cable, connector_bottom}, {axis + half_cable, choke_top})
        .wire({{axis, choke_top}, {axis - 2, choke_top}})
        .wire({{axis, choke_bottom}, {axis - 2, choke_bottom}})
        .winding({axis, choke_top}, {axis, choke_bottom}, 4, 4)
        .label(lbldischoke, {axis + 2.5, (choke_top + choke_bottom) / 2}, right)
        .box({axis - half_cable, choke_bottom}, {axis + half_cable, cable_end})
        .mark({axis, cable_end}, "RTX", below);
    drawing.extension({axis + 1.9, connector_bottom}, {counterpoise + 0.7, connector_bottom})
        .extension({axis + 1.3, choke_top}, {counterpoise + 0.7, choke_top})
        .dimension({counterpoise, connector_bottom}, {counterpoise, choke_top})
        .label(lbldiscontr, {counterpoise, (connector_bottom + choke_top) / 2}, right);
    mark_not_to_scale(drawing, {axis + 15, cable_end});
  }

  void check() override {
    check_presence();
    check_range(txtfrequenza);
    check_range(txtbobina);
    const Real frequency_mhz = txtfrequenza.value();
    const Real diameter_mm = txtdiametro.value();
    const Real thinnest_mm = thinnest_microvert_mm(frequency_mhz);
    const Real thickest_mm = thickest_microvert_mm(frequency_mhz);
    constexpr double slack_mm = 1e-10;  // what the rounding of the limits takes for noise
    advise(diameter_mm >= thinnest_mm - slack_mm && diameter_mm <= thickest_mm + slack_mm,
           txtdiametro,
           "DIAMETRO DEL TUBO ADATTO A QUESTA FREQUENZA : DA " + fixed_up(thinnest_mm, 1) + " A " +
               fixed_down(thickest_mm, 1) + " mm");
  }

  void compute() override {
    const Real frequency_mhz = txtfrequenza.value();
    const Microvert antenna = microvert(frequency_mhz, txtdiametro.value());
    const auto coil = coils::spaced_coil(antenna.inductance_uh, txtbobina.value());
    // Within the ranges of its boxes the coil has 4 turns or more.
    advise(coil.has_value(), txtbobina, wire_too_thin);
    const std::string tube = centimetres(microvert_tube_m(frequency_mhz));
    const std::string inductance = microhenries(antenna.inductance_uh);
    const std::string counterpoise = fixed(antenna.counterpoise_m, 2) + " mt.";
    const std::string choke = fixed(Real(antenna.choke_turns), 0) + " SPIRE";
    lbltubo = "TUBO RADIANTE = " + tube;
    lblcapacita = "CAPACITA' DEL TUBO = " + fixed(antenna.tube_capacitance_pf, 1) + " pF";
    lblinduttanza = "INDUTTANZA = " + inductance;
    lblspire = turns_text(*coil);
    lblfilo = wire_text(*coil);
    lblcontrappeso = "CONTRAPPESO (CAVO FINO AL CHOKE) = " + counterpoise;
    lblchoke = "CHOKE : " + choke + " DI RG 58 SU TUBO DA 100 mm";
    lblresistenza = "RESISTENZA ALL'INGRESSO CIRCA " + fixed(antenna.input_resistance_ohm, 1) +
                    " Ohm - ROS " + fixed(antenna.standing_wave_ratio, 1);
    lbladatta = "PER ROS 1 : BOBINA DI " + microhenries(antenna.matched_series_uh) + " E " +
                microhenries(antenna.matched_shunt_uh) + " TRA CENTRALE E CALZA";
    lbldistubo = "TUBO " + tube;
    lbldisind = "L " + inductance;
    lbldiscontr = "CONTRAPPESO " + counterpoise;
    lbldischoke = "CHOKE " + choke;
  }
};

const ui::Registration<frmantDL7PE> registration{"frmantDL7PE"};

}  // namespace

}  // namespace eterlab::antennas
