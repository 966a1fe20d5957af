#include <algorithm>

#include "common/number_text.h"
#include "common/physics.h"
#include "common/rounding.h"
#include "signals/dishes/dish.h"
#include "signals/radiated_power.h"
#include "ui/plot.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

// Gain, beam and pattern of a dish.
class frmparaboliche final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz"};
  ui::Input txtdiametro{this, "txtdiametro", "DIAMETRO in cm"};
  ui::Input txtrendimento{this, "txtrendimento", "RENDIMENTO in %", {.holds = "55"}};
  ui::Result lblguadagno{this, "lblguadagno"};
  ui::Result lblapertura{this, "lblapertura"};
  ui::Result lblarea{this, "lblarea"};
  ui::Result lblcampo{this, "lblcampo"};
  ui::Result lblerrore{this, "lblerrore"};
  ui::Plot plot{this,
                "plot",
                {.title = "ANGOLO", .unit = "°"},
                {.title = "GUADAGNO RELATIVO", .unit = "dB", .range = {{-40, 10}}}};

 public:
  frmparaboliche() : Calculator{"frmparaboliche", "GUADAGNO DI UNA PARABOLA"} {
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtfrequenza, txtdiametro, txtrendimento), ui::stretch()),
                plot),
        lblguadagno, lblapertura, lblarea, lblcampo, lblerrore));
  }

  void show_example() override { fill_in({"10368", "60", "55"}); }

 private:
  void compute() override {
    constexpr double cm_in_metre = 100;
    constexpr double mm_in_metre = 1000;
    const Real wavelength_m = speed_of_light_m_per_s / (txtfrequenza.value() * 1e6);
    const Real diameter_m = txtdiametro.value() / cm_in_metre;
    require(txtrendimento.value() <= 100, txtrendimento,
            "IL RENDIMENTO NON PUO' SUPERARE IL 100 %");
    require(reaches(diameter_m, wavelength_m), txtdiametro,
            "IL DIAMETRO DEVE ESSERE ALMENO UNA LUNGHEZZA D'ONDA");
    const DishGain dish = dish_gain(diameter_m, wavelength_m, txtrendimento.value() / 100);
    lblguadagno = "GUADAGNO = " + fixed(dish.gain_dbi, 1) + " dBi, " +
                  fixed(dish.gain_dbi - half_wave_dipole_gain_dbi, 1) + " dBd";
    lblapertura = "APERTURA DEL FASCIO A 3 dB = " + fixed(dish.beamwidth_degrees, 2) + " GRADI";
    lblarea = "AREA EFFICACE = " + sig(dish.effective_area_m2, 4) + " mq";
    lblcampo = "CAMPO LONTANO OLTRE " + sig(dish.far_field_m, 3) + " mt.";
    lblerrore = "ERRORE DI SUPERFICIE (EFFICACE) PER 1 dB DI PERDITA = " +
                sig(dish.surface_error_m * mm_in_metre, 3) + " mm";
    draw_pattern(dish.beamwidth_degrees);
  }

  void draw_pattern(Real beamwidth_degrees) {
    constexpr double beamwidths_to_a_side = 4;
    const Real end_degrees = std::min(beamwidths_to_a_side * beamwidth_degrees, Real{90});
    const Real half_power_db = dish_pattern_db(beamwidth_degrees / 2, beamwidth_degrees);
    plot.curve([=](Real angle) { return dish_pattern_db(angle, beamwidth_degrees); }, -end_degrees,
               end_degrees)
        .marker(-beamwidth_degrees / 2, half_power_db, "")
        .marker(beamwidth_degrees / 2, half_power_db,
                "A 3 dB " + fixed(beamwidth_degrees, 2) + "°");
  }
};

const ui::Registration<frmparaboliche> registration{"frmparaboliche"};

}  // namespace

}  // namespace eterlab::signals
