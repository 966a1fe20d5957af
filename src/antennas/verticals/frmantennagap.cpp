#include "antennas/verticals/j_antennas.h"
#include "antennas/verticals/j_drawing.h"
#include "antennas/verticals/tube_window.h"
#include "antennas/verticals/vertical_drawing.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// The Slim Jim: a folded J in one closed loop with a cut.
class frmantennagap final : public TubeWindow {
  ui::Result lbla{this, "lbla"};
  ui::Result lblb{this, "lblb"};
  ui::Result lblg{this, "lblg"};
  ui::Result lblc{this, "lblc"};
  ui::Result lbls{this, "lbls"};
  ui::Result lblp{this, "lblp"};
  ui::Schematic drawing{this, "drawing", j_drawing::columns, j_drawing::rows};
  ui::Value lbldisA{drawing, "lbldisA", "A"};
  ui::Value lbldisB{drawing, "lbldisB", "B"};
  ui::Value lbldisG{drawing, "lbldisG", "G"};
  ui::Value lbldisC{drawing, "lbldisC", "C"};
  ui::Value lbldisS{drawing, "lbldisS", "S"};
  ui::Value lbldisP{drawing, "lbldisP", "P"};
  ui::Note Label3{this, "Label3",
                  "MISURE PER CONDUTTORE NUDO: LA PIATTINA ISOLATA VUOLE UNA LUNGHEZZA MINORE. "
                  "CAVO DA 50 Ohm: CENTRALE AL LATO INTERO, CALZA AL LATO TAGLIATO"};

 public:
  frmantennagap()
      : TubeWindow{{.name = "frmantennagap",
                    .title = "ANTENNA SLIM JIM",
                    .diameter_prompt = "DIAMETRO DEL CONDUTTORE in mm",
                    .frequency_range_mhz = {10, 1300},
                    .thickness = slim_jim_thickness}} {
    draw();
    lay_out(
        ui::column(ui::row(ui::column(boxes(), lbla, lblb, lblg, lblc, lbls, lblp, ui::stretch()),
                           drawing),
                   Label3),
        {}, 110);
  }

  void show_example() override { fill_in({"145", "5"}); }

 private:
  void draw() {
    using namespace j_drawing;
    constexpr double cut_top = 16;
    constexpr double cut_bottom = 19;
    drawing.rod({{right, cut_top}, {right, top}, {left, top}, {left, bottom}})
        .rod({{right, cut_bottom}, {right, bottom}});
    draw_tap(drawing, lbldisP);
    tell_height(drawing, lbldisA, bottom);
    tell_right(drawing, lbldisC, top, cut_top);
    tell_right(drawing, lbldisG, cut_top, cut_bottom);
    tell_right(drawing, lbldisB, cut_bottom, bottom);
    tell_spacing(drawing, lbldisS, 10);
    mark_not_to_scale(drawing, {right + 7, rows - 4});
  }

  void compute() override {
    const SlimJim jim = slim_jim(tube());
    show_length(lbla, lbldisA, "A", "LUNGHEZZA TOTALE", jim.height_m);
    show_length(lblb, lbldisB, "B", "TRATTO SOTTO IL TAGLIO", jim.below_cut_m);
    show_length(lblg, lbldisG, "G", "TAGLIO", jim.cut_m);
    show_length(lblc, lbldisC, "C", "TRATTO SOPRA IL TAGLIO", jim.above_cut_m);
    show_length(lbls, lbldisS, "S", "INTERASSE", jim.spacing_m);
    show_length(lblp, lbldisP, "P", "PRESA DEL CAVO DAL FONDO", jim.tap_m);
  }
};

const ui::Registration<frmantennagap> registration{"frmantennagap"};

}  // namespace

}  // namespace eterlab::antennas
