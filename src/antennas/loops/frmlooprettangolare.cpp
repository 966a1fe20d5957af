#include <algorithm>
#include <string>

#include "antennas/loops/wire_loop_window.h"
#include "antennas/loops/wire_loops.h"
#include "ui/measures.h"
#include "ui/schematic.h"

namespace eterlab::antennas {

namespace {

// A full-wave rectangle, its shape chosen for its impedance.
class frmlooprettangolare final : public WireLoopWindow {
  ui::Input txtrapporto{this,
                        "txtrapporto",
                        "RAPPORTO ALTEZZA / LARGHEZZA",
                        {.holds = "2", .range = ui::Range{0.5, 4}}};
  ui::Result lblperimetro{this, "lblperimetro"};
  ui::Result lblorizzontale{this, "lblorizzontale"};
  ui::Result lblverticale{this, "lblverticale"};
  ui::Result lbladattatore{this, "lbladattatore"};
  ui::Schematic drawing{this, "drawing", 42, 32};
  ui::Value lblvaloreorizzontale{drawing, "lblvaloreorizzontale"};
  ui::Value lblvaloreverticale{drawing, "lblvaloreverticale"};

 public:
  frmlooprettangolare()
      : WireLoopWindow{"frmlooprettangolare", "LOOP RETTANGOLARE A ONDA INTERA", "2"} {
    draw(txtrapporto.value());
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtfrequenza, txtrapporto, txtdiametro), lblperimetro,
                           lblorizzontale, lblverticale, lblimpedenza, ui::stretch()),
                drawing),
        lbladattatore, Label1));
  }

  void show_example() override { fill_in({"14.2", "2", "2"}); }

 private:
  void check() override {
    WireLoopWindow::check();
    check_range(txtrapporto);
  }

  void draw(Real height_over_width) {
    using Side = ui::Schematic::Side;
    constexpr double most = 22;
    constexpr double middle = 27;
    constexpr double bottom = 25;
    constexpr double half_gap = 0.9;
    const double ratio = height_over_width.value();
    const double width = std::min(most, most / ratio);
    const double top = bottom - width * ratio;
    const double left = middle - width / 2;
    const double right = middle + width / 2;
    drawing.clear();
    drawing
        .rod({{middle - half_gap, bottom},
              {left, bottom},
              {left, top},
              {right, top},
              {right, bottom},
              {middle + half_gap, bottom}})
        .terminal({middle - half_gap, bottom})
        .terminal({middle + half_gap, bottom});
    measure_width(drawing, {left, bottom}, {right, bottom}, bottom + 3, lblvaloreorizzontale,
                  Side::below);
    measure_height(drawing, {left, top}, {left, bottom}, left - 2.5, lblvaloreverticale,
                   Side::left);
  }

  void compute() override {
    const Real ratio = txtrapporto.value();
    const ResonantLoop loop = rectangular_loop(ratio, wave_m(), wire_diameter_m());
    const Real width_m = loop.perimeter_m / (2 * (1 + ratio));
    const std::string horizontal = length_text(width_m);
    const std::string vertical = length_text(ratio * width_m);
    lblperimetro = "LUNGHEZZA TOTALE DEL FILO = " + length_text(loop.perimeter_m);
    lblorizzontale = "LATI ORIZZONTALI = " + horizontal;
    lblverticale = "LATI VERTICALI = " + vertical;
    lblimpedenza = impedance_text(loop.resistance_ohm);
    lbladattatore = transformer_text(loop.resistance_ohm);
    draw(ratio);
    lblvaloreorizzontale = horizontal;
    lblvaloreverticale = vertical;
  }
};

const ui::Registration<frmlooprettangolare> registration{"frmlooprettangolare"};

}  // namespace

}  // namespace eterlab::antennas
