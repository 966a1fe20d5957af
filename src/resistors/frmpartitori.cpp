#include <array>

#include "common/number_text.h"
#include "resistors/voltage_divider.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

struct Mode {
  std::array<std::string_view, 4> prompts;
  int optional_input;
};

// In the order of the options.
const std::array<Mode, 2> modes{{
    {{"TENSIONE DI INGRESSO in VOLT :", "R1 in OHM :", "R2 in OHM :",
      "CARICO in OHM (FACOLTATIVO) :"},
     3},
    {{"TENSIONE DI INGRESSO in VOLT :", "TENSIONE DI USCITA in VOLT :",
      "CORRENTE DEL CARICO in mA (FACOLTATIVA) :", "CORRENTE IN R2 in mA :"},
     2},
}};

// A loaded voltage divider: its output, or its resistors.
class frmpartitori final : public ui::Calculator {
  ui::OptionArray Option1{
      this, "Option1", {"TROVARE LA TENSIONE DI USCITA", "TROVARE LE RESISTENZE"}};
  ui::InputArray txtinput{this, "txtinput", {"", "", "", ""}, {.prompt_name = "lblinput"}};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lblcorrente{this, "lblcorrente"};
  ui::Result lblr1{this, "lblr1"};
  ui::Result lblr2{this, "lblr2"};
  ui::Result lblcommerciale{this, "lblcommerciale"};
  ui::Schematic drawing{this, "drawing", 48, 28};
  ui::Value lblvalorei{drawing, "lblvalorei"};
  ui::Value lblvaloreu1{drawing, "lblvaloreu1"};
  ui::Value lblvalorer1{drawing, "lblvalorer1"};
  ui::Value lblvalorer2{drawing, "lblvalorer2"};
  ui::Value lblvaloreu2{drawing, "lblvaloreu2"};
  ui::Value lblvalorecarico{drawing, "lblvalorecarico"};

 public:
  frmpartitori() : Calculator{"frmpartitori", "PARTITORI RESISTIVI"} {
    draw();
    Option1.preset(0);
    ask();
    txtinput[2].prompt().reserve(modes[1].prompts[2]);
    lay_out(ui::column(ui::row(ui::column(Option1, ui::form(txtinput), ui::stretch()), drawing),
                       lbloutput, lblcorrente, lblr1, lblr2, lblcommerciale));
    Option1.on_click([this](int) {
      txtinput.clear();
      ask();
    });
  }

  void show_example() override { fill_in({"12", "1000", "2200", "10000"}); }

 private:
  [[nodiscard]] const Mode& mode() const {
    return modes[static_cast<std::size_t>(Option1.selected())];
  }
  [[nodiscard]] bool finds_resistors() const { return Option1.selected() == 1; }

