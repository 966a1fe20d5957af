#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/geometry/facing_strips.h"
#include "lines/geometry/line_window.h"
#include "ui/measures.h"

namespace eterlab::lines {

namespace {

constexpr ui::Range strip_range_mm{0.01, 1000};

// Two facing strips: flat bars in air, or traces on both faces of a board.
class frmstrip final : public LineWindow {
  EitherInput either{this,
                     {"TROVARE L'IMPEDENZA", "LARGHEZZA DELLE STRISCE in mm", strip_range_mm},
                     {"TROVARE LA LARGHEZZA", "IMPEDENZA in Ohm", impedance_range_ohm}};
  ui::Input txtdistanza{this,
                        "txtdistanza",
                        "DISTANZA TRA LE STRISCE in mm",
                        {.range = strip_range_mm, .tells_range = true, .prompt_name = "Label1"}};
  ui::Input txtspessore{this,
                        "txtspessore",
                        "SPESSORE DELLE STRISCE in mm",
                        {.tooltip = ": 0.035 per i circuiti stampati",
                         .range = ui::Range{0.001, 100},
                         .tells_range = true,
                         .prompt_name = "Label2"}};
  DielectricInput dielectric{this, "Label3"};
  ui::Schematic drawing{this, "drawing", 50, 20};
  ui::Value lblquota1{drawing, "lblquota1", "s"};
  ui::Value lblquota2{drawing, "lblquota2", "t"};
  ui::Value lblquota3{drawing, "lblquota3", "w"};
  ui::Result lblrisultato{this, "lblrisultato"};
  LineResults line{this};
  ui::Note Label4{this, "Label4",
                  "IL DIELETTRICO STA SOLO TRA LE STRISCE E SPORGE AI LATI ALMENO QUANTO LA LORO "
                  "DISTANZA"};

 public:
  frmstrip() : LineWindow{"frmstrip", "IMPEDENZA DI DUE STRISCE PARALLELE AFFACCIATE"} {
    draw();
    lay_out(
        ui::column(either.Frame1, ui::form(txtdistanza, txtspessore, either.txtinput, dielectric),
                   ui::row(ui::column(lblrisultato, line, ui::stretch()), drawing), Label4),
        {}, 108);
  }

  void show_example() override { fill_in({"1.6", "0.035", "5", "4.4"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double strip_left = 16;
    constexpr double strip_right = 33;
    constexpr double sheet_left = 13.5;
    constexpr double sheet_right = 35.5;
    constexpr double upper = 9;
    constexpr double lower = 15;
    constexpr double thickness = 1.2;
    drawing.shaded_box({strip_left, upper - thickness}, {strip_right, upper})
        .shaded_box({strip_left, lower}, {strip_right, lower + thickness})
        .dashed(
            {{strip_left, upper}, {sheet_left, upper}, {sheet_left, lower}, {strip_left, lower}})
        .dashed({{strip_right, upper},
                 {sheet_right, upper},
                 {sheet_right, lower},
                 {strip_right, lower}});
    measure_height(drawing, {sheet_right, upper}, {sheet_right, lower}, 38.5, lblquota1, right);
    measure_thin_height(drawing, {strip_left, upper - thickness}, {strip_left, upper}, 12,
                        lblquota2, left);
    measure_width(drawing, {strip_left, upper - thickness}, {strip_right, upper - thickness}, 4.5,
                  lblquota3, above);
  }

  void compute() override {
    const Real distance_mm = txtdistanza.value();
    const Real thickness_mm = txtspessore.value();
    FacingStrips strips{distance_mm, thickness_mm, either.value(),
                        dielectric.relative_permittivity()};
    advise(reaches(distance_mm / 2, thickness_mm), txtspessore,
           "LO SPESSORE NON PUO' SUPERARE META' DELLA DISTANZA");
    if (either.is_first()) {
      require_width(strips);
    } else {
      strips.width = checked_width_mm(strips);
    }
    const StripLine found = strip_line(strips);
    const Real impedance_ohm = either.is_first() ? found.impedance_ohm : either.value();
    lblrisultato = either.is_first()
                       ? impedance_text(impedance_ohm)
                       : "LARGHEZZA DELLE STRISCE = " + fixed(strips.width, 2) + " mm";
    line.show(impedance_ohm, found.velocity_factor);
    lblquota1 = millimetres(distance_mm);
    lblquota2 = millimetres(thickness_mm);
    lblquota3 = either.is_first() ? millimetres(strips.width) : computed_millimetres(strips.width);
  }

  void require_width(const FacingStrips& strips) {
    advise(reaches(strips.width, strips.thickness), either.txtinput,
           "LA LARGHEZZA NON PUO' ESSERE MINORE DELLO SPESSORE");
    advise(reaches(strips.width, narrowest_strip(strips)) &&
               reaches(widest_strip(strips), strips.width),
           either.txtinput, "LA LARGHEZZA DEVE STARE TRA 0,05 E 50 VOLTE LA DISTANZA");
  }

  Real checked_width_mm(FacingStrips strips) {
    const Real impedance_ohm = either.value();
    strips.width = widest_strip(strips);
    const Real least_ohm = strip_line(strips).impedance_ohm;
    strips.width = narrowest_strip(strips);
    const Real greatest_ohm = strip_line(strips).impedance_ohm;
    advise(impedance_ohm >= least_ohm && impedance_ohm <= greatest_ohm, either.txtinput,
           impedance_limits_text(least_ohm, greatest_ohm));
    return strip_width(strips, impedance_ohm);
  }
};

const ui::Registration<frmstrip> registration{"frmstrip"};

}  // namespace

}  // namespace eterlab::lines
