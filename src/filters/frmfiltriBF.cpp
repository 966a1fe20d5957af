#include "common/number_text.h"
#include "common/preferred_values.h"
#include "filters/rc_filters.h"
#include "filters/response_plot.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::filters {

namespace {

constexpr double nanofarad = 1e-9;
constexpr double kilohm = 1e3;

enum Circuit : int { rc_low_pass, rc_high_pass, active_low_pass, active_high_pass };

constexpr int columns = 60;
using Side = ui::Schematic::Side;

// An audio filter: one cell of R and C, or one around an operational amplifier.
class frmfiltriBF final : public ui::Calculator {
  ui::OptionArray Option1{
      this,
      "Option1",
      {"PASSA BASSO R C", "PASSA ALTO R C", "PASSA BASSO ATTIVO", "PASSA ALTO ATTIVO"}};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA DI TAGLIO in Hz"};
  ui::Input txtinput{this, "txtinput", "C in nF :", {.prompt_name = "lblinput"}};
  ui::Result lbl1{this, "lbl1"};
  ui::Result lbl2{this, "lbl2"};
  ui::Result lbltaglio{this, "lbltaglio"};
  ui::Result lblpendenza{this, "lblpendenza"};
  ui::Schematic drawing{this, "drawing", columns, 27};
  ui::Value lblvaloreserie1{drawing, "lblvaloreserie1"};
  ui::Value lblvaloreserie2{drawing, "lblvaloreserie2"};
  ui::Value lblvaloremassa{drawing, "lblvaloremassa"};
  ui::Value lblvaloreuscita{drawing, "lblvaloreuscita"};
  ui::Plot plot{this,    "plot", response_plot::frequency(), response_plot::attenuation(60),
                columns, 30};

 public:
  frmfiltriBF() : Calculator{"frmfiltriBF", "FILTRI PASSA BASSO E PASSA ALTO PER BASSA FREQUENZA"} {
    Option1.preset(rc_low_pass);
    draw();
    ui::give_up_place_when_hidden({&lbl2});
    lbl2.hide();
    lay_out(ui::row(ui::column(Option1, ui::form(txtfrequenza, txtinput), lbl1, lbl2, lbltaglio,
                               lblpendenza, ui::stretch()),
                    ui::column(drawing, plot)));

    Option1.on_click([this](int index) {
      txtinput.ask(index == active_low_pass ? "R in kOhm :" : "C in nF :");
      txtinput = "";
      lbl2.setVisible(is_active());
      draw();
    });
  }

  void show_example() override { fill_in({"3000", "10"}); }

 private:
  [[nodiscard]] bool is_active() const { return Option1.selected() >= active_low_pass; }
  [[nodiscard]] PassBand band() const {
    const int chosen = Option1.selected();
    return chosen == rc_low_pass || chosen == active_low_pass ? PassBand::low : PassBand::high;
  }

  void draw() {
    drawing.clear();
    if (is_active()) {
      draw_active();
    } else {
      draw_cell();
    }
  }

  /// A part in the line, which the high-pass has where the low-pass has a resistor.
  ui::Schematic& draw_in_line(ui::Schematic::At from, ui::Schematic::At to) {
    return band() == PassBand::low ? drawing.resistor(from, to) : drawing.capacitor(from, to);
  }
  ui::Schematic& draw_across(ui::Schematic::At from, ui::Schematic::At to) {
    return band() == PassBand::low ? drawing.capacitor(from, to) : drawing.resistor(from, to);
  }

  void draw_cell() {
    constexpr double line = 7;
    constexpr double common_line = 21;
    constexpr double input = 8;
    constexpr double node = 32;
    constexpr double output = 50;
    const bool is_low_pass = band() == PassBand::low;
    draw_in_line({input, line}, {node, line}).named(is_low_pass ? "R" : "C", lblvaloreserie1);
    draw_across({node, line}, {node, common_line}).named(is_low_pass ? "C" : "R", lblvaloremassa);
    drawing.junction({node, line})
        .wire({{node, line}, {output, line}})
        .wire({{input, common_line}, {output, common_line}})
        .junction({node, common_line})
        .ground({node, common_line});
    for (const double y : {line, common_line}) {
      drawing.terminal({input, y}).terminal({output, y});
    }
    constexpr double between = (line + common_line) / 2;
    drawing.mark({input, between}, "INPUT").mark({output, between}, "OUTPUT");
  }

