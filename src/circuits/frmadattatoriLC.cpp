#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "circuits/impedance.h"
#include "circuits/impedance_parts.h"
#include "circuits/lc_matching.h"
#include "common/number_text.h"
#include "common/preferred_values.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

struct Part {
  enum class Kind : std::uint8_t { coil, capacitor };

  Kind kind;
  std::string_view name;
};
constexpr Part coil(std::string_view name) { return {Part::Kind::coil, name}; }
constexpr Part capacitor(std::string_view name) { return {Part::Kind::capacitor, name}; }

/// A network by its parts, in the order of the results: of an L the part in series and the shunt,
/// else from the input to the output.
struct Network {
  enum class Form : std::uint8_t { l, pi, t };

  Form form;
  std::array<Part, 3> parts;
};
constexpr std::array<Network, 5> networks{{
    {Network::Form::l, {coil("L"), capacitor("C")}},
    {Network::Form::l, {capacitor("C"), coil("L")}},
    {Network::Form::pi, {capacitor("C1"), coil("L"), capacitor("C2")}},
    {Network::Form::t, {coil("L1"), capacitor("C"), coil("L2")}},
    {Network::Form::t, {capacitor("C1"), coil("L"), capacitor("C2")}},
}};

constexpr ui::Range resistance_range_ohm{0.1, 100'000};

// L, pi and T networks that match two resistances.
class frmadattatoriLC final : public ui::Calculator {
  ui::OptionArray Option1{this,
                          "Option1",
                          {"RETE AD L PASSA BASSO", "RETE AD L PASSA ALTO", "PI GRECO  C - L - C",
                           "RETE A T  L - C - L", "RETE A T  C - L - C"}};
  ui::Input txtfrequenza{this, "txtfrequenza", frequency_prompt, {.range = ui::Range{0.01, 1000}}};
  ui::Input txtr1{this, "txtr1", "R1 INGRESSO in OHM", {.range = resistance_range_ohm}};
  ui::Input txtr2{this, "txtr2", "R2 USCITA in OHM", {.range = resistance_range_ohm}};
  ui::Input txtq{this,
                 "txtq",
                 "Q DELLA RETE",
                 {.tooltip = "di solito da 5 a 15",
                  .range = ui::Range{0.1, 2000},
                  .prompt_name = "lblinputq"}};
  ui::Schematic drawing{this, "drawing", 62, 19};
  ui::Value lble1{drawing, "lble1"};
  ui::Value lble2{drawing, "lble2"};
  ui::Value lble3{drawing, "lble3"};
  ui::Result lbloutput1{this, "lbloutput1"};
  ui::Result lbloutput2{this, "lbloutput2"};
  ui::Result lbloutput3{this, "lbloutput3"};
  ui::Result lblq{this, "lblq"};
  ui::Note Label6{this, "Label6", "ELEMENTI SENZA PERDITE, IMPEDENZE PURAMENTE RESISTIVE."};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "DATI COSTRUZIONE BOBINE", {"frmbobine", {180, 180}, {4100, 2800}}};
  bool is_shunt_at_input_ = false;

 public:
  frmadattatoriLC()
      : Calculator{"frmadattatoriLC", "ADATTATORI DI IMPEDENZA CON INDUTTANZE E CONDENSATORI"} {
    Option1.preset(0);
    choose_network();
    lay_out(ui::column(ui::row(Option1, ui::form(txtfrequenza, txtr1, txtr2, txtq)),
                       ui::row(ui::stretch(), drawing, ui::stretch()), lblq, lbloutput1, lbloutput2,
                       lbloutput3, Label6),
            {&cmdchiamabobine});

    Option1.on_click([this](int) { choose_network(); });
    for (ui::Input* box : {&txtfrequenza, &txtr1, &txtr2, &txtq}) {
      box->on_change([this] { draw_with_shunt(false); });
    }
  }

  void show_example() override { fill_in({"7", "50", "200"}); }

 private:
  [[nodiscard]] const Network& network() const {
    return networks[static_cast<std::size_t>(Option1.selected())];
  }
  [[nodiscard]] bool is_l() const { return network().form == Network::Form::l; }

  void choose_network() {
    if (is_l()) {
      txtq.hide();
    } else {
      txtq.show();
    }
    const std::array<Part, 3>& parts = network().parts;
    lble1.set_letter(parts[0].name);
    lble2.set_letter(parts[1].name);
    lble3.set_letter(parts[2].name);
    is_shunt_at_input_ = false;
    draw();
  }

  /// Only that of an L stands at either side.
  void draw_with_shunt(bool is_at_input) {
    if (is_at_input != is_shunt_at_input_) {
      is_shunt_at_input_ = is_at_input;
      draw();
    }
  }

  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double input = 6;
    constexpr double output = 56;
    constexpr double top = 5;
    constexpr double bottom = 15;
    constexpr double middle = (input + output) / 2;
    constexpr double at_input = 14;
    constexpr double at_output = 35;
    constexpr double beside = 1.8;
    const std::array<Part, 3>& parts = network().parts;
    drawing.clear();
    drawing.resistor({input, top}, {input, bottom})
        .named("R1", Side::left)
        .resistor({output, top}, {output, bottom})
        .named("R2", Side::right)
        .wire({{input, bottom}, {output, bottom}})
        .ground({middle, bottom});
    const auto across = [&](const Part& part, double at, ui::Value& value) {
      add(part, {at, top}, {at, bottom});
      drawing.label(value, {at + beside, (top + bottom) / 2}, Side::right)
          .junction({at, top})
          .junction({at, bottom});
    };
    const auto in_line = [&](const Part& part, double from, double to, ui::Value& value) {
      add(part, {from, top}, {to, top});
      drawing.named(value, Side::above);
    };
    switch (network().form) {
      case Network::Form::l:
        if (is_shunt_at_input_) {
          drawing.wire({{input, top}, {at_input, top}});
          in_line(parts[0], at_input, output, lble1);
          across(parts[1], at_input, lble2);
        } else {
          in_line(parts[0], input, at_output, lble1);
          across(parts[1], at_output, lble2);
          drawing.wire({{at_output, top}, {output, top}});
        }
        break;
      case Network::Form::pi:
        across(parts[0], at_input, lble1);
        in_line(parts[1], at_input, at_output, lble2);
        across(parts[2], at_output, lble3);
        drawing.wire({{input, top}, {at_input, top}}).wire({{at_output, top}, {output, top}});
        break;
      case Network::Form::t:
        in_line(parts[0], input, middle, lble1);
        across(parts[1], middle, lble2);
        in_line(parts[2], middle, output, lble3);
        break;
    }
  }

  void add(const Part& part, ui::At from, ui::At to) {
    if (part.kind == Part::Kind::coil) {
      drawing.inductor(from, to);
    } else {
      drawing.capacitor(from, to);
    }
  }

  void compute() override {
    const Real input_ohm = txtr1.value();
    const Real output_ohm = txtr2.value();
    if (is_l()) {
      show_l(input_ohm, output_ohm);
      return;
    }
    const Real least_q = least_section_q(input_ohm, output_ohm);
    const Real quality_factor = txtq.value();
    require(quality_factor >= least_q, txtq, "Q TROPPO BASSO: OCCORRE ALMENO " + fixed(least_q, 2));
    const ThreePartSection section = network().form == Network::Form::pi
                                         ? pi_section(input_ohm, output_ohm, quality_factor)
                                         : t_section(input_ohm, output_ohm, quality_factor);
    show(0, section.first_ohm, lbloutput1, lble1);
    show(1, section.middle_ohm, lbloutput2, lble2);
    show(2, section.last_ohm, lbloutput3, lble3);
    lblq = q_text(quality_factor);
  }

  void show_l(Real input_ohm, Real output_ohm) {
    constexpr double least_ratio = 1.0001;
    advise(std::max(input_ohm, output_ohm) / std::min(input_ohm, output_ohm) >= least_ratio, txtr2,
           "LE DUE RESISTENZE SONO UGUALI: NON SERVE ALCUNA RETE AD L");
    const LSection section = l_section(input_ohm, output_ohm);
    const bool is_shunt_at_input = input_ohm > output_ohm;
    draw_with_shunt(is_shunt_at_input);
    show(0, section.series_ohm, lbloutput1, lble1);
    show(1, section.shunt_ohm, lbloutput2, lble2);
    lbloutput2 = lbloutput2.content() + "  IN PARALLELO A " + (is_shunt_at_input ? "R1" : "R2");
    lblq = q_text(section.quality_factor);
  }

  static std::string q_text(Real quality_factor) { return "Q = " + fixed(quality_factor, 2); }

  /// A part of the network by its place, in the results and on the drawing.
  void show(std::size_t place, Real reactance_ohm, ui::Result& result, ui::Value& value) {
    const Part& part = network().parts[place];
    const Real frequency_hz = hertz(txtfrequenza);
    std::string preferred;
    if (part.kind == Part::Kind::coil) {
      value = fixed(inductance_of_reactance_h(frequency_hz, reactance_ohm) * 1e6, 4) + " uH";
    } else {
      const Real picofarad = capacitance_of_reactance_f(frequency_hz, reactance_ohm) * 1e12;
      value = fixed(picofarad, 1) + " pF";
      preferred = "  (E12: " + plain(nearest_preferred(picofarad, Series::e12)) + " pF)";
    }
    result = std::string{part.name} + " = " + value.content() + preferred;
  }
};

const ui::Registration<frmadattatoriLC> registration{"frmadattatoriLC"};

}  // namespace

}  // namespace eterlab::circuits
