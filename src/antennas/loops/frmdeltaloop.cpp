#include <array>
#include <cstddef>
#include <string>

#include "antennas/loops/wire_loop_window.h"
#include "antennas/loops/wire_loops.h"
#include "ui/measures.h"
#include "ui/schematic.h"

namespace eterlab::antennas {

namespace {

// A full-wave triangle that stands on its base.
class frmdeltaloop final : public WireLoopWindow {
  ui::OptionArray Option1{
      this, "Option1", {"EQUILATERO (60 GRADI)", "VERTICE DI 90 GRADI", "VERTICE DI 120 GRADI"}};
  ui::Result lblperimetro{this, "lblperimetro"};
  ui::Result lblbase{this, "lblbase"};
  ui::Result lbllati{this, "lbllati"};
  ui::Result lblaltezza{this, "lblaltezza"};
  ui::Result lbladattatore{this, "lbladattatore"};
  ui::Schematic drawing{this, "drawing", 53, 29};
  ui::Value lblvalorebase{drawing, "lblvalorebase"};
  ui::Value lblvalorelati{drawing, "lblvalorelati"};
  ui::Value lblvalorealtezza{drawing, "lblvalorealtezza"};

 public:
  frmdeltaloop() : WireLoopWindow{"frmdeltaloop", "ANTENNA DELTA-LOOP A ONDA INTERA", "2"} {
    Option1.preset(0);
    Option1.on_click([this](int) { draw(); });
    draw();
    lblperimetro.reserve("LUNGHEZZA TOTALE DEL FILO = 999,99 mt.");
    lay_out(
        ui::column(ui::row(ui::column(Option1, ui::form(txtfrequenza, txtdiametro), lblperimetro,
                                      lblbase, lbllati, lblaltezza, ui::stretch()),
                           drawing),
                   lblimpedenza, lbladattatore, Label1));
  }

  void show_example() override { fill_in({"7.1", "2"}); }

 private:
  [[nodiscard]] double apex_degrees() const {
    constexpr std::array<double, 3> angles{60, 90, 120};
    return angles.at(static_cast<std::size_t>(Option1.selected()));
  }

  void draw() {
    using enum ui::Schematic::Side;
    constexpr double base = 24;
    constexpr double middle = 24;
    constexpr double bottom = 22;
    constexpr double half_gap = 0.9;
    constexpr double over_slope = 1.2;
    const Triangle unit = triangle(1, apex_degrees());
    const double apex = bottom - base * (unit.height_m / unit.base_m).value();
    const double left_end = middle - base / 2;
    const double right_end = middle + base / 2;
    drawing.clear();
    drawing
        .rod({{middle - half_gap, bottom},
              {left_end, bottom},
              {middle, apex},
              {right_end, bottom},
              {middle + half_gap, bottom}})
        .terminal({middle - half_gap, bottom})
        .terminal({middle + half_gap, bottom})
        .label(lblvalorelati, {middle - base / 4, (apex + bottom) / 2 - over_slope}, left);
    measure_width(drawing, {left_end, bottom}, {right_end, bottom}, bottom + 3, lblvalorebase,
                  below);
    measure_height(drawing, {middle, apex}, {right_end, bottom}, right_end + 2.5, lblvalorealtezza,
                   right);
  }

  void compute() override {
    const ResonantLoop loop = delta_loop(apex_degrees(), wave_m(), wire_diameter_m());
    const Triangle sides = triangle(loop.perimeter_m, apex_degrees());
    const std::string base = length_text(sides.base_m);
    const std::string side = length_text(sides.side_m);
    const std::string height = length_text(sides.height_m);
    lblperimetro = "LUNGHEZZA TOTALE DEL FILO = " + length_text(loop.perimeter_m);
    lblbase = "BASE = " + base;
    lbllati = "LATI OBLIQUI = " + side;
    lblaltezza = "ALTEZZA DEL TRIANGOLO = " + height;
    lblimpedenza = impedance_text(loop.resistance_ohm);
    lbladattatore = transformer_text(loop.resistance_ohm);
    lblvalorebase = base;
    lblvalorelati = side;
    lblvalorealtezza = height;
  }
};

const ui::Registration<frmdeltaloop> registration{"frmdeltaloop"};

}  // namespace

}  // namespace eterlab::antennas