  void draw_active() {
    constexpr double line = 16;
    constexpr double feedback_line = 4;
    constexpr double follower_line = 9.5;
    constexpr double input = 3.5;
    constexpr double first_node = 20;
    constexpr double second_node = 36;
    constexpr double ground = 24;
    constexpr ui::OperationalAmplifier amplifier{{45, line - 1.5}};
    constexpr double output_node = amplifier.output.x + 1;
    constexpr double output = 56;
    const bool is_low_pass = band() == PassBand::low;
    const std::string_view in_line = is_low_pass ? "R" : "C";
    drawing.terminal({input, line}).named("INPUT");
    draw_in_line({input, line}, {first_node, line}).named(in_line, lblvaloreserie1);
    draw_in_line({first_node, line}, {second_node, line}).named(in_line, lblvaloreserie2);
    draw_across({second_node, line}, {second_node, ground})
        .named(is_low_pass ? "C2" : "R2", lblvaloremassa);
    draw_across({first_node, feedback_line}, {output_node, feedback_line})
        .named(is_low_pass ? "C1" : "R1", lblvaloreuscita);
    drawing.junction({first_node, line})
        .junction({second_node, line})
        .ground({second_node, ground})
        .wire({{first_node, line}, {first_node, feedback_line}})
        .wire({{second_node, line}, amplifier.non_inverting})
        .operational_amplifier(amplifier)
        .wire({{output_node, feedback_line}, {output_node, amplifier.output.y}})
        .junction({output_node, follower_line})
        .wire({{output_node, follower_line},
               {amplifier.inverting.x - 1, follower_line},
               {amplifier.inverting.x - 1, amplifier.inverting.y},
               amplifier.inverting})
        .wire({amplifier.output, {output, amplifier.output.y}})
        .junction({output_node, amplifier.output.y})
        .terminal({output, amplifier.output.y})
        .named("OUTPUT", Side::below);
  }

  void compute() override {
    const Real cutoff_hz = txtfrequenza.value();
    if (is_active()) {
      tell_active(cutoff_hz);
    } else {
      tell_cell(cutoff_hz, nanofarad * txtinput.value());
    }
    const int order = is_active() ? 2 : 1;
    lblpendenza =
        is_active() ? "PENDENZA 12 dB PER OTTAVA (BUTTERWORTH)" : "PENDENZA 6 dB PER OTTAVA";
    plot.curve(
            [band = band(), order, cutoff_hz](Real frequency_hz) {
              return butterworth_attenuation_db(band, order, cutoff_hz, frequency_hz);
            },
            cutoff_hz / 30, 30 * cutoff_hz)
        .marker(cutoff_hz, eng(cutoff_hz, "Hz"));
  }

  void tell_cell(Real cutoff_hz, Real capacitance_f) {
    const Real resistance_ohm = rc_resistance_ohm(cutoff_hz, capacitance_f);
    const Real preferred_ohm = nearest_preferred(resistance_ohm, Series::e24);
    const std::string resistance = eng(resistance_ohm, "Ohm");
    const std::string capacitance = eng(capacitance_f, "F");
    const bool is_low_pass = band() == PassBand::low;
    lblvaloreserie1 = is_low_pass ? resistance : capacitance;
    lblvaloremassa = is_low_pass ? capacitance : resistance;
    lbl1 = "R = " + resistance + ", E24 " + eng(preferred_ohm, "Ohm");
    lbltaglio = "TAGLIO A 3 dB CON IL VALORE COMMERCIALE = " +
                eng(rc_frequency_hz(preferred_ohm, capacitance_f), "Hz");
  }

  void tell_active(Real cutoff_hz) {
    const bool is_low_pass = band() == PassBand::low;
    const Real known = (is_low_pass ? kilohm : nanofarad) * txtinput.value();
    const auto [feedback, shunt] =
        is_low_pass ? active_low_pass_f(cutoff_hz, known) : active_high_pass_ohm(cutoff_hz, known);
    const std::string letter = is_low_pass ? "C" : "R";
    const std::string unit = is_low_pass ? "F" : "Ohm";
    const auto preferred = [&](Real x) {
      return is_low_pass ? ", E12 " + eng(nearest_preferred(x, Series::e12), unit)
                         : ", E24 " + eng(nearest_preferred(x, Series::e24), unit);
    };
    lblvaloreserie1 = eng(known, is_low_pass ? "Ohm" : "F");
    lblvaloreserie2 = lblvaloreserie1.content();
    lblvaloreuscita = eng(feedback, unit);
    lblvaloremassa = eng(shunt, unit);
    lbl1 = letter + "1 = " + lblvaloreuscita.content() + preferred(feedback);
    lbl2 = letter + "2 = " + lblvaloremassa.content() + preferred(shunt);
    lbltaglio = "TAGLIO A 3 dB = " + eng(cutoff_hz, "Hz");
  }
};

const ui::Registration<frmfiltriBF> registration{"frmfiltriBF"};

}  // namespace

}  // namespace eterlab::filters
