#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "common/number_text.h"
#include "power/regulator_circuits.h"
#include "power/regulator_drawing.h"
#include "power/three_terminal_regulator.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::power {

namespace {

using Side = ui::Schematic::Side;

/// Of a box whose limits follow from the others.
constexpr ui::Range any{0, std::numeric_limits<double>::max()};
constexpr double noise_v = 1e-9;

// A fixed regulator lifted by a Zener, as a source of constant current, or beside a PNP transistor.
class frm78xxbis final : public ui::Calculator {
  ui::Frame Frame1{this, "Frame1", "SIGLA "};
  ui::OptionArray Option1{Frame1, "Option1", {"7805", "7808", "7812", "7815", "7818", "7824"}};
  ui::Frame Frame2{this, "Frame2", "APPLICAZIONE"};
  ui::OptionArray Option2{Frame2,
                          "Option2",
                          {"TENSIONE MAGGIORE CON ZENER O DIODI", "GENERATORE DI CORRENTE COSTANTE",
                           "CORRENTE MAGGIORE CON PNP"}};
  ui::Input txtdato1{this, "txtdato1", "", {.prompt_name = "lbldato1"}};
  ui::Input txtdato2{this, "txtdato2", "", {.prompt_name = "lbldato2"}};
  ui::Input txtvin{this,
                   "txtvin",
                   "TENSIONE DI INGRESSO in VOLT",
                   {.tooltip = "il ripple non deve farla scendere sotto questo valore",
                    .range = any,
                    .prompt_name = "Label3"}};
  ui::Schematic drawing{this, "drawing", 86, 31};
  ui::Label lbl78xx{drawing, "lbl78xx", "7805"};
  ui::Value lblparte{drawing, "lblparte"};
  ui::Result lbluscita{this, "lbluscita"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Result lblaltra{this, "lblaltra"};
  ui::Note Label4{this, "Label4",
                  "LA TENSIONE DI INGRESSO DEVE SUPERARE L'USCITA DI ALMENO 2,5 V (3,3 V CON IL "
                  "PNP) E NON PASSARE I 35 V (40 V PER IL 7824). IL PNP NON E' PROTETTO DAI "
                  "CORTOCIRCUITI: USARE UN FUSIBILE RAPIDO. OLTRE CIRCA 50 W UN SOLO PNP NON "
                  "BASTA: ABBASSARE LA TENSIONE DI INGRESSO"};

 public:
  frm78xxbis()
      : Calculator{"frm78xxbis",
                   "INTEGRATI STABILIZZATORI DELLA SERIE 78xx   -   ALTRE APPLICAZIONI"} {
    name_hint("Label5", "USARE IL PUNTO PER SEPARARE I DECIMALI");
    Option1.preset(0);
    Option2.preset(0);
    show_application();
    lay_out(ui::column(Frame1.arrange(across(Option1)),
                       ui::row(ui::column(Frame2.arrange(Option2), ui::stretch()),
                               ui::column(ui::form(txtdato1, txtdato2, txtvin), ui::stretch())),
                       drawing, lbluscita, lblpotenza, lblaltra, Label4));
    Option1.on_click([this](int index) {
      lbl78xx = Option1[index].caption();
      lbl78xx.outdate();  // it was chosen, not computed: no change is to dim it
    });
    Option2.on_click([this](int /*index*/) {
      for (ui::Input* input : {&txtdato1, &txtdato2, &txtvin}) {
        *input = "";
      }
      show_application();
    });
  }

  void show_example() override { fill_in({"9", "0.3", "14"}); }

 private:
  enum class Application : std::uint8_t { lifted, constant_current, boosted };

  [[nodiscard]] Application application() const {
    return static_cast<Application>(Option2.selected());
  }

  void show_application() {
    switch (application()) {
      case Application::lifted:
        txtdato1.ask("TENSIONE DI USCITA in VOLT", any);
        txtdato2.ask("CORRENTE DI CARICO in A", {0.001, 1});
        draw_lifted(0);
        break;
      case Application::constant_current:
        txtdato1.ask("CORRENTE COSTANTE in mA", {20, 1000});
        txtdato2.hide();
        draw_constant_current();
        break;
      case Application::boosted:
        txtdato1.ask("CORRENTE DI CARICO in A", {1, 20});
        txtdato2.ask("HFE DEL TRANSISTOR PNP", {1, 20000});
        draw_boosted();
        break;
    }
  }

  static constexpr double input_x = 2;
  static constexpr double regulator_x = 33;
  static constexpr double output_capacitor_x = 72;
  static constexpr double output_x = 84;
  static constexpr double ground_y = 28;

  /// The regulator on its line, with the capacitors and ground.
  void draw_regulator(double line_y, double input_capacitor_x) {
    using namespace regulator_drawing;
    const ui::At input{regulator_x, line_y};
    drawing.clear();
    regulator_drawing::draw_regulator(drawing, input, "GND");
    drawing.label(lbl78xx, name_in(input))
        .terminal({input_x, line_y})
        .capacitor({input_capacitor_x, line_y}, {input_capacitor_x, ground_y})
        .named("330 nF", Side::right)
        .junction({input_capacitor_x, line_y})
        .junction({input_capacitor_x, ground_y})
        .capacitor({output_capacitor_x, line_y}, {output_capacitor_x, ground_y})
        .named("100 nF", Side::right)
        .junction({output_capacitor_x, ground_y})
        .terminal({input_x, ground_y})
        .wire({{input_x, ground_y}, {output_capacitor_x, ground_y}})
        .junction({reference_of(input).x, ground_y})
        .ground({reference_of(input).x, ground_y});
  }

  void draw_output(double line_y) {
    drawing.wire({{regulator_drawing::output_of({regulator_x, line_y})}, {output_x, line_y}})
        .junction({output_capacitor_x, line_y})
        .terminal({output_x, line_y})
        .wire({{output_capacitor_x, ground_y}, {output_x, ground_y}})
        .terminal({output_x, ground_y});
  }

  /// By diodes in series, or by a Zener where there are none.
  void draw_lifted(int diodes) {
    constexpr double line_y = 8;
    constexpr double reference_y = 15;
    constexpr double capacitor_x = 59;
    constexpr ui::At pin = regulator_drawing::reference_of({regulator_x, line_y});
    draw_regulator(line_y, 11);
    draw_output(line_y);
    drawing.wire({{input_x, line_y}, {regulator_x, line_y}})
        .wire({pin, {pin.x, reference_y}, {capacitor_x, reference_y}})
        .junction({pin.x, reference_y})
        .electrolytic({capacitor_x, reference_y}, {capacitor_x, ground_y})
        .named("10 microF", Side::right)
        .junction({capacitor_x, ground_y});
    if (diodes == 0) {
      drawing.zener({pin.x, ground_y}, {pin.x, reference_y});
    }
    for (int i = 0; i < diodes; ++i) {
      const double length = (ground_y - reference_y) / diodes;
      drawing.diode({pin.x, reference_y + i * length}, {pin.x, reference_y + (i + 1) * length});
    }
    drawing.label(lblparte, {pin.x + 1, (reference_y + ground_y) / 2}, Side::right);
  }

  void draw_constant_current() {
    constexpr double line_y = 8;
    constexpr double reference_y = 16;
    constexpr double resistor_x = 50;
    constexpr ui::At input{regulator_x, line_y};
    constexpr ui::At pin = regulator_drawing::reference_of(input);
    constexpr double load_top = 19.5;
    constexpr double load_bottom = 23.5;
    draw_regulator(line_y, 11);
    drawing.wire({{input_x, line_y}, input})
        .wire({regulator_drawing::output_of(input), {output_capacitor_x, line_y}})
        .junction({resistor_x, line_y})
        .resistor({resistor_x, line_y}, {resistor_x, reference_y})
        .named("R", lblparte)
        .wire({{resistor_x, reference_y}, {pin.x, reference_y}})
        .junction({pin.x, reference_y})
        .wire({pin, {pin.x, load_top}})
        .box({pin.x - 5, load_top}, {pin.x + 5, load_bottom})
        .mark({pin.x, (load_top + load_bottom) / 2}, "CARICO")
        .wire({{pin.x, load_bottom}, {pin.x, ground_y}});
  }

  void draw_boosted() {
    constexpr double line_y = 14;
    constexpr double over_all_y = 2;
    constexpr double emitter_x = 8;
    constexpr double base_x = 26;
    constexpr ui::At input{regulator_x, line_y};
    constexpr ui::At pin = regulator_drawing::reference_of(input);
    constexpr ui::Transistor pnp{{49, 6.5}, ui::Flip::upside_down};
    draw_regulator(line_y, base_x);
    draw_output(line_y);
    drawing.wire({pin, {pin.x, ground_y}})
        .wire({{input_x, line_y}, {emitter_x, line_y}})
        .junction({emitter_x, line_y})
        .resistor({emitter_x, line_y}, {base_x, line_y})
        .named("R", lblparte)
        .wire({{base_x, line_y}, input})
        .wire({{emitter_x, line_y},
               {emitter_x, over_all_y},
               {pnp.emitter.x, over_all_y},
               pnp.emitter})
        .wire({{base_x, line_y}, {base_x, pnp.base.y}, pnp.base})
        .pnp(pnp)
        .named("PNP", Side::right)
        .wire({pnp.collector, {pnp.collector.x, line_y}})
        .junction({pnp.collector.x, line_y});
  }

  void compute() override {
    const Real nominal_v = fixed_regulators_v[static_cast<std::size_t>(Option1.selected())];
    switch (application()) {
      case Application::lifted:
        return compute_lifted(nominal_v);
      case Application::constant_current:
        return compute_constant_current(nominal_v);
      case Application::boosted:
        return compute_boosted(nominal_v);
    }
  }

  void compute_lifted(Real nominal_v) {
    constexpr double least_lift_v = 0.35;
    constexpr double greatest_lift_v = 30;
    const Real lift_v = txtdato1.value() - nominal_v;
    require(lift_v >= least_lift_v - noise_v && lift_v <= greatest_lift_v + noise_v, txtdato1,
            "DATO NON CONGRUO");
    const LiftedRegulator regulator = lifted_regulator(nominal_v, txtdato1.value());
    require_input(regulator.output_v() + 2.5);
    show_dissipation(regulator.dissipation_w(txtvin.value(), txtdato2.value()));
    draw_lifted(regulator.diodes);
    lblparte = part_of(regulator);
    lbluscita = "TENSIONE DI USCITA = " + fixed(regulator.output_v(), 1) + " V";
    lblaltra = (regulator.diodes > 0 ? "POTENZA DI OGNI DIODO = " : "POTENZA DELLO ZENER = ") +
               fixed(1000 * regulator.part_dissipation_w(), 0) + " mW";
  }

  static std::string part_of(const LiftedRegulator& regulator) {
    if (regulator.diodes == 0) {
      return "ZENER DA " + plain(regulator.lift_v) + " V";
    }
    return std::to_string(regulator.diodes) +
           (regulator.diodes == 1 ? " DIODO 1N4148" : " DIODI 1N4148");
  }

  void compute_constant_current(Real nominal_v) {
    require_input(nominal_v + 3.5);
    const Real input_v = txtvin.value();
    const RegulatedCurrent source = regulated_current(nominal_v, txtdato1.value() / 1000);
    show_dissipation(source.dissipation_w(input_v));
    lblparte = eng(source.resistance_ohm, "Ohm");
    lbluscita = "CORRENTE COSTANTE = " + fixed(1000 * source.current_a, 0) + " mA FINO A " +
                fixed(source.highest_load_v(input_v), 1) + " V SUL CARICO";
    lblaltra = "POTENZA DELLA RESISTENZA = " + fixed(source.resistor_dissipation_w(), 1) + " W";
  }

  void compute_boosted(Real nominal_v) {
    const Real load_a = txtdato1.value();
    const Real current_gain = txtdato2.value();
    const Real least_gain = least_boost_gain(load_a);
    require(current_gain >= least_gain, txtdato2,
            "HFE TROPPO BASSO: OCCORRE ALMENO " + fixed(least_gain, 0));
    require_input(nominal_v + 3.3);
    const Real input_v = txtvin.value();
    const BoostedRegulator regulator = boosted_regulator(nominal_v, load_a, current_gain);
    show_dissipation(regulator.dissipation_w(input_v));
    lblparte = eng(regulator.resistance_ohm, "Ohm");
    lbluscita = "CORRENTE NELL'INTEGRATO = " + fixed(regulator.regulator_a, 2) +
                " A   NEL PNP = " + fixed(regulator.transistor_a, 2) + " A";
    lblaltra = "POTENZA SUL PNP = " + fixed(regulator.transistor_dissipation_w(input_v), 1) +
               " W   SULLA RESISTENZA = " + fixed(regulator.resistor_dissipation_w(), 1) + " W";
  }

  void require_input(Real lowest_v) {
    const bool is_7824 = Option1.selected() == 5;
    const double highest_v = is_7824 ? 40 : 35;
    require(txtvin.value() >= lowest_v - noise_v && txtvin.value() <= highest_v, txtvin,
            "DATO NON CONGRUO");
  }

  void show_dissipation(Real dissipation_w) {
    advise(dissipation_w <= highest_dissipation_w, txtvin,
           "POTENZA ECCESSIVA PER UN SOLO INTEGRATO: ABBASSARE LA TENSIONE DI INGRESSO");
    const std::optional<Real> sink = heat_sink_k_per_w(dissipation_w);
    lblpotenza = "POTENZA SULL'INTEGRATO = " + fixed(dissipation_w, 1) + " W   " +
                 (sink ? "DISSIPATORE DA " + fixed(*sink, 1) + " GRADI/W O MENO"
                       : "NON OCCORRE DISSIPATORE");
  }
};

const ui::Registration<frm78xxbis> registration{"frm78xxbis"};

}  // namespace

}  // namespace eterlab::power
