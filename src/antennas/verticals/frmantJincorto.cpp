#include "antennas/verticals/j_antennas.h"
#include "antennas/verticals/j_drawing.h"
#include "antennas/verticals/tube_window.h"
#include "antennas/verticals/vertical_drawing.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// The J whose conductors are joined below, the cable tapped above the short.
class frmantJincorto final : public TubeWindow {
  ui::Result lbla{this, "lbla"};
  ui::Result lblb{this, "lblb"};
  ui::Result lbls{this, "lbls"};
  ui::Result lblp{this, "lblp"};
  ui::Schematic drawing{this, "drawing", j_drawing::columns, j_drawing::rows};
  ui::Value lbldisA{drawing, "lbldisA", "A"};
  ui::Value lbldisB{drawing, "lbldisB", "B"};
  ui::Value lbldisS{drawing, "lbldisS", "S"};
  ui::Value lbldisP{drawing, "lbldisP", "P"};
  ui::Note Label3{this, "Label3",
                  "CAVO DA 50 Ohm: CENTRALE AL CONDUTTORE LUNGO, CALZA AL CORTO. SPOSTARE LA PRESA "
                  "PER IL MINIMO ROS. CHOKE DI CAVO SOTTO LA PRESA"};

 public:
  frmantJincorto()
      : TubeWindow{{.name = "frmantJincorto",
                    .title = "ANTENNA J CON BASE IN CORTO",
                    .diameter_prompt = "DIAMETRO DEI CONDUTTORI in mm",
                    .frequency_range_mhz = {10, 1300},
                    .thickness = shorted_j_thickness}} {
    draw();
    lay_out(ui::column(ui::row(ui::column(boxes(), lbla, lblb, lbls, lblp, ui::stretch()), drawing),
                       Label3),
            {}, 110);
  }

  void show_example() override { fill_in({"145", "10"}); }

 private:
  void draw() {
    using namespace j_drawing;
    constexpr double short_top = 18;
    constexpr double earth = bottom + 3;
    drawing.rod({{left, top}, {left, bottom}}).rod({{right, short_top}, {right, bottom}});
    draw_tap(drawing, lbldisP);
    drawing.dashed({{left, bottom}, {left, earth}})
        .ground({left, earth})
        .mark({left - 1.5, earth + 1.5}, "facoltativa", ui::Schematic::Side::left);
    tell_height(drawing, lbldisA, bottom);
    tell_right(drawing, lbldisB, short_top, bottom);
    tell_spacing(drawing, lbldisS, short_top - 3);
    drawing.extension({right, short_top - 0.5}, {right, short_top - 3.7});
    mark_not_to_scale(drawing, {right + 7, rows - 4});
  }

  void compute() override {
    const ShortedJ j = shorted_j(tube());
    show_length(lbla, lbldisA, "A", "CONDUTTORE LUNGO", j.long_conductor_m);
    show_length(lblb, lbldisB, "B", "CONDUTTORE CORTO", j.short_conductor_m);
    show_length(lbls, lbldisS, "S", "INTERASSE", j.spacing_m);
    show_length(lblp, lbldisP, "P", "PRESA DEL CAVO DAL CORTO", j.tap_m);
  }
};

const ui::Registration<frmantJincorto> registration{"frmantJincorto"};

}  // namespace

}  // namespace eterlab::antennas
