#include "common/number_text.h"
#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/line_window.h"
#include "lines/geometry/uniform_line.h"
#include "ui/measures.h"

namespace eterlab::lines {

namespace {

// Open-wire line far from other conductors.
class frmbifilareaperta final : public LineWindow {
  EitherInput either{this,
                     {"TROVARE L'IMPEDENZA", "DISTANZA TRA I CENTRI in mm", distance_range_mm},
                     {"TROVARE LA DISTANZA TRA I FILI", "IMPEDENZA in Ohm", impedance_range_ohm}};
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEI FILI in mm",
                        {.range = wire_range_mm, .tells_range = true, .prompt_name = "Label1"}};
  ui::Input txtfattore = velocity_factor_input(this, "Label2");
  ui::Schematic drawing{this, "drawing", 40, 18};
  ui::Value lblquota1{drawing, "lblquota1", "d"};
  ui::Value lblquota2{drawing, "lblquota2", "D"};
  ui::Result lblrisultato{this, "lblrisultato"};
  ui::Result lblluce{this, "lblluce"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblinduttanza{this, "lblinduttanza"};

 public:
  frmbifilareaperta() : LineWindow{"frmbifilareaperta", "IMPEDENZA DELLA LINEA BIFILARE APERTA"} {
    draw();
    lay_out(ui::column(
        ui::row(ui::column(either.Frame1, ui::form(txtdiametro, either.txtinput, txtfattore),
                           ui::stretch()),
                drawing),
        lblrisultato, lblluce, lblcapacita, lblinduttanza));
  }

  void show_example() override { fill_in({"2", "100", "1"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double radius = 3;
    constexpr ui::At first{9, 9};
    constexpr ui::At second{31, 9};
    drawing.shaded_circle(first, radius)
        .shaded_circle(second, radius)
        .dashed({{first.x + radius, first.y}, {second.x - radius, second.y}});
    measure_width(drawing, {first.x - radius, first.y}, {first.x + radius, first.y}, 14, lblquota1,
                  below);
    measure_width(drawing, first, second, 4, lblquota2, above);
  }

  void compute() override {
    const Real diameter_mm = txtdiametro.value();
    const Real factor = txtfattore.value();
    Real spacing_mm = either.value();
    Real impedance_ohm = either.value();
    if (either.is_first()) {
      require(spacing_mm > diameter_mm, either.txtinput,
              "LA DISTANZA TRA I CENTRI DEVE SUPERARE IL DIAMETRO");
      impedance_ohm = push_pull_impedance_ohm(wire_pair_factor(diameter_mm, spacing_mm), factor);
      lblrisultato = impedance_text(impedance_ohm);
      lblquota2 = millimetres(spacing_mm);
    } else {
      spacing_mm = wire_pair_spacing(diameter_mm, push_pull_geometry_factor(impedance_ohm, factor));
      advise(spacing_mm <= distance_range_mm.highest, either.txtinput,
             "LA DISTANZA SUPERA 100 METRI: RIDURRE L'IMPEDENZA O IL DIAMETRO");
      lblrisultato = "DISTANZA TRA I CENTRI = " + fixed(spacing_mm, 2) + " mm";
      lblquota2 = computed_millimetres(spacing_mm);
    }
    const LineConstants constants = line_constants(impedance_ohm, factor);
    lblluce = "SPAZIO LIBERO TRA I FILI = " + fixed(spacing_mm - diameter_mm, 2) + " mm";
    lblcapacita = "CAPACITA' = " + picofarad_per_metre(constants.capacitance_f_per_m);
    lblinduttanza = "INDUTTANZA = " + microhenry_per_metre(constants.inductance_h_per_m);
    lblquota1 = millimetres(diameter_mm);
  }
};

const ui::Registration<frmbifilareaperta> registration{"frmbifilareaperta"};

}  // namespace

}  // namespace eterlab::lines
