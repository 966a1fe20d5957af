#include "antennas/beams/two_element_quad.h"
#include "antennas/conductor_window.h"
#include "antennas/loops/quad_loop.h"
#include "common/number_text.h"
#include "ui/schematic.h"

namespace eterlab::antennas {

namespace {

// A quad beam of radiator and reflector.
class frmquad2elementi final : public WireWindow {
  ui::Schematic drawing{this, "drawing", 64, 32};
  ui::Value lblspaziatura{drawing, "lblspaziatura"};
  ui::Result lblradiatore{this, "lblradiatore"};
  ui::Result lblriflettore{this, "lblriflettore"};
  ui::Result lblbraccio{this, "lblbraccio"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lbladattatore{this, "lbladattatore"};
  ui::Note Label3{this, "Label3",
                  "GUADAGNO CIRCA 4,9 dB SUL DIPOLO. IL RAPPORTO AVANTI/INDIETRO E' MASSIMO (OLTRE "
                  "30 dB) ALLA FREQUENZA DI PROGETTO E DI CIRCA 15 - 20 dB ALL' 1 % DA ESSA."};
  ui::Note Label4{this, "Label4",
                  "CON L'ADATTATORE IN CAVO DA 75 Ohm (RG 59, RG 11) IL ROS SU 50 Ohm E' CIRCA "
                  "1,2."};

 public:
  frmquad2elementi() : WireWindow{"frmquad2elementi", "QUAD A DUE ELEMENTI", {3e-5, 1e-2}} {
    name_hint("Label5");
    draw();
    lay_out(ui::column(ui::row(ui::column(questions(), ui::stretch()), drawing), lblradiatore,
                       lblriflettore, lblbraccio, lblimpedenza, lbladattatore, Label3, Label4));
  }

  void show_example() override { fill_in({"14.2", "2"}); }

 private:
  /// A square seen obliquely from the side: its far edge to the right and higher.
  struct Loop {
    ui::At centre;
    double half_height;

    [[nodiscard]] constexpr ui::At corner(double across, double down) const {
      constexpr double depth = 0.4;  // of a half side, as seen
      constexpr double rise = 0.3;
      return {centre.x + across * depth * half_height,
              centre.y + (down - across * rise) * half_height};
    }
  };

  void draw() {
    using enum ui::Schematic::Side;
    constexpr double boom = 15.5;
    constexpr Loop radiator{{20, boom}, 8};
    constexpr Loop reflector{{50, boom}, 8.8};
    constexpr double half_gap = 0.12;
    drawing
        .rod({radiator.corner(-half_gap, 1), radiator.corner(-1, 1), radiator.corner(-1, -1),
              radiator.corner(1, -1), radiator.corner(1, 1), radiator.corner(half_gap, 1)})
        .rod({reflector.corner(-1, 1), reflector.corner(-1, -1), reflector.corner(1, -1),
              reflector.corner(1, 1), reflector.corner(-1, 1)});
    for (const Loop& loop : {radiator, reflector}) {
      drawing.dashed({loop.corner(-1, -1), loop.corner(1, 1)})
          .dashed({loop.corner(-1, 1), loop.corner(1, -1)});
    }
    drawing.wire({radiator.centre, reflector.centre})
        .mark({radiator.corner(-1, 1).x - 0.5, radiator.corner(-1, 1).y}, "RADIATORE", left)
        .mark({reflector.centre.x, reflector.corner(-1, 1).y + 0.5}, "RIFLETTORE", below)
        .arrow({14, boom}, {3, boom})
        .mark({8.5, boom}, "IRRADIAZIONE", above);

    constexpr double measured = 3.5;
    for (const Loop& loop : {radiator, reflector}) {
      drawing.extension({loop.centre.x, loop.corner(0, -1).y - 0.5},
                        {loop.centre.x, measured - 0.5});
    }
    drawing.dimension({radiator.centre.x, measured}, {reflector.centre.x, measured})
        .label(lblspaziatura, {(radiator.centre.x + reflector.centre.x) / 2, measured}, above);

    constexpr ui::At feed = radiator.corner(-half_gap, 1);
    constexpr ui::At screen = radiator.corner(half_gap, 1);
    constexpr ui::CoaxialCable section{feed, {feed.x, feed.y + 7}};
    drawing.coaxial_cable(section)
        .named("75 Ohm", ui::Schematic::Side::right)
        .wire({screen, {screen.x, section.screen_from.y}});
  }

  void compute() override {
    const AntennaWire cut = wire();
    const TwoElementQuad quad = two_element_quad(cut);
    const auto loop = [](Real perimeter_m) {
      return "PERIMETRO " + cm_and_length(perimeter_m) + "  LATO " + cm_and_length(perimeter_m / 4);
    };
    lblradiatore = "RADIATORE : " + loop(quad.radiator_m);
    lblriflettore = "RIFLETTORE : " + loop(quad.reflector_m);
    lblspaziatura = "SPAZIATURA = " + cm_and_length(quad.spacing_m);
    lblbraccio = "BRACCI DELLE CROCIERE = " + cm_and_length(spreader_arm_m(quad.radiator_m)) +
                 " E " + cm_and_length(spreader_arm_m(quad.reflector_m));
    lblimpedenza = "IMPEDENZA CIRCA " + fixed(quad.feed_ohm, 0) + " Ohm";
    lbladattatore = "ADATTATORE 1/4 D'ONDA IN CAVO 75 Ohm = " +
                    cm_and_length(quarter_wave_cable_m(cut.wavelength_m));
  }
};

const ui::Registration<frmquad2elementi> registration{"frmquad2elementi"};

}  // namespace

}  // namespace eterlab::antennas
