#include <string>

#include "antennas/dipoles/coil_loaded_dipole.h"
#include "antennas/dipoles/dipole_drawing.h"
#include "antennas/dipoles/dipole_window.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

constexpr double nearest_share = 0.05;  // of a coil's place along the arm
constexpr double furthest_share = 0.9;

// A dipole for who has less room than a half wave: the coils that it takes, and what they cost.
class frmtrappolata final : public DipoleWindow {
  ui::Schematic drawing{this, "drawing", 72, 16};
  ui::Value lbltotale{drawing, "lbltotale"};
  ui::Value lblind{drawing, "lblind"};
  ui::Value lbltratto1{drawing, "lbltratto1"};
  ui::Value lbltratto2{drawing, "lbltratto2"};
  ui::Input txtfrequenza{
      this, "txtfrequenza", "FREQUENZA in MHz", {.range = frequencies, .prompt_name = "Label1"}};
  ui::Input txtlunghezza{this,
                         "txtlunghezza",
                         "LUNGHEZZA TOTALE DEL DIPOLO in mt.",
                         {.range = any, .prompt_name = "Label2"}};
  ui::Input txtdistanza{
      this,
      "txtdistanza",
      "DISTANZA DELLE BOBINE DAL CENTRO in mt.",
      {.tooltip = "da 1/20 a 9/10 del braccio", .range = any, .prompt_name = "Label3"}};
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEL CONDUTTORE in mm",
                        {.range = any, .prompt_name = "Label4"}};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lblaccorciamento{this, "lblaccorciamento"};
  ui::Result lblresistenza{this, "lblresistenza"};
  ui::Result lblrendimento{this, "lblrendimento"};
  ui::Result lblbanda{this, "lblbanda"};
  ui::Plot plot{this,
                "plot",
                {.title = "POSTO DELLE BOBINE in % DEL BRACCIO", .range = {{0, 100}}},
                {.title = "RENDIMENTO in %", .range = {{0, 100}}},
                44,
                28};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINA", {"frmbobine", {180, 180}, {4100, 2800}}};

 public:
  frmtrappolata() : DipoleWindow{"frmtrappolata", "DIPOLO ACCORCIATO CON BOBINE DI CARICO"} {
    draw();
    lay_out(ui::column(
                ui::row(ui::stretch(), drawing, ui::stretch()),
                ui::row(ui::column(ui::form(txtfrequenza, txtlunghezza, txtdistanza, txtdiametro),
                                   lblinduttanza, lblreattanza, lblaccorciamento, lblresistenza,
                                   lblrendimento, lblbanda, ui::stretch()),
                        plot)),
            {&cmdchiamabobine});
  }

  void show_example() override { fill_in({"7.1", "12", "3", "2"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double wire = 9.5;
    constexpr double middle = 36;
    constexpr double half = 32;
    constexpr double coil = 16;  // from the middle
    constexpr double half_coil = 2;
    constexpr double sections = 6;
    constexpr double total = 3;
    for (const double side : {-1.0, 1.0}) {
      const auto at = [&](double distance) { return ui::At{middle + side * distance, wire}; };
      drawing.rod({at(half_feed_gap), at(coil - half_coil)})
          .rod({at(coil + half_coil), at(half)})
          .inductor({middle + side * coil - half_coil, wire},
                    {middle + side * coil + half_coil, wire});
      if (side < 0) {
        drawing.named(lblind);
      }
    }
    draw_feeder(drawing, {middle, wire}, 15.5);
    draw_length(drawing, {middle - half, wire}, {middle + half, wire}, total, lbltotale);
    draw_length(drawing, {middle, wire}, {middle + coil, wire - 0.8}, sections, lbltratto1);
    drawing.dimension({middle + coil, sections}, {middle + half, sections})
        .label(lbltratto2, {middle + (coil + half) / 2, sections}, above);
  }

  void compute() override {
    const Real frequency_mhz = txtfrequenza.value();
    const Real arm_m = txtlunghezza.value() / 2;
    const Real coil_place_m = txtdistanza.value();
    require_thin(txtdiametro, {frequency_mhz});
    const Conductor conductor{frequency_mhz, txtdiametro.value()};
    const CoilLoadedDipole dipole{arm_m, coil_place_m, conductor};
    const Real whole_arm_m = half_wave_arm_m(conductor);
    const char* const too_long = "DIPOLO PIU' LUNGO DI 1/2 LAMBDA";
    advise(arm_m < whole_arm_m, txtlunghezza, too_long);
    advise(reaches(2 * arm_m, conductor.wavelength_m() / 10), txtlunghezza,
           "DIPOLO TROPPO CORTO: MENO DI 1/10 DI LAMBDA");
    advise(reaches(furthest_share * arm_m, coil_place_m), txtdistanza, "DISTANZA ECCESSIVA");
    advise(reaches(coil_place_m, nearest_share * arm_m), txtdistanza, "DISTANZA INSUFFICIENTE");
    advise(!is_resonant_without_coils(dipole), txtlunghezza, too_long);

    const CoilLoading loading = coil_loading(dipole);
    const std::string inductance_uh = fixed(loading.inductance_h * 1e6, 2) + " uH";
    lblinduttanza = "INDUTTANZA DI OGNI BOBINA = " + inductance_uh;
    lblreattanza = "REATTANZA = " + fixed(loading.reactance_ohm, 0) + " Ohm";
    lblaccorciamento = "IL DIPOLO E' IL " + fixed(100 * arm_m / whole_arm_m, 0) +
                       " % DI QUELLO INTERO DI " + metres_text(2 * whole_arm_m);
    lblresistenza = "RESISTENZA AL CENTRO = " + fixed(loading.resistance_ohm, 1) + " Ohm";
    lblrendimento = "RENDIMENTO CON BOBINE DI Q 200 = " + fixed(100 * loading.efficiency, 0) + " %";
    lblbanda = "BANDA PASSANTE A ROS 2 = " + fixed(loading.bandwidth_hz / 1000, 0) + " kHz";
    lblind = inductance_uh;
    lbltratto1 = metres_text(coil_place_m);
    lbltratto2 = metres_text(arm_m - coil_place_m);
    lbltotale = metres_text(2 * arm_m);
    plot.curve(
            [dipole](Real place_percent) {
              CoilLoadedDipole other = dipole;
              other.coil_place_m = place_percent / 100 * dipole.arm_m;
              return 100 * coil_loading_efficiency(other);
            },
            100 * nearest_share, 100 * furthest_share)
        .marker(100 * coil_place_m / arm_m, 100 * loading.efficiency,
                fixed(100 * loading.efficiency, 0) + " %");
  }
};

const ui::Registration<frmtrappolata> registration{"frmtrappolata"};

}  // namespace

}  // namespace eterlab::antennas
