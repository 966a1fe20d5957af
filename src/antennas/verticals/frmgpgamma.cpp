#include <string>

#include "antennas/verticals/gamma_ground_plane.h"
#include "antennas/verticals/tube_window.h"
#include "antennas/verticals/vertical_drawing.h"
#include "antennas/verticals/vertical_texts.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A quarter wave on an earthed mast, with horizontal radials and a gamma match.
class frmgpgamma final : public TubeWindow {
  ui::Result lblradiatore{this, "lblradiatore"};
  ui::Result lblradiali{this, "lblradiali"};
  ui::Result lblgamma{this, "lblgamma"};
  ui::Result lblspazio{this, "lblspazio"};
  ui::Result lblasta{this, "lblasta"};
  ui::Result lblcond{this, "lblcond"};
  ui::Result lblcavo{this, "lblcavo"};
  ui::Schematic drawing{this, "drawing", 46, 41};
  ui::Value lbldisA{drawing, "lbldisA", "A"};
  ui::Value lbldisR{drawing, "lbldisR", "R"};
  ui::Value lbldisP{drawing, "lbldisP", "P"};
  ui::Value lbldisS{drawing, "lbldisS", "S"};
  ui::Value lbldisC{drawing, "lbldisC", "C"};
  ui::Note Label3{this, "Label3",
                  "PONTICELLO E CONDENSATORE REGOLABILI: TARARE A TURNO PER IL MINIMO ROS"};

 public:
  frmgpgamma()
      : TubeWindow{{.name = "frmgpgamma",
                    .title = "GROUND PLANE CON GAMMA MATCH",
                    .diameter_prompt = "DIAMETRO DEL RADIATORE in mm",
                    .frequency_range_mhz = {3, 1300},
                    .thickness = gamma_ground_plane_thickness}} {
    draw();
    lay_out(ui::column(ui::row(ui::column(boxes(), lblradiatore, lblradiali, lblgamma, lblspazio,
                                          lblasta, lblcond, lblcavo, ui::stretch()),
                               drawing),
                       Label3),
            {}, 110);
  }

  void show_example() override { fill_in({"145", "6"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double radiator = 18;
    constexpr double tip = 1.5;
    constexpr double hub_top = 28.5;
    constexpr double hub_bottom = 33;
    constexpr double radial = 31.8;
    constexpr double hub_left = radiator - 2.5;
    constexpr double hub_right = radiator + 2.5;
    constexpr double gamma = radiator + 7;
    constexpr double strap = 12;
    constexpr double foot = 20;
    constexpr double feed = 26;
    constexpr double height = radiator - 4;
    constexpr double rod = gamma + 3;
    constexpr double spacing = strap - 3;
    constexpr ui::CoaxialCable cable{{gamma + 3, feed}, {gamma + 15, feed}};
    drawing.rod({{radiator, tip}, {radiator, hub_top}})
        .box({hub_left, hub_top}, {hub_right, hub_bottom})
        .rod({{hub_left, radial}, {2, radial}})
        .rod({{hub_right, radial}, {radiator + 16, radial}})
        .rod({{radiator - 1.5, hub_bottom}, {radiator - 4.5, hub_bottom + 3}})
        .rod({{radiator + 1.5, hub_top}, {radiator + 4.2, hub_top - 2.7}})
        .wire({{radiator, strap}, {gamma, strap}, {gamma, foot}})
        .junction({radiator, strap})
        .variable_capacitor({gamma, foot}, {gamma, feed})
        .label(lbldisC, {gamma + 2.2, (foot + feed) / 2}, right)
        .wire({{gamma, feed}, cable.from})
        .coaxial_cable(cable)
        .wire({cable.screen_from, {cable.screen_from.x, hub_top + 2}, {hub_right, hub_top + 2}});
    drawing.extension({radiator - 0.5, tip}, {height - 0.7, tip})
        .extension({hub_left - 0.5, hub_top}, {height - 0.7, hub_top})
        .dimension({height, tip}, {height, hub_top})
        .label(lbldisA, {height, (tip + hub_top) / 2}, left)
        .extension({gamma + 0.5, strap}, {rod + 0.7, strap})
        .extension({gamma + 0.5, foot}, {rod + 0.7, foot})
        .dimension({rod, strap}, {rod, foot})
        .label(lbldisP, {rod, (strap + foot) / 2}, right)
        .extension({gamma, strap - 0.5}, {gamma, spacing - 0.7})
        .dimension({radiator, spacing}, {gamma, spacing})
        .label(lbldisS, {gamma + 0.5, spacing}, right);
    constexpr double radial_line = radial + 3;
    drawing.extension({radiator + 16, radial + 0.5}, {radiator + 16, radial_line + 0.7})
        .extension({radiator, hub_bottom + 0.5}, {radiator, radial_line + 0.7})
        .dimension({radiator, radial_line}, {radiator + 16, radial_line})
        .label(lbldisR, {radiator + 8, radial_line}, below);
    mark_not_to_scale(drawing, {radiator + 8, radial_line + 3});
  }

  void compute() override {
    const GammaGroundPlane antenna = gamma_ground_plane(tube());
    show_length(lblradiatore, lbldisA, "A", "RADIATORE", antenna.radiator_m);
    show_length(lblradiali, lbldisR, "R", "N. 4 RADIALI", antenna.radial_m);
    show_length(lblgamma, lbldisP, "P", "ASTA DEL GAMMA", antenna.rod_m);
    show_length(lblspazio, lbldisS, "S", "INTERASSE", antenna.spacing_m);
    lblasta = "DIAMETRO DELL'ASTA = " + fixed(antenna.rod_diameter_mm, 1) + " mm";
    const std::string capacitance = fixed(antenna.capacitance_pf, 1) + " pF";
    lblcond = "CONDENSATORE = " + capacitance;
    lbldisC = "C " + capacitance;
    lblcavo = "OPPURE " + centimetres(antenna.cable_capacitor_m) + " DI RG 213 APERTO IN PUNTA";
  }
};

const ui::Registration<frmgpgamma> registration{"frmgpgamma"};

}  // namespace

}  // namespace eterlab::antennas
