#include <optional>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "common/physics.h"
#include "lines/electrical_length.h"
#include "lines/section_window.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

// The electrical length of a line: of what is told, the third follows.
class frmgradi final : public LineWindow {
  enum Wanted { degrees, length, frequency };

  ui::OptionArray Option1{this,
                          "Option1",
                          {"DALLA LUNGHEZZA AI GRADI", "DAI GRADI ALLA LUNGHEZZA",
                           "DA LUNGHEZZA E GRADI ALLA FREQUENZA"}};
  ui::Input txtfrequenza = section_frequency_input(this);
  ui::Input txtlunghezza{this,
                         "txtlunghezza",
                         "LUNGHEZZA DELLA LINEA in cm.",
                         {.range = ui::Range{0.1, 1'000'000}, .prompt_name = "Label2"}};
  ui::Input txtgradi{this,
                     "txtgradi",
                     "GRADI ELETTRICI",
                     {.range = ui::Range{0.01, 360'000}, .prompt_name = "Label3"}};
  ui::Input txtvelocita{this,
                        "txtvelocita",
                        "FATTORE DI VELOCITA'",
                        {.tooltip = "1 in aria, 0.66 nei cavi in polietilene",
                         .holds = "1",
                         .range = section_velocity_range,
                         .prompt_name = "Label4"}};
  ui::Schematic drawing{this, "drawing", 48, 18};
  ui::Result lblrisultato{this, "lblrisultato"};
  ui::Result lblfrazione{this, "lblfrazione"};
  ui::Result lblradianti{this, "lblradianti"};
  ui::Result lblritardo{this, "lblritardo"};
  ui::Result lblonda{this, "lblonda"};

 public:
  frmgradi() : LineWindow{"frmgradi", "GRADI ELETTRICI DI UNA LINEA"} {
    Option1.preset(degrees);
    ask();
    draw();
    lay_out(ui::column(
        ui::row(ui::column(Option1, ui::form(txtfrequenza, txtlunghezza, txtgradi, txtvelocita),
                           ui::stretch()),
                drawing),
        lblrisultato, lblfrazione, lblradianti, lblritardo, lblonda));

    Option1.on_click([this](int /*index*/) {
      ask();
      draw();
    });
    for (ui::Input* input : {&txtfrequenza, &txtlunghezza, &txtgradi, &txtvelocita}) {
      input->on_change([this] { draw(); });
    }
  }

  void show_example() override { fill_in({"145", "34.1", "0.66"}); }

 private:
  void ask() {
    const auto ask_for = [](ui::Input& input, bool is_asked) {
      is_asked ? input.show() : input.hide();
    };
    ask_for(txtfrequenza, Option1.selected() != frequency);
    ask_for(txtlunghezza, Option1.selected() != length);
    ask_for(txtgradi, Option1.selected() != degrees);
  }

  /// One wave along the line, perhaps with the place where this one ends in it.
  void draw(const std::optional<Real>& end_degrees = {}) {
    constexpr double left = 4;
    constexpr double right = 44;
    constexpr double axis = 9;
    constexpr double amplitude = 5;
    const auto place = [](double angle) { return left + (right - left) * angle / 360; };
    const auto height = [](double angle) {
      return axis - amplitude * sin(angle / 180 * pi).value();
    };
    drawing.clear();
    drawing.wire({{left - 2, axis}, {right + 2, axis}});
    std::vector<ui::At> wave;
    for (int angle = 0; angle <= 360; angle += 5) {
      wave.push_back({place(angle), height(angle)});
    }
    drawing.curve(wave);
    for (int angle = 0; angle <= 360; angle += 90) {
      drawing.extension({place(angle), axis - 0.6}, {place(angle), axis + 0.6})
          .mark({place(angle), 15}, std::to_string(angle) + "\u00b0", Side::below);
    }
    if (end_degrees) {
      const double angle = (*end_degrees - 360 * floor(*end_degrees / 360)).value();
      drawing.arrow({place(angle), 1}, {place(angle), height(angle)});
    }
  }

  void compute() override {
    const LineRun run = told_run();
    switch (Option1.selected()) {
      case degrees:
        lblrisultato = "GRADI ELETTRICI = " + fixed(run.degrees, 2);
        break;
      case length:
        lblrisultato = "LUNGHEZZA = " + centimetres(run.length_m);
        break;
      default:
        lblrisultato = "FREQUENZA = " + fixed(run.frequency_mhz, 4) + " MHz";
    }
    lblfrazione = "FRAZIONE D'ONDA = " + fixed(run.waves(), 4) + " LAMBDA";
    lblradianti = "RADIANTI = " + fixed(run.radians(), 4);
    lblritardo = "RITARDO = " + fixed(1e9 * run.delay_s(), 2) + " ns";
    lblonda = "LUNGHEZZA D'ONDA NELLA LINEA = " + centimetres(run.wavelength_m());
    draw(run.degrees);
  }

  [[nodiscard]] LineRun told_run() const {
    const Real length_m = txtlunghezza.value() / 100;
    switch (Option1.selected()) {
      case degrees:
        return run_of_length(txtfrequenza.value(), length_m, txtvelocita.value());
      case length:
        return run_of_degrees(txtfrequenza.value(), txtgradi.value(), txtvelocita.value());
      default:
        return run_of_length_and_degrees(length_m, txtgradi.value(), txtvelocita.value());
    }
  }
};

const ui::Registration<frmgradi> registration{"frmgradi"};

}  // namespace

}  // namespace eterlab::lines
