#include <optional>
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

constexpr double shortest_wavelengths = shortest_dipole_wavelengths;
constexpr double longest_wavelengths = longest_dipole_wavelengths / 2;
constexpr double plotted_wavelengths = 0.4;  // beyond, the curve leaves all measure

// A vertical over ground, and what the losses there leave of its power.
class frmresradiazionestilo final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz"};
  ui::Input txtaltezza{this, "txtaltezza", "ALTEZZA DELLO STILO in mt."};
  ui::Input txtterra{this,
                     "txtterra",
                     "RESISTENZA DI TERRA E DELLA BOBINA in OHM",
                     {.tooltip = "con 4 radiali circa 25, con 16 circa 12, con 120 circa 1",
                      .is_optional = true,
                      .negative = "LA RESISTENZA NON PUO' ESSERE NEGATIVA"}};
  ui::Result lbllambda{this, "lbllambda"};
  ui::Result lblbase{this, "lblbase"};
  ui::Result lbltotale{this, "lbltotale"};
  ui::Result lblrendimento{this, "lblrendimento"};
  ui::Schematic drawing{this, "drawing", 46, 32};
  ui::Value lblvalorealtezza{drawing, "lblvalorealtezza"};
  ui::Value lblvalorebase{drawing, "lblvalorebase"};
  ui::Value lblvaloreterra{drawing, "lblvaloreterra"};
  ui::Plot plot{
      this,
      "plot",
      {.title = "ALTEZZA", .unit = "LAMBDA", .range = ui::Interval{0, plotted_wavelengths}},
      {.title = "RESISTENZA ALLA BASE", .unit = "Ohm"},
      46,
      28};

 public:
  frmresradiazionestilo()
      : Calculator{"frmresradiazionestilo", "RESISTENZA DI RADIAZIONE DI UNO STILO VERTICALE"} {
    draw(0.25);
    lay_out(ui::row(ui::column(ui::form(txtfrequenza, txtaltezza, txtterra), lbllambda, lblbase,
                               lbltotale, lblrendimento, ui::stretch()),
                    ui::column(drawing, plot)));
  }

  void show_example() override { fill_in({"7.1", "10.5", "12"}); }

 private:
  void draw(Real height_wavelengths) {
    using enum ui::Schematic::Side;
    constexpr double across = 22;
    constexpr double farthest = 6;
    constexpr ui::At tip{across, 2};
    constexpr ui::At base{across, 17};
    constexpr ui::At under_source{across, 22.5};
    constexpr ui::At foot{across, 29};
    drawing.clear();
    drawing.rod({tip, base})
        .curve(current_curve(base, tip, height_wavelengths, -farthest))
        .mark({across + farthest + 3, tip.y + 1}, "CORRENTE", right)
        .resistor(base, under_source)
        .named("Rr", lblvalorebase)
        .resistor(under_source, foot)
        .named("Rt", lblvaloreterra)
        .ground(foot);
    measure_height(drawing, tip, base, across - 8, lblvalorealtezza, left);
  }

  void compute() override {
    const Real height_m = txtaltezza.value();
    const Real height = height_m / wavelength_m(txtfrequenza.value());
    require(reaches(height, shortest_wavelengths) && reaches(longest_wavelengths, height),
            txtaltezza, "ALTEZZA TRA 0.005 E 0.625 LAMBDA");
    const std::optional<Real> base_ohm = vertical_base_resistance_ohm(height);
    advise(base_ohm.has_value(), txtaltezza,
           "VICINO A MEZZA ONDA LA RESISTENZA ALLA BASE NON E' DEFINITA");
    const Real ground_ohm = txtterra.value();
    const Real total_ohm = *base_ohm + ground_ohm;
    lbllambda = "ALTEZZA = " + sig(height, 4) + " LAMBDA";
    lblbase = "RESISTENZA DI RADIAZIONE ALLA BASE = " + eng(*base_ohm, "Ohm");
    lbltotale = "RESISTENZA TOTALE = " + eng(total_ohm, "Ohm");
    lblrendimento = "RENDIMENTO = " + fixed(100 * *base_ohm / total_ohm, 1) + " %";
    draw(height);
    lblvalorealtezza = plain(height_m) + " mt.";
    lblvalorebase = eng(*base_ohm, "Ohm");
    lblvaloreterra = eng(ground_ohm, "Ohm");
    plot.curve([](Real x) { return vertical_base_resistance_ohm(x).value_or(0); },
               shortest_wavelengths, plotted_wavelengths);
    if (height <= plotted_wavelengths) {
      plot.marker(height, eng(*base_ohm, "Ohm"));
    }
  }
};

const ui::Registration<frmresradiazionestilo> registration{"frmresradiazionestilo"};

}  // namespace

}  // namespace eterlab::antennas
