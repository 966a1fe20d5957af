#include "filters/notch_window.h"

#include "common/number_text.h"
#include "filters/response_plot.h"

namespace eterlab::filters {

namespace {

// The drawing, in steps of its grid.
constexpr int columns = 58;
constexpr int rows = 24;
constexpr double line = 8.5;
constexpr double common_line = 21;
constexpr double source_x = 5;
constexpr double load_x = 45;

}  // namespace

NotchWindow::NotchWindow(const NotchKind& kind)
    : Calculator{kind.window, kind.title},
      kind_{kind},
      txtfrequenza{this, "txtfrequenza", kind.frequency_prompt},
      txtbanda{this, "txtbanda", kind.bandwidth_prompt},
      txtohm{this, "txtohm", "IMPEDENZA DELLA LINEA in OHM", {.holds = kind.usual_impedance}},
      txtq{this,
           "txtq",
           "Q DELLA BOBINA",
           {.holds = kind.usual_quality_factor, .range = {{.lowest = 1, .highest = 1e6}}}},
      drawing{this, "drawing", columns, rows},
      plot{this, "plot", response_plot::frequency(), response_plot::attenuation(), columns, 32} {
  Option1.preset(0);
  draw();
  lay_out(ui::column(ui::row(ui::column(Option1, ui::form(txtfrequenza, txtbanda, txtohm, txtq),
                                        lblinduttanza, lblcapacita, lblattenuazione, ui::stretch()),
                             ui::column(drawing, plot)),
                     lblbanda),
          {&cmdchiamabobine});

  Option1.on_click([this](int /*index*/) { draw(); });
  cmdchiamabobine.on_click([this] { cmdchiamabobine_click(); });
}

TrapForm NotchWindow::form() const {
  return Option1.selected() == 0 ? TrapForm::series_to_ground : TrapForm::parallel_in_line;
}

void NotchWindow::draw() {
  constexpr double ground = 25;
  drawing.clear();
  drawing.ac_source({source_x, line}, {source_x, common_line})
      .resistor({load_x, line}, {load_x, common_line})
      .named("Z", lblvalorecarico)
      .wire({{source_x, common_line}, {load_x, common_line}})
      .ground({ground, common_line});
  if (form() == TrapForm::series_to_ground) {
    draw_series_to_ground();
  } else {
    draw_parallel_in_line();
  }
}

void NotchWindow::draw_series_to_ground() {
  constexpr double trap = 25;
  constexpr double between = (line + common_line) / 2;
  drawing.resistor({source_x, line}, {trap, line})
      .named("Z", lblvaloresorgente)
      .wire({{trap, line}, {load_x, line}})
      .junction({trap, line})
      .inductor({trap, line}, {trap, between})
      .named("L", lblvaloreinduttanza)
      .capacitor({trap, between}, {trap, common_line})
      .named("C", lblvalorecapacita)
      .junction({trap, common_line});
}

void NotchWindow::draw_parallel_in_line() {
  constexpr double left = 22;
  constexpr double right = 38;
  constexpr double above = 4.5;
  constexpr double below = 2 * line - above;
  drawing.resistor({source_x, line}, {left, line})
      .named("Z", lblvaloresorgente)
      .junction({left, line})
      .wire({{left, above}, {left, below}})
      .inductor({left, above}, {right, above})
      .named("L", lblvaloreinduttanza)
      .capacitor({left, below}, {right, below})
      .named("C", lblvalorecapacita)
      .wire({{right, above}, {right, below}})
      .junction({right, line})
      .wire({{right, line}, {load_x, line}});
}

void NotchWindow::cmdchiamabobine_click() {
  move_to({180, 250});
  open("frmbobine");
  place("frmbobine", {8000, 6250});
}

void NotchWindow::compute() {
  const NotchTask task{.frequency_hz = kind_.frequency_unit_hz * txtfrequenza.value(),
                       .bandwidth_hz = kind_.bandwidth_unit_hz * txtbanda.value(),
                       .impedance_ohm = txtohm.value()};
  const Real quality_factor = txtq.value();
  // In the unit of the frequency, so that equal ones are equal to the last digit.
  const double bands_in_frequency_unit = kind_.frequency_unit_hz / kind_.bandwidth_unit_hz;
  require(txtbanda.value() / bands_in_frequency_unit < txtfrequenza.value(), txtbanda,
          "LA BANDA DEVE ESSERE MINORE DELLA FREQUENZA");

  const auto [inductance_h, capacitance_f] = trap(form(), task);
  const auto [lower_hz, upper_hz] = notch_edges(task);
  const auto attenuation = [task, quality_factor](Real frequency_hz) {
    return notch_attenuation_db(task, quality_factor, frequency_hz);
  };
  const std::string lower = eng(lower_hz, "Hz", 6);
  const std::string upper = eng(upper_hz, "Hz", 6);
  lblvaloreinduttanza = eng(inductance_h, "H");
  lblvalorecapacita = eng(capacitance_f, "F");
  lblvaloresorgente = eng(task.impedance_ohm, "Ohm");
  lblvalorecarico = lblvaloresorgente.content();
  lblinduttanza = "INDUTTANZA = " + lblvaloreinduttanza.content();
  lblcapacita = "CAPACITA' = " + lblvalorecapacita.content();
  lblattenuazione = "ATTENUAZIONE AL CENTRO = " + fixed(attenuation(task.frequency_hz), 1) + " dB";
  lblbanda = "BANDA A 3 dB DA " + lower + " A " + upper;
  plot.curve(attenuation, task.frequency_hz / 4, 4 * task.frequency_hz)
      .marker(lower_hz, lower)
      .marker(task.frequency_hz, eng(task.frequency_hz, "Hz", 6))
      .marker(upper_hz, upper);
}

}  // namespace eterlab::filters
