#include "common/number_text.h"
#include "materials/metals.h"
#include "materials/round_wire.h"
#include "materials/skin_effect.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::materials {

namespace {

// The resistance of a round wire at radio frequencies.
class frmresistenzarf final : public ui::Calculator {
  ui::List cmbmetallo{this, "cmbmetallo", "METALLO"};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz"};
  ui::Input txtdiametro{this, "txtdiametro", "DIAMETRO DEL FILO in mm"};
  ui::Input txtlunghezza{this, "txtlunghezza", "LUNGHEZZA in mt."};
  ui::Result lblpelle{this, "lblpelle"};
  ui::Result lblcontinua{this, "lblcontinua"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lblrapporto{this, "lblrapporto"};
  ui::Schematic drawing{this, "drawing", 33, 23};
  ui::Value lblvalorepelle{drawing, "lblvalorepelle"};
  ui::Value lblvalorediametro{drawing, "lblvalorediametro"};

 public:
  frmresistenzarf() : Calculator{"frmresistenzarf", "RESISTENZA DI UN FILO IN RADIOFREQUENZA"} {
    cmbmetallo.offer(non_magnetic_metals());
    cmbmetallo.choose(copper.name);
    lay_out(
        ui::column(ui::row(ui::column(ui::form(cmbmetallo, txtfrequenza, txtdiametro, txtlunghezza),
                                      ui::stretch()),
                           drawing),
                   lblpelle, lblcontinua, lbloutput, lblrapporto));
    const auto forget = [this] { draw(any_radius_in_skin_depths); };
    cmbmetallo.on_choose(forget);
    for (ui::Input* input : {&txtfrequenza, &txtdiametro, &txtlunghezza}) {
      input->on_change(forget);
    }
    forget();
  }

  void show_example() override { fill_in({"7.1", "2", "10"}); }

 private:
  static constexpr double any_radius_in_skin_depths = 6;

  void draw(Real radius_in_skin_depths) {
    using Side = ui::Schematic::Side;
    constexpr ui::At centre{11, 10};
    constexpr double radius = 8;
    constexpr double surface = centre.x + radius;
    constexpr double diameter_y = 20.5;
    constexpr double arrow_length = 4;
    drawing.clear();
    if (radius_in_skin_depths > 1) {
      const double depth = radius / radius_in_skin_depths.value();
      const double inner_radius = radius - depth;
      drawing.shaded_ring(centre, inner_radius, radius);
      if (2 * inner_radius > arrow_length) {
        const double layer = surface - depth;
        drawing.arrow({layer - arrow_length, centre.y}, {layer, centre.y});
      }
    } else {
      drawing.shaded_circle(centre, radius);
    }
    drawing.arrow({surface + arrow_length, centre.y}, {surface, centre.y})
        .mark({surface + arrow_length, centre.y - 1}, "\u03b4", Side::right)
        .label(lblvalorepelle, {surface + arrow_length, centre.y + 1}, Side::right)
        .dimension({centre.x - radius, diameter_y}, {centre.x + radius, diameter_y})
        .mark({centre.x, diameter_y}, "d", Side::above)
        .label(lblvalorediametro, {centre.x, diameter_y}, Side::below);
  }

  void compute() override {
    const Real frequency_mhz = txtfrequenza.value();
    const Real diameter_mm = txtdiametro.value();
    require(frequency_mhz <= 100000, txtfrequenza, "FREQUENZA FINO A 100000 MHz");
    require(diameter_mm <= 1000, txtdiametro, "DIAMETRO FINO A 1000 mm");
    const Metal& metal = cmbmetallo.chosen_of(non_magnetic_metals());
    const Real depth_m = skin_depth_m(metal.resistivity_ohm_m(), frequency_mhz * 1e6);
    const Real radius_in_skin_depths = diameter_mm / 2000 / depth_m;
    const Real direct_ohm =
        resistance_ohm(metal, round_section_mm2(diameter_mm), txtlunghezza.value());
    const Real ratio = round_wire_impedance_ratio(radius_in_skin_depths).real();
    lblpelle = "SPESSORE DI PENETRAZIONE = " + eng(depth_m, "m");
    lblcontinua = "RESISTENZA IN CONTINUA = " + eng(direct_ohm, "Ohm");
    lbloutput = "RESISTENZA IN RF = " + eng(direct_ohm * ratio, "Ohm");
    lblrapporto = "RAPPORTO RF / CONTINUA = " + sig(ratio, 4);
    draw(radius_in_skin_depths);
    lblvalorepelle = eng(depth_m, "m");
    lblvalorediametro = sig(diameter_mm, 4) + " mm";
  }
};

const ui::Registration<frmresistenzarf> registration{"frmresistenzarf"};

}  // namespace

}  // namespace eterlab::materials
