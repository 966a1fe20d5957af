#include <array>

#include "common/number_text.h"
#include "filters/filter_response.h"
#include "filters/response_plot.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::filters {

namespace {

constexpr int columns = 58;

struct Kind {
  PassBand band;
  FilterForm form;
};
constexpr std::array<Kind, 4> kinds{{{PassBand::low, FilterForm::pi},
                                     {PassBand::low, FilterForm::tee},
                                     {PassBand::high, FilterForm::pi},
                                     {PassBand::high, FilterForm::tee}}};

// What a filter of three elements does that was designed elsewhere, or built with parts at hand.
class frmtestcurvafiltro final : public ui::Calculator {
  ui::OptionArray Option1{this,
                          "Option1",
                          {"PASSA BASSO A P GRECO (C - L - C)", "PASSA BASSO A T (L - C - L)",
                           "PASSA ALTO A P GRECO (L - C - L)", "PASSA ALTO A T (C - L - C)"}};
  ui::Input txtinduttanza{
      this, "txtinduttanza", "INDUTTANZA in uH", {.range = {{.lowest = 1e-3, .highest = 1e6}}}};
  ui::Input txtcapacita{
      this, "txtcapacita", "CAPACITA' in pF", {.range = {{.lowest = 1e-2, .highest = 1e9}}}};
  ui::Input txtohm{this,
                   "txtohm",
                   "IMPEDENZA in OHM",
                   {.holds = "50", .range = {{.lowest = 0.1, .highest = 1e5}}}};
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA DA PROVARE in MHz",
                         {.range = {{.lowest = 1e-6, .highest = 1e5}}}};
  ui::Result lblattenuazione{this, "lblattenuazione"};
  ui::Result lbltaglio{this, "lbltaglio"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Schematic drawing{this, "drawing", columns, 19};
  ui::Value lblvaloresorgente{drawing, "lblvaloresorgente"};
  ui::Value lblvalore1{drawing, "lblvalore1"};
  ui::Value lblvalore2{drawing, "lblvalore2"};
  ui::Value lblvalore3{drawing, "lblvalore3"};
  ui::Value lblvalorecarico{drawing, "lblvalorecarico"};
  ui::Plot plot{this,    "plot", response_plot::frequency(), response_plot::attenuation(60),
                columns, 34};

 public:
  frmtestcurvafiltro()
      : Calculator{"frmtestcurvafiltro", "CURVA DI RISPOSTA DI UN FILTRO L C A TRE ELEMENTI"} {
    Option1.preset(0);
    draw();
    lay_out(ui::row(ui::column(Option1, ui::form(txtinduttanza, txtcapacita, txtohm, txtfrequenza),
                               lblattenuazione, lbltaglio, lbloutput, ui::stretch()),
                    ui::column(drawing, plot)));

    Option1.on_click([this](int /*index*/) { draw(); });
  }

  void show_example() override { fill_in({"1.59", "318", "50", "14.2"}); }

 private:
  [[nodiscard]] Kind kind() const { return kinds[static_cast<std::size_t>(Option1.selected())]; }

  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double line = 4;
    constexpr double common_line = 17;
    constexpr double between = (line + common_line) / 2;
    constexpr double input = 9;
    constexpr double output = 49;
    drawing.clear();
    drawing.wire({{input, common_line}, {output, common_line}});
    if (kind().form == FilterForm::pi) {
      constexpr double left = 14.5;
      constexpr double right = 35.5;
      drawing.wire({{input, line}, {left, line}}).wire({{right, line}, {output, line}});
      draw_across(left, line, common_line, lblvalore1);
      draw_in_line(left, right, line, lblvalore2);
      draw_across(right, line, common_line, lblvalore3);
    } else {
      constexpr double middle = (input + output) / 2;
      draw_in_line(input, middle, line, lblvalore1);
      draw_across(middle, line, common_line, lblvalore2);
      draw_in_line(middle, output, line, lblvalore3);
    }
    for (const double x : {input, output}) {
      drawing.terminal({x, line}).terminal({x, common_line});
    }
    drawing.label(lblvaloresorgente, {input, between}, Side::left)
        .label(lblvalorecarico, {output, between}, Side::right);
  }

  void draw_in_line(double from, double to, double line, ui::Label& value) {
    if (kind().band == PassBand::low) {
      drawing.inductor({from, line}, {to, line}).named("L", value);
    } else {
      drawing.capacitor({from, line}, {to, line}).named("C", value);
    }
  }

  void draw_across(double x, double line, double common_line, ui::Label& value) {
    if (kind().band == PassBand::low) {
      drawing.capacitor({x, line}, {x, common_line}).named("C", value);
    } else {
      drawing.inductor({x, line}, {x, common_line}).named("L", value);
    }
    drawing.junction({x, line}).junction({x, common_line});
  }

  void compute() override {
    const auto [band, form] = kind();
    const ThreeElementFilter filter{.band = band,
                                    .form = form,
                                    .inductance_h = 1e-6 * txtinduttanza.value(),
                                    .capacitance_f = 1e-12 * txtcapacita.value(),
                                    .impedance_ohm = txtohm.value()};
    const Real frequency_hz = 1e6 * txtfrequenza.value();
    const Real told_db = attenuation_db(filter, frequency_hz);
    const Real cutoff = cutoff_hz(filter);

    lblattenuazione = "ATTENUAZIONE = " + fixed(told_db, 2) + " dB";
    lbltaglio = "TAGLIO A 3 dB = " + eng(cutoff, "Hz");
    lbloutput = "PASSA IL " + fixed(100 * passed_share(told_db), 2) + " % DELLA POTENZA";
    tell_elements(filter);
    const Real from_hz = cutoff / 10;
    const Real to_hz = 10 * cutoff;
    plot.curve([filter](Real at_hz) { return attenuation_db(filter, at_hz); }, from_hz, to_hz)
        .marker(cutoff, "TAGLIO " + eng(cutoff, "Hz"));
    if (frequency_hz >= from_hz && frequency_hz <= to_hz) {
      plot.marker(frequency_hz, "PROVA " + eng(frequency_hz, "Hz"));
    }
  }

  void tell_elements(const ThreeElementFilter& filter) {
    const bool has_two_coils = (filter.band == PassBand::low) == (filter.form == FilterForm::tee);
    const std::string inductance = eng(filter.inductance_h, "H");
    const std::string capacitance = eng(filter.capacitance_f, "F");
    lblvalore1 = has_two_coils ? inductance : capacitance;
    lblvalore2 = has_two_coils ? capacitance : inductance;
    lblvalore3 = lblvalore1.content();
    lblvaloresorgente = eng(filter.impedance_ohm, "Ohm");
    lblvalorecarico = lblvaloresorgente.content();
  }
};

const ui::Registration<frmtestcurvafiltro> registration{"frmtestcurvafiltro"};

}  // namespace

}  // namespace eterlab::filters
