#include "common/number_text.h"
#include "materials/metals.h"
#include "materials/skin_effect.h"
#include "ui/plot.h"
#include "ui/ui.h"

namespace eterlab::materials {

namespace {

// How deep a current of high frequency goes into a metal.
class frmpenetrazione final : public ui::Calculator {
  ui::List cmbmetallo{this, "cmbmetallo", "METALLO"};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lblfilo{this, "lblfilo"};
  ui::Result lblresistenza{this, "lblresistenza"};
  ui::Result lblspessore{this, "lblspessore"};
  ui::Plot plot{this, "plot", depth_axis("mm"), density_axis(), 60, 28};

 public:
  frmpenetrazione() : Calculator{"frmpenetrazione", "EFFETTO PELLE: SPESSORE DI PENETRAZIONE"} {
    cmbmetallo.offer(non_magnetic_metals());
    cmbmetallo.choose(copper.name);
    lay_out(ui::column(ui::row(ui::column(ui::form(cmbmetallo, txtfrequenza), ui::stretch()), plot),
                       lbloutput, lblfilo, lblresistenza, lblspessore));
  }

  void show_example() override { fill_in({"1"}); }

 private:
  static constexpr int deepest = 5;

  static ui::Axis depth_axis(std::string_view unit) {
    return {.title = "PROFONDITA'", .unit = std::string{unit}};
  }
  static ui::Axis density_axis() {
    return {.title = "DENSITA' DI CORRENTE", .unit = "%", .range = ui::Interval{0, 100}};
  }

  void compute() override {
    const Real frequency_mhz = txtfrequenza.value();
    require(frequency_mhz <= 1000000, txtfrequenza, "FREQUENZA FINO A 1000000 MHz");
    const Real resistivity_ohm_m = cmbmetallo.chosen_of(non_magnetic_metals()).resistivity_ohm_m();
    const Real frequency_hz = frequency_mhz * 1e6;
    const Real depth_m = skin_depth_m(resistivity_ohm_m, frequency_hz);
    const Real surface_ohm = surface_resistance_ohm(resistivity_ohm_m, frequency_hz);
    lbloutput = "SPESSORE DI PENETRAZIONE = " + eng(depth_m, "m");
    lblfilo = "DIAMETRO DI FILO SFRUTTATO PER INTERO = " + sig(2 * depth_m * 1000, 3) + " mm";
    lblresistenza = "RESISTENZA SUPERFICIALE = " + eng(surface_ohm, "Ohm") + " PER QUADRATO";
    lblspessore = "SPESSORE SUFFICIENTE (5 VOLTE, 99 %) = " + eng(deepest * depth_m, "m");
    show_density(depth_m);
  }

  void show_density(Real depth_m) {
    constexpr double mm_in_m = 1000;
    constexpr double um_in_m = 1e6;
    const bool is_coarse = deepest * depth_m * mm_in_m >= 1;
    const Real depth = depth_m * (is_coarse ? mm_in_m : um_in_m);
    const auto density = [depth](Real at) { return 100 * exp(-at / depth); };
    plot.axes(depth_axis(is_coarse ? "mm" : "\u00b5m"), density_axis());
    plot.curve(density, 0, deepest * depth);
    for (int depths = 1; depths <= deepest; ++depths) {
      const Real at = depths * depth;
      plot.marker(at, plain(depths) + " \u03b4: " + fixed(density(at), 1) + " %");
    }
  }
};

const ui::Registration<frmpenetrazione> registration{"frmpenetrazione"};

}  // namespace

}  // namespace eterlab::materials
