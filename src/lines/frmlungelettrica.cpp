#include <algorithm>
#include <string>

#include "common/number_text.h"
#include "lines/electrical_length.h"
#include "lines/section_window.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

// What a run of cable is electrically, and where to cut it.
class frmlungelettrica final : public LineWindow {
  ui::Input txtfrequenza = section_frequency_input(this);
  ui::Input txtlunghezza{this,
                         "txtlunghezza",
                         "LUNGHEZZA FISICA in mt.",
                         {.range = ui::Range{0.001, 10'000}, .prompt_name = "Label2"}};
  ui::Input txtvelocita{
      this,
      "txtvelocita",
      "FATTORE DI VELOCITA' DEL CAVO",
      {.holds = "0.66", .range = section_velocity_range, .prompt_name = "Label3"}};
  ui::Result lblelettrica{this, "lblelettrica"};
  ui::Result lblonde{this, "lblonde"};
  ui::Result lblritardo{this, "lblritardo"};
  ui::Result lblmezze{this, "lblmezze"};
  ui::Result lblquarti{this, "lblquarti"};
  ui::Result lblonda{this, "lblonda"};
  ui::Schematic drawing{this, "drawing", 75, 20};
  ui::Value lblvaloredata{drawing, "lblvaloredata"};
  ui::Value lblvaloremezze{drawing, "lblvaloremezze"};
  ui::Value lblvalorequarti{drawing, "lblvalorequarti"};
  ui::Note Label4{this, "Label4", "I DUE TAGLI SONO I PRIMI NON PIU' CORTI DELLA LUNGHEZZA DATA"};

 public:
  frmlungelettrica() : LineWindow{"frmlungelettrica", "LUNGHEZZA ELETTRICA DI UN CAVO"} {
    draw();
    lay_out(ui::column(ui::form(txtfrequenza, txtlunghezza, txtvelocita), drawing, lblelettrica,
                       lblonde, lblritardo, lblmezze, lblquarti, lblonda, Label4));

    for (ui::Input* input : {&txtfrequenza, &txtlunghezza, &txtvelocita}) {
      input->on_change([this] { draw(); });
    }
  }

  void show_example() override { fill_in({"14.1", "18.5", "0.66"}); }

 private:
  static std::string metres_text(Real length_m) { return fixed(length_m, 3) + " mt."; }

  void draw() {
    drawing.clear();
    drawing.box({3, cable - 2}, {antenna, cable + 2})
        .named("ANTENNA", Side::centre)
        .box({radio, cable - 2}, {radio + 11, cable + 2})
        .named("APPARATO", Side::centre)
        .label(lblvaloredata, {values, given_row}, Side::right)
        .label(lblvaloremezze, {values, half_waves_row}, Side::right)
        .label(lblvalorequarti, {values, quarters_row}, Side::right)
        .mark({antenna - 0.5, given_row}, "DATA", Side::left)
        .mark({antenna - 0.5, half_waves_row}, "MEZZE ONDE", Side::left)
        .mark({antenna - 0.5, quarters_row}, "QUARTI", Side::left);
  }

  /// To scale, the last eight quarter waves.
  void draw_run(const LineRun& run, Real half_waves_m, Real quarters_m) {
    constexpr int most_quarters = 8;
    const Real quarter_m = run.wavelength_m() / 4;
    const Real end_m = std::max(half_waves_m, quarters_m);
    const Real quarters = round(end_m / quarter_m);
    const Real hidden = std::max<Real>(quarters - most_quarters, 0);
    const bool is_broken = hidden > 0;
    const double start = is_broken ? antenna + 4 : antenna;
    const auto place = [&](Real length_m) {
      const Real share = (length_m / quarter_m - hidden) / (quarters - hidden);
      return start + (radio - start) * share.value();
    };
    if (is_broken) {
      drawing.dashed({{antenna, cable}, {start, cable}});
    }
    drawing.wire({{start, cable}, {radio, cable}});
    for (Real quarter = std::max<Real>(hidden, 1); quarter < quarters; quarter += 1) {
      const double tick = place(quarter * quarter_m);
      drawing.extension({tick, cable - 1}, {tick, cable + 1});
    }
    drawing.dimension({antenna, given_row}, {place(run.length_m), given_row})
        .dimension({antenna, half_waves_row}, {place(half_waves_m), half_waves_row})
        .dimension({antenna, quarters_row}, {place(quarters_m), quarters_row});
  }

  void compute() override {
    const LineRun run =
        run_of_length(txtfrequenza.value(), txtlunghezza.value(), txtvelocita.value());
    const Real wavelength_m = run.wavelength_m();
    const CableCut half_waves = half_wave_cut(run);
    const CableCut quarters = odd_quarter_wave_cut(run);
    lblelettrica = "LUNGHEZZA ELETTRICA = " + metres_text(run.length_in_air_m());
    lblonde = "PARI A " + fixed(run.waves(), 3) + " LAMBDA  -  " + fixed(run.degrees, 1) + " GRADI";
    lblritardo = "RITARDO = " + fixed(1e9 * run.delay_s(), 2) + " ns";
    lblmezze = "TAGLIO A MEZZE ONDE : " + plain(half_waves.pieces) +
               " x 1/2 = " + metres_text(half_waves.length_m);
    lblquarti = "TAGLIO A QUARTI D'ONDA DISPARI : " + plain(quarters.pieces) +
                " x 1/4 = " + metres_text(quarters.length_m);
    lblonda = "1/4 = " + metres_text(wavelength_m / 4) +
              "  -  1/2 = " + metres_text(wavelength_m / 2) +
              "  -  1 LAMBDA = " + metres_text(wavelength_m);
    lblvaloredata = metres_text(run.length_m);
    lblvaloremezze = metres_text(half_waves.length_m);
    lblvalorequarti = metres_text(quarters.length_m);
    draw();
    draw_run(run, half_waves.length_m, quarters.length_m);
  }

  // On the drawing
  static constexpr double cable = 4;
  static constexpr double antenna = 14;  // right edge of its box
  static constexpr double radio = 58;    // left edge of its box
  static constexpr double values = 60;
  static constexpr double given_row = 10;
  static constexpr double half_waves_row = 14;
  static constexpr double quarters_row = 18;
};

const ui::Registration<frmlungelettrica> registration{"frmlungelettrica"};

}  // namespace

}  // namespace eterlab::lines
