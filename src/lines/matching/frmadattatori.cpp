#include <optional>
#include <string>
#include <utility>

#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/matching/matched_load.h"
#include "lines/section_window.h"
#include "lines/standing_wave.h"
#include "ui/plot.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

// An antenna matched to its cable by a piece of line.
class frmadattatori final : public LineWindow {
  enum Means { quarter_wave_section, series_section, shorted_stub, open_stub };

  ui::OptionArray Option1{this,
                          "Option1",
                          {"TRASFORMATORE A 1/4 D'ONDA", "SEZIONE IN SERIE",
                           "STUB CHIUSO IN PARALLELO", "STUB APERTO IN PARALLELO"}};
  ui::Input txtfrequenza = section_frequency_input(this);
  ui::Input txtr{this,
                 "txtr",
                 "RESISTENZA DELL'ANTENNA in OHM",
                 {.range = section_impedance_range_ohm, .prompt_name = "Label2"}};
  ui::Input txtx{this,
                 "txtx",
                 "REATTANZA DELL'ANTENNA in OHM",
                 {.tooltip = "negativa se capacitiva, vuota se nulla",
                  .range = ui::Range{-10'000, 10'000},
                  .is_optional = true,
                  .prompt_name = "Label3"}};
  ui::Input txtz0{this,
                  "txtz0",
                  "IMPEDENZA DELLA LINEA in OHM",
                  {.range = section_impedance_range_ohm, .prompt_name = "Label4"}};
  ui::Input txtzs{this,
                  "txtzs",
                  "IMPEDENZA DELLA SEZIONE O STUB in OHM",
                  {.range = section_impedance_range_ohm, .prompt_name = "Label5"}};
  ui::Input txtvelocita{
      this,
      "txtvelocita",
      "FATTORE DI VELOCITA' DEI CAVI",
      {.holds = "0.66", .range = section_velocity_range, .prompt_name = "Label6"}};
  ui::Schematic drawing{this, "drawing", 48, 24};
  ui::Value lblt{drawing, "lblt"};
  ui::Value lblz{drawing, "lblz"};
  ui::Value lbld{drawing, "lbld"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lbldistanza{this, "lbldistanza"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Result lblcavo{this, "lblcavo"};
  ui::Result lblros{this, "lblros"};
  ui::Result lblbanda{this, "lblbanda"};
  ui::Plot plot{this, "plot", frequency_axis({}), swr_axis(), 48, 28};
  ui::Note Label7{this, "Label7",
                  "LA BANDA VALE PER UN'ANTENNA DI IMPEDENZA COSTANTE. LINEA E SEZIONE CON LO "
                  "STESSO FATTORE DI VELOCITA'"};
  ui::CompanionButton cmdchiamaesempi{
      *this,
      "cmdchiamaesempi",
      "ESEMPI DI ADATTATORI",
      {"frmesempiadattatori", cable_catalogue.caller_corner, cable_catalogue.corner}};
  ui::CompanionButton cmdchiamacavi{*this, "cmdchiamacavi", "CAVI COASSIALI", cable_catalogue};

 public:
  frmadattatori() : LineWindow{"frmadattatori", "ADATTATORI D'IMPEDENZA CON TRATTI DI LINEA"} {
    Option1.preset(quarter_wave_section);
    ask();
    draw();
    lay_out(
        ui::column(ui::row(ui::column(Option1,
                                      ui::form(txtfrequenza, txtr, txtx, txtz0, txtzs, txtvelocita),
                                      lblimpedenza, ui::alternatives(lblcavo, lbldistanza),
                                      lbllunghezza, lblros, lblbanda, ui::stretch()),
                           ui::column(drawing, plot)),
                   Label7),
        {&cmdchiamaesempi, &cmdchiamacavi}, 120);

    Option1.on_click([this](int /*index*/) {
      ask();
      draw();
    });
  }

  void show_example() override { fill_in({"14.2", "112", "50", "0.66"}); }

 private:
  static constexpr double good_swr = 1.5;

  static ui::Axis frequency_axis(const std::optional<ui::Interval>& range) {
    return {.title = "FREQUENZA", .unit = "MHz", .range = range};
  }
  static ui::Axis swr_axis() { return {.title = "ROS", .range = ui::Interval{1, 3}}; }

  void ask() {
    const bool is_quarter_wave = Option1.selected() == quarter_wave_section;
    for (ui::Input* input : {&txtx, &txtzs}) {
      is_quarter_wave ? input->hide() : input->show();
    }
    lblcavo.setVisible(is_quarter_wave);
    lbldistanza.setVisible(!is_quarter_wave);
  }

  void draw() {
    drawing.clear();
    drawing.mark({4.5, (upper + lower) / 2}, "LINEA")
        .box({antenna, upper - 3}, {antenna + 10, lower + 3})
        .named("ANTENNA", Side::centre);
    switch (Option1.selected()) {
      case quarter_wave_section:
        draw_section(12, 31);
        drawing.label(lblz, {21.5, (upper + lower) / 2});
        return draw_line(31);
      case series_section:
        draw_section(9, 23);
        draw_line(23);
        return measure(23, antenna, lbld);
      default:
        draw_stub();
    }
  }

  void draw_section(double from, double to) {
    constexpr double wider = 2;
    for (const auto& [wire, outer] : {std::pair{upper, upper - wider}, {lower, lower + wider}}) {
      drawing.wire({{1, wire}, {from, wire}, {from, outer}, {to, outer}, {to, wire}});
    }
    measure(from, to, lblt);
  }

  void draw_line(double from) {
    for (const double wire : {upper, lower}) {
      drawing.wire({{from, wire}, {antenna, wire}});
    }
  }

  void draw_stub() {
    constexpr double left = 18;
    constexpr double right = 22;
    constexpr double middle = (left + right) / 2;
    constexpr double end = 23;
    draw_line(1);
    drawing.wire({{left, upper}, {left, end}})
        .wire({{right, lower}, {right, end}})
        .junction({left, upper})
        .junction({right, lower});
    if (Option1.selected() == shorted_stub) {
      drawing.wire({{left, end}, {right, end}});
    } else {
      drawing.terminal({left, end}).terminal({right, end});
    }
    constexpr double beside = right + 2;
    drawing.extension({right + 0.8, end}, {beside + 0.5, end})
        .dimension({beside, lower}, {beside, end})
        .label(lblt, {beside + 0.5, (lower + end) / 2}, Side::right);
    constexpr double above = upper - 4;
    drawing.extension({middle, upper - 0.5}, {middle, above - 0.5})
        .extension({antenna, upper - 3}, {antenna, above - 0.5})
        .dimension({middle, above}, {antenna, above})
        .label(lbld, {(middle + antenna) / 2, above}, Side::above);
  }

  /// A length of line, below it.
  void measure(double from, double to, ui::Label& length) {
    constexpr double below = lower + 7;
    for (const double end : {from, to}) {
      drawing.extension({end, lower + 3}, {end, below + 0.5});
    }
    drawing.dimension({from, below}, {to, below})
        .label(length, {(from + to) / 2, below}, Side::below);
  }

  // A reactance below zero is one, and has its range.
  void check() override { Calculator::check(); }

  void compute() override {
    const int means = Option1.selected();
    const Real line_ohm = txtz0.value();
    const Complex load_ohm{txtr.value(), means == quarter_wave_section ? 0 : txtx.value()};
    constexpr double matched_already = 0.0005;
    advise(abs(reflection_coefficient(load_ohm, line_ohm)) >= matched_already, txtr,
           "L'ANTENNA E' GIA' ADATTATA ALLA LINEA");
    switch (means) {
      case quarter_wave_section:
        return tell(quarter_wave_match(load_ohm.real(), line_ohm));
      case series_section:
        return tell_section(checked_series_section(load_ohm, line_ohm));
      default:
        return tell_stub(stub_match(means == open_stub ? StubEnd::open : StubEnd::shorted, load_ohm,
                                    line_ohm, txtzs.value()));
    }
  }

  MatchedLoad checked_series_section(Complex load_ohm, Real line_ohm) {
    const auto matched = series_section_match(load_ohm, line_ohm, txtzs.value());
    const auto [low_ohm, high_ohm] =
        series_section_limits(line_ohm, standing_wave_ratio(load_ohm, line_ohm));
    require(matched.has_value(), txtzs,
            "LA SEZIONE DEVE ESSERE MINORE DI " + fixed_down(low_ohm, 1) + " O MAGGIORE DI " +
                fixed_up(high_ohm, 1) + " Ohm");
    return *matched;
  }

  void tell(const QuarterWaveMatch& match) {
    lblimpedenza = "IMPEDENZA DEL TRATTO = " + ohms(match.impedance_ohm);
    lbllunghezza = "LUNGHEZZA DEL TRATTO = " + length_text(quarter_wave);
    if (match.cable != nullptr) {
      lblcavo = "CAVO PIU' VICINO : " + std::string{match.cable->name};
      lblros = "ROS CON QUESTO CAVO = " + fixed(match.matched.swr(), 2);
    } else {
      lblcavo = "NESSUN CAVO ADATTO: COSTRUIRE IL TRATTO CON TUBI";
    }
    lblt = centimetres(length_m(quarter_wave));
    lblz = ohms(match.impedance_ohm);
    tell_band(match.matched);
  }

  void tell_section(const MatchedLoad& matched) {
    const Real length = matched.sections[1].angle;
    lbllunghezza = "LUNGHEZZA DELLA SEZIONE = " + length_text(length);
    lblt = centimetres(length_m(length));
    tell_distance(matched);
  }

  void tell_stub(const MatchedLoad& matched) {
    const Real length = matched.stub->line.angle;
    lbllunghezza = "LUNGHEZZA DELLO STUB = " + length_text(length);
    lblt = centimetres(length_m(length));
    tell_distance(matched);
  }

  void tell_distance(const MatchedLoad& matched) {
    const Real distance = matched.sections.front().angle;
    lbldistanza = "DISTANZA DALL'ANTENNA = " + length_text(distance);
    lbld = centimetres(length_m(distance));
    lblros = "ROS SENZA ADATTATORE = " + fixed(matched.unmatched_swr(), 2);
    tell_band(matched);
  }

  void tell_band(const MatchedLoad& matched) {
    const Real frequency_mhz = txtfrequenza.value();
    const MatchedBand band = matched.band(good_swr);
    lblbanda = "BANDA CON ROS SOTTO 1,5 : DA " + fixed(band.from * frequency_mhz, 2) + " A " +
               fixed(band.to * frequency_mhz, 2) + " MHz";
    const Real from_mhz = 0.8 * frequency_mhz;
    const Real to_mhz = 1.2 * frequency_mhz;
    plot.axes(frequency_axis(ui::Interval{from_mhz.value(), to_mhz.value()}), swr_axis());
    plot.curve([&](Real at_mhz) { return matched.swr(at_mhz / frequency_mhz); }, from_mhz, to_mhz)
        .marker(frequency_mhz, plain(frequency_mhz) + " MHz")
        .curve([](Real) { return Real{good_swr}; }, from_mhz, to_mhz);
  }

  [[nodiscard]] Real length_m(Real angle) const {
    return wavelength_in_line_m(txtfrequenza.value(), txtvelocita.value()) * (angle / (2 * pi));
  }

  [[nodiscard]] std::string length_text(Real angle) const {
    return centimetres(length_m(angle)) + " (" + fixed(angle * degrees_in_radian, 1) + " GRADI)";
  }

  // On the drawing
  static constexpr double upper = 8;
  static constexpr double lower = 12;
  static constexpr double antenna = 37;
};

const ui::Registration<frmadattatori> registration{"frmadattatori"};

}  // namespace

}  // namespace eterlab::lines
