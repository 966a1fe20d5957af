#include <algorithm>

#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/line_window.h"
#include "lines/geometry/section_drawing.h"
#include "lines/geometry/uniform_line.h"
#include "ui/measures.h"
#include "ui/plot.h"

namespace eterlab::lines {

namespace {

ui::Axis height_axis() { return {.title = "ALTEZZA", .unit = "mm"}; }

Real balanced_ohm(const PairOverGround& pair) {
  return push_pull_impedance_ohm(push_pull_factor(pair), 1);
}

// A balanced line along a metal plane, and its two wires together against the plane.
class frmbifilareterra final : public LineWindow {
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEI FILI in mm",
                        {.range = wire_range_mm, .tells_range = true, .prompt_name = "Label1"}};
  ui::Input txtdistanza{this,
                        "txtdistanza",
                        "DISTANZA TRA I CENTRI in mm",
                        {.range = distance_range_mm, .tells_range = true, .prompt_name = "Label2"}};
  ui::Input txtaltezza{this,
                       "txtaltezza",
                       "ALTEZZA DEI CENTRI DAL PIANO in mm",
                       {.range = distance_range_mm, .tells_range = true, .prompt_name = "Label3"}};
  ui::Schematic drawing{this, "drawing", 43, 22};
  ui::Value lblquota1{drawing, "lblquota1", "d"};
  ui::Value lblquota2{drawing, "lblquota2", "D"};
  ui::Value lblquota3{drawing, "lblquota3", "h"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lbllibera{this, "lbllibera"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblparallelo{this, "lblparallelo"};
  ui::Plot plot{this, "plot", height_axis(), {.title = "IMPEDENZA", .unit = "Ohm"}, 44, 25};
  ui::Note Label4{this, "Label4",
                  "FILI NELL'ARIA ALLA STESSA ALTEZZA, PIANO METALLICO ESTESO ALMENO DUE VOLTE "
                  "L'ALTEZZA PER PARTE"};

 public:
  frmbifilareterra()
      : LineWindow{"frmbifilareterra", "IMPEDENZA DELLA LINEA BIFILARE SOPRA UN PIANO DI TERRA"} {
    draw();
    lay_out(
        ui::column(ui::row(ui::column(ui::form(txtdiametro, txtdistanza, txtaltezza), lblimpedenza,
                                      lbllibera, lblcapacita, lblparallelo, ui::stretch()),
                           ui::column(drawing, plot)),
                   Label4));
  }

  void show_example() override { fill_in({"2", "100", "50"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double radius = 2;
    constexpr double plane_height = 19;
    constexpr ui::At first{9, 8};
    constexpr ui::At second{20, 8};
    drawing.shaded_circle(first, radius).shaded_circle(second, radius);
    plane(drawing, {28, plane_height}, {4, plane_height});
    measure_width(drawing, {first.x - radius, first.y}, {first.x + radius, first.y}, 12, lblquota1,
                  below);
    measure_width(drawing, first, second, 3.5, lblquota2, above);
    measure_height(drawing, {second.x + radius, second.y}, {28, plane_height}, 30, lblquota3,
                   right);
  }

  void compute() override {
    const PairOverGround pair{txtdiametro.value(), txtdistanza.value(), txtaltezza.value()};
    advise(reaches(pair.spacing, 1.5 * pair.diameter), txtdistanza,
           "LA DISTANZA DEVE ESSERE ALMENO 1,5 VOLTE IL DIAMETRO");
    advise(reaches(pair.height, 2 * pair.diameter), txtaltezza,
           "L'ALTEZZA DEVE ESSERE ALMENO 2 VOLTE IL DIAMETRO");
    const Real impedance_ohm = balanced_ohm(pair);
    const Real free_ohm = push_pull_impedance_ohm(wire_pair_factor(pair.diameter, pair.spacing), 1);
    const Real joined_ohm = single_ended_impedance_ohm(joined_factor(pair), 1);
    lblimpedenza = "IMPEDENZA BILANCIATA = " + fixed(impedance_ohm, 1) + " Ohm";
    lbllibera = "SENZA IL PIANO = " + fixed(free_ohm, 1) + " Ohm  (" +
                fixed(100 * (impedance_ohm / free_ohm - 1), 1) + " %)";
    lblcapacita = "CAPACITA' TRA I FILI = " +
                  picofarad_per_metre(line_constants(impedance_ohm, 1).capacitance_f_per_m);
    lblparallelo = "I DUE FILI UNITI VERSO IL PIANO = " + fixed(joined_ohm, 1) + " Ohm";
    lblquota1 = millimetres(pair.diameter);
    lblquota2 = millimetres(pair.spacing);
    lblquota3 = millimetres(pair.height);
    draw_curve(pair, impedance_ohm, free_ohm);
  }

  void draw_curve(const PairOverGround& pair, Real impedance_ohm, Real free_ohm) {
    const Real least_mm = 2 * pair.diameter;
    const Real most_mm = std::max(2 * pair.height, 3 * pair.spacing);
    const Real top_ohm = 100 * (floor(free_ohm / 100) + 1);
    ui::Axis across = height_axis();
    across.range = {least_mm.value(), most_mm.value()};
    plot.axes(across,
              {.title = "IMPEDENZA", .unit = "Ohm", .range = ui::Interval{0, top_ohm.value()}});
    plot.curve(
            [&](Real height_mm) {
              return balanced_ohm({pair.diameter, pair.spacing, height_mm});
            },
            least_mm, most_mm, "CON IL PIANO")
        .marker(pair.height, fixed(impedance_ohm, 1) + " Ohm")
        .curve([&](Real) { return free_ohm; }, least_mm, most_mm, "SENZA IL PIANO");
  }
};

const ui::Registration<frmbifilareterra> registration{"frmbifilareterra"};

}  // namespace

}  // namespace eterlab::lines