  void ask() {
    int index = 0;
    for (const std::string_view prompt : mode().prompts) {
      const bool is_optional = index == mode().optional_input;
      txtinput[index++].ask(prompt, is_optional ? ui::Range{.lowest = 0} : ui::Range{});
    }
  }

  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double left = 4;
    constexpr double divider = 13;
    constexpr double output = 28;
    constexpr double load = 35;
    constexpr double top = 5;
    constexpr double middle = 15;
    constexpr double bottom = 25;
    drawing.terminal({left, top})
        .terminal({left, bottom})
        .wire({{left, top}, {divider, top}})
        .arrow({left + 2, top}, {left + 6, top})
        .mark({left + 5, top}, "I", Side::below)
        .label(lblvalorei, {left + 5, top}, Side::above)
        .mark({left, middle - 1}, "U1")
        .label(lblvaloreu1, {left, middle + 1})
        .resistor({divider, top}, {divider, middle})
        .named("R1", lblvalorer1)
        .resistor({divider, middle}, {divider, bottom})
        .named("R2", lblvalorer2)
        .junction({divider, middle})
        .junction({divider, bottom})
        .wire({{divider, middle}, {output, middle}})
        .wire({{left, bottom}, {output, bottom}})
        .dashed({{output, middle}, {load, middle}})
        .dashed({{output, bottom}, {load, bottom}})
        .terminal({output, bottom})
        .terminal({output, middle})
        .named_beside("U2", lblvaloreu2, Side::above)
        .resistor({load, middle}, {load, bottom})
        .named_beside("CARICO", lblvalorecarico, Side::right);
  }

  void check() override {
    for (int index = 0; index < txtinput.size(); ++index) {
      ui::Input& input = txtinput[index];
      if (index == mode().optional_input) {
        require(input.value() >= 0, input, "IL VALORE NON PUO' ESSERE NEGATIVO");
        check_range(input);
      } else {
        check_presence(input);
      }
      if (index == 1 && finds_resistors()) {
        require(input.value() < txtinput[0].value(), input,
                "L'USCITA DEVE ESSERE MINORE DELL'INGRESSO");
      }
    }
    check_ranges();
  }

  void compute() override { finds_resistors() ? find_resistors() : find_output(); }

  void find_output() {
    const Real input_v = txtinput[0].value();
    const Real upper_ohm = txtinput[1].value();
    const Real lower_ohm = txtinput[2].value();
    const Real load_ohm = txtinput[3].value();
    const bool is_loaded = load_ohm > 0;
    const LoadedDivider divider = loaded_divider(
        input_v, upper_ohm, lower_ohm, is_loaded ? std::optional{load_ohm} : std::nullopt);
    lbloutput = "TENSIONE DI USCITA = " + sig(divider.output_v, 5) + " Volt";
    write_currents_and_powers(divider.input_current_a, divider.upper_power_w,
                              divider.lower_power_w);
    write_values(upper_ohm, lower_ohm, input_v, divider.output_v);
    lblvalorecarico = is_loaded ? eng(load_ohm, "Ohm") : "";
  }

  void find_resistors() {
    constexpr int milli = 1000;
    const Real input_v = txtinput[0].value();
    const Real output_v = txtinput[1].value();
    const Real load_current_a = txtinput[2].value() / milli;
    const DividerDesign divider =
        design_divider(input_v, output_v, load_current_a, txtinput[3].value() / milli);
    lbloutput =
        "R1 = " + eng(divider.upper_ohm, "Ohm") + "   R2 = " + eng(divider.lower_ohm, "Ohm");
    write_currents_and_powers(divider.input_current_a, divider.upper_power_w,
                              divider.lower_power_w);
    lblcommerciale = "CON " + eng(divider.nearest_upper_ohm, "Ohm") + " E " +
                     eng(divider.nearest_lower_ohm, "Ohm") + " (E24) L'USCITA E' " +
                     sig(divider.nearest_output_v, 4) + " Volt";
    write_values(divider.upper_ohm, divider.lower_ohm, input_v, output_v);
    lblvalorecarico = load_current_a > 0 ? eng(load_current_a, "A") : "";
  }

  void write_currents_and_powers(Real input_current_a, Real upper_power_w, Real lower_power_w) {
    lblcorrente = "CORRENTE EROGATA = " + eng(input_current_a, "A");
    lblr1 = "POTENZA SU R1 = " + eng(upper_power_w, "W");
    lblr2 = "POTENZA SU R2 = " + eng(lower_power_w, "W");
    lblvalorei = eng(input_current_a, "A");
  }

  void write_values(Real upper_ohm, Real lower_ohm, Real input_v, Real output_v) {
    lblvalorer1 = eng(upper_ohm, "Ohm");
    lblvalorer2 = eng(lower_ohm, "Ohm");
    lblvaloreu1 = eng(input_v, "V");
    lblvaloreu2 = eng(output_v, "V");
  }
};

const ui::Registration<frmpartitori> registration{"frmpartitori"};

}  // namespace

}  // namespace eterlab::resistors
