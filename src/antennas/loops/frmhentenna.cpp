#include <string>

#include "antennas/loops/wire_loop_window.h"
#include "antennas/loops/wire_loops.h"
#include "ui/measures.h"
#include "ui/schematic.h"

namespace eterlab::antennas {

namespace {

// A tall loop fed by a bar across it.
class frmhentenna final : public WireLoopWindow {
  ui::OptionArray Option1{this, "Option1", {"CLASSICA (ALTA MEZZA ONDA)", "ALLUNGATA PER 50 OHM"}};
  ui::Result lblaltezza{this, "lblaltezza"};
  ui::Result lbllarghezza{this, "lbllarghezza"};
  ui::Result lblbarra{this, "lblbarra"};
  ui::Result lbltotale{this, "lbltotale"};
  ui::Schematic drawing{this, "drawing", 46, 34};
  ui::Value lblvalorealtezza{drawing, "lblvalorealtezza"};
  ui::Value lblvalorelarghezza{drawing, "lblvalorelarghezza"};
  ui::Value lblvalorebarra{drawing, "lblvalorebarra"};

 public:
  frmhentenna() : WireLoopWindow{"frmhentenna", "HENTENNA - LOOP GIAPPONESE", "4"} {
    Option1.preset(0);
    Option1.on_click([this](int) { draw_usual(); });
    draw_usual();
    lay_out(ui::column(ui::row(ui::column(Option1, ui::form(txtfrequenza, txtdiametro), lblaltezza,
                                          lbllarghezza, lbltotale, ui::stretch()),
                               drawing),
                       lblbarra, lblimpedenza, Label1));
  }

  void show_example() override { fill_in({"50.15", "4"}); }

 private:
  [[nodiscard]] Hentenna hentenna(Real wavelength_m, Real wire_diameter_m) const {
    return Option1.selected() == 0 ? classic_hentenna(wavelength_m, wire_diameter_m)
                                   : hentenna_of_50_ohm(wavelength_m, wire_diameter_m);
  }

  void draw_usual() {
    constexpr double usual_thickness = 1e-3;
    draw(hentenna(1, usual_thickness), 1);
  }

  void draw(const Hentenna& antenna, Real wavelength_m) {
    using enum ui::Schematic::Side;
    constexpr double steps_in_wave = 45;  // 28 of the higher one
    constexpr double middle = 23;
    constexpr double bottom = 32.5;
    constexpr double half_gap = 0.9;
    const auto steps = [&](Real length_m) {
      return steps_in_wave * (length_m / wavelength_m).value();
    };
    const double top = bottom - steps(antenna.height_m);
    const double bar = bottom - steps(antenna.bar_height_m);
    const double left_side = middle - steps(antenna.width_m) / 2;
    const double right_side = middle + steps(antenna.width_m) / 2;
    drawing.clear();
    drawing
        .rod({{left_side, bottom},
              {left_side, top},
              {right_side, top},
              {right_side, bottom},
              {left_side, bottom}})
        .rod({{left_side, bar}, {middle - half_gap, bar}})
        .rod({{middle + half_gap, bar}, {right_side, bar}})
        .terminal({middle - half_gap, bar})
        .terminal({middle + half_gap, bar});
    measure_width(drawing, {left_side, top}, {right_side, top}, top - 2, lblvalorelarghezza, above);
    measure_height(drawing, {left_side, top}, {left_side, bottom}, left_side - 3, lblvalorealtezza,
                   left);
    measure_height(drawing, {right_side, bar}, {right_side, bottom}, right_side + 3, lblvalorebarra,
                   right);
  }

  void compute() override {
    const Hentenna antenna = hentenna(wave_m(), wire_diameter_m());
    const std::string height = length_text(antenna.height_m);
    const std::string width = length_text(antenna.width_m);
    const std::string bar = length_text(antenna.bar_height_m);
    lblaltezza = "ALTEZZA = " + height;
    lbllarghezza = "LARGHEZZA = " + width;
    lblbarra = "BARRA DI ALIMENTAZIONE A " + bar + " DAL LATO INFERIORE";
    lbltotale = "FILO OCCORRENTE = " + length_text(antenna.wire_m);
    lblimpedenza = impedance_text(antenna.resistance_ohm);
    draw(antenna, wave_m());
    lblvalorealtezza = height;
    lblvalorelarghezza = width;
    lblvalorebarra = bar;
  }
};

const ui::Registration<frmhentenna> registration{"frmhentenna"};

}  // namespace

}  // namespace eterlab::antennas
