#include "antennas/verticals/j_antennas.h"
#include "antennas/verticals/j_drawing.h"
#include "antennas/verticals/tube_window.h"
#include "antennas/verticals/vertical_drawing.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A J whose two conductors are not joined below, so that the cable goes straight to them.
class frmantennaJ final : public TubeWindow {
  ui::Result lbla{this, "lbla"};
  ui::Result lblb{this, "lblb"};
  ui::Result lbls{this, "lbls"};
  ui::Result lblz{this, "lblz"};
  ui::Schematic drawing{this, "drawing", j_drawing::columns, j_drawing::rows};
  ui::Value lbldisA{drawing, "lbldisA", "A"};
  ui::Value lbldisB{drawing, "lbldisB", "B"};
  ui::Value lbldisS{drawing, "lbldisS", "S"};
  ui::Note Label3{this, "Label3",
                  "CAVO DA 50 Ohm: CENTRALE AL CONDUTTORE LUNGO, CALZA AL CORTO. CHOKE DI CAVO "
                  "SUBITO SOTTO. CONDUTTORI NUDI, ISOLATI DAL SOSTEGNO"};

 public:
  frmantennaJ()
      : TubeWindow{{.name = "frmantennaJ",
                    .title = "ANTENNA J CON BASE APERTA",
                    .diameter_prompt = "DIAMETRO DEI CONDUTTORI in mm",
                    .frequency_range_mhz = {10, 1300},
                    .thickness = open_j_thickness}} {
    draw();
    lay_out(ui::column(ui::row(ui::column(boxes(), lbla, lblb, lbls, lblz, ui::stretch()), drawing),
                       Label3),
            {}, 110);
  }

  void show_example() override { fill_in({"145", "4"}); }

 private:
  void draw() {
    using namespace j_drawing;
    constexpr double foot = 29;
    constexpr double short_top = 18;
    constexpr double terminals = foot + 2.5;
    constexpr double half_gap = 1.6;
    constexpr ui::CoaxialCable cable{{middle - half_gap, terminals}, {middle - half_gap, rows - 2}};
    drawing.rod({{left, top}, {left, foot}})
        .rod({{right, short_top}, {right, foot}})
        .coaxial_cable(cable)
        .wire({{left, foot}, {left, terminals}, cable.from})
        .wire({{right, foot},
               {right, terminals},
               {middle + half_gap, terminals},
               {middle + half_gap, cable.screen_from.y + 1},
               {cable.screen_from.x, cable.screen_from.y + 1}})
        .terminal(cable.from)
        .terminal({middle + half_gap, terminals});
    tell_height(drawing, lbldisA, foot);
    tell_right(drawing, lbldisB, short_top, foot);
    tell_spacing(drawing, lbldisS, short_top - 3);
    drawing.extension({right, short_top - 0.5}, {right, short_top - 3.7});
    mark_not_to_scale(drawing, {right + 7, rows - 4});
  }

  void compute() override {
    const OpenJ j = open_j(tube());
    show_length(lbla, lbldisA, "A", "CONDUTTORE LUNGO", j.long_conductor_m);
    show_length(lblb, lbldisB, "B", "CONDUTTORE CORTO", j.short_conductor_m);
    show_length(lbls, lbldisS, "S", "INTERASSE", j.spacing_m);
    lblz = "IMPEDENZA DEL TRATTO A DUE FILI = " + fixed(j.section_impedance_ohm, 0) + " Ohm";
  }
};

const ui::Registration<frmantennaJ> registration{"frmantennaJ"};

}  // namespace

}  // namespace eterlab::antennas
