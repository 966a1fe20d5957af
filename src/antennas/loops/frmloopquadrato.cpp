#include "antennas/conductor_window.h"
#include "antennas/loops/quad_loop.h"
#include "ui/schematic.h"

namespace eterlab::antennas {

namespace {

// A full-wave square loop of wire on spreaders.
class frmloopquadrato final : public WireWindow {
  ui::Schematic drawing{this, "drawing", 36, 41};
  ui::Value lbllato{drawing, "lbllato"};
  ui::Result lblperimetro{this, "lblperimetro"};
  ui::Result lblbraccio{this, "lblbraccio"};
  ui::Result lbladattatore{this, "lbladattatore"};
  ui::Note Label3{this, "Label3",
                  "IMPEDENZA 120 - 140 Ohm, GUADAGNO CIRCA 1,1 dB SUL DIPOLO. CON L'ADATTATORE IN "
                  "CAVO DA 75 Ohm (RG 59, RG 11) IL ROS SU 50 Ohm E' CIRCA 1,1."};
  ui::Note Label4{this, "Label4",
                  "ALIMENTATO AL CENTRO DEL LATO INFERIORE LA POLARIZZAZIONE E' ORIZZONTALE, AL "
                  "CENTRO DI UN LATO VERTICALE E' VERTICALE."};

 public:
  frmloopquadrato() : WireWindow{"frmloopquadrato", "QUAD A UN ELEMENTO", {1e-5, 1e-2}} {
    name_hint("Label5");
    draw();
    lay_out(ui::column(ui::row(ui::column(questions(), lblperimetro, lblbraccio, lbladattatore,
                                          ui::stretch()),
                               drawing),
                       Label3, Label4),
            {}, 110);
  }

  void show_example() override { fill_in({"14.2", "2"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double west = 7;
    constexpr double east = 29;
    constexpr double middle = (west + east) / 2;
    constexpr double top = 5;
    constexpr double bottom = top + east - west;
    constexpr double measured = 3;
    constexpr double half_gap = 1.2;
    drawing.dashed({{west, top}, {east, bottom}})
        .dashed({{west, bottom}, {east, top}})
        .rod({{middle - half_gap, bottom},
              {west, bottom},
              {west, top},
              {east, top},
              {east, bottom},
              {middle + half_gap, bottom}});
    drawing.extension({west, top - 0.5}, {west, measured - 0.5})
        .extension({east, top - 0.5}, {east, measured - 0.5})
        .dimension({west, measured}, {east, measured})
        .label(lbllato, {middle, measured}, above);
    constexpr ui::CoaxialCable section{{middle - half_gap, bottom},
                                       {middle - half_gap, bottom + 7}};
    constexpr ui::CoaxialCable cable{section.to, {section.to.x, bottom + 13.5}};
    drawing
        .wire({{middle + half_gap, bottom},
               {middle + half_gap, section.screen_from.y},
               section.screen_from})
        .coaxial_cable(section)
        .named("75 Ohm", right)
        .coaxial_cable(cable)
        .named("50 Ohm", right)
        .wire({section.screen_to, cable.screen_from});
  }

  void compute() override {
    const AntennaWire cut = wire();
    const Real perimeter_m = quad_loop_perimeter_m(cut);
    lblperimetro = "PERIMETRO = " + cm_and_length(perimeter_m);
    lbllato = "LATO = " + cm_and_length(perimeter_m / 4);
    lblbraccio = "BRACCIO DELLA CROCIERA = " + cm_and_length(spreader_arm_m(perimeter_m));
    lbladattatore = "ADATTATORE 1/4 D'ONDA IN CAVO 75 Ohm = " +
                    cm_and_length(quarter_wave_cable_m(cut.wavelength_m));
  }
};

const ui::Registration<frmloopquadrato> registration{"frmloopquadrato"};

}  // namespace

}  // namespace eterlab::antennas
