#include <string>

#include "antennas/current_drawing.h"
#include "antennas/radiation_resistance.h"
#include "antennas/wavelength.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/measures.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// How much a thin dipole radiates.
class frmresradiazione final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz"};
  ui::Input txtlunghezza{this, "txtlunghezza", "LUNGHEZZA TOTALE DEL DIPOLO in mt."};
  ui::Result lbllambda{this, "lbllambda"};
  ui::Result lblmassimo{this, "lblmassimo"};
  ui::Result lblcentro{this, "lblcentro"};
  ui::Result lblguadagno{this, "lblguadagno"};
  ui::Schematic drawing{this, "drawing", 54, 21};
  ui::Value lblvalorelunghezza{drawing, "lblvalorelunghezza"};
  ui::Plot plot{this,
                "plot",
                {.title = "LUNGHEZZA",
                 .unit = "LAMBDA",
                 .range = ui::Interval{0, longest_dipole_wavelengths}},
                {.title = "RESISTENZA DI RADIAZIONE", .unit = "Ohm"},
                54,
                30};

 public:
  frmresradiazione() : Calculator{"frmresradiazione", "RESISTENZA DI RADIAZIONE DI UN DIPOLO"} {
    draw(0.5);
    lay_out(ui::row(ui::column(ui::form(txtfrequenza, txtlunghezza), lbllambda, lblmassimo,
                               lblcentro, lblguadagno, ui::stretch()),
                    ui::column(drawing, plot)));
  }

  void show_example() override { fill_in({"14.2", "10.56"}); }

 private:
  void draw(Real length_wavelengths) {
    constexpr double middle = 27;
    constexpr double half = 22;
    constexpr double half_gap = 0.9;
    constexpr double height = 9;
    constexpr double farthest = 5.5;
    constexpr ui::At left_tip{middle - half, height};
    constexpr ui::At right_tip{middle + half, height};
    drawing.clear();
    drawing.mark({middle, 1.5}, "CORRENTE")
        .rod({left_tip, {middle - half_gap, height}})
        .rod({{middle + half_gap, height}, right_tip})
        .terminal({middle - half_gap, height})
        .terminal({middle + half_gap, height})
        .curve(current_curve({middle, height}, right_tip, length_wavelengths / 2, farthest))
        .curve(current_curve({middle, height}, left_tip, length_wavelengths / 2, -farthest));
    measure_width(drawing, left_tip, right_tip, height + 7, lblvalorelunghezza,
                  ui::Schematic::Side::below);
  }

  void compute() override {
    const Real length_m = txtlunghezza.value();
    const Real length = length_m / wavelength_m(txtfrequenza.value());
    require(
        reaches(length, shortest_dipole_wavelengths) && reaches(longest_dipole_wavelengths, length),
        txtlunghezza, "LUNGHEZZA TRA 0.005 E 1.25 LAMBDA");
    const DipoleRadiation dipole = dipole_radiation(length);
    lbllambda = "LUNGHEZZA = " + sig(length, 4) + " LAMBDA";
    lblmassimo = "RESISTENZA DI RADIAZIONE RIFERITA AL VENTRE DI CORRENTE = " +
                 eng(dipole.loop_resistance_ohm, "Ohm");
    lblcentro = "RESISTENZA AL CENTRO = " + (dipole.centre_resistance_ohm
                                                 ? eng(*dipole.centre_resistance_ohm, "Ohm")
                                                 : "MOLTO ALTA (VENTRE DI TENSIONE)");
    lblguadagno = "GUADAGNO = " + fixed(dipole.gain_dbi, 2) + " dBi";
    draw(length);
    lblvalorelunghezza = plain(length_m) + " mt.";
    plot.curve(dipole_loop_resistance_ohm, 0, longest_dipole_wavelengths)
        .marker(length, eng(dipole.loop_resistance_ohm, "Ohm"));
  }
};

const ui::Registration<frmresradiazione> registration{"frmresradiazione"};

}  // namespace

}  // namespace eterlab::antennas
