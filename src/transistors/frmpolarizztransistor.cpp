#include <string>

#include "common/number_text.h"
#include "transistors/emitter_bias.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::transistors {

namespace {

std::string milliampere(Real current_a) { return fixed(1000 * current_a, 2) + " mA"; }

// The resistors and capacitors of a common-emitter amplifier, and what it does with them.
class frmpolarizztransistor final : public ui::Calculator {
  ui::Input txtvcc{this,
                   "txtvcc",
                   "TENSIONE DI ALIMENTAZIONE in VOLT",
                   {.range = ui::Range{3, 100}, .prompt_name = "Label1"}};
  ui::Input txtic{this,
                  "txtic",
                  "CORRENTE DI COLLETTORE in mA",
                  {.range = ui::Range{0.05, 100}, .prompt_name = "Label2"}};
  ui::Input txthfe{this,
                   "txthfe",
                   "HFE DEL TRANSISTOR",
                   {.tooltip = "guadagno di corrente in continua",
                    .range = ui::Range{20, 1000},
                    .prompt_name = "Label3"}};
  ui::Input txtfmin{this,
                    "txtfmin",
                    "FREQUENZA MINIMA in Hz",
                    {.tooltip = "dove il guadagno cala di circa 3 dB",
                     .range = ui::Range{1, 1000000},
                     .prompt_name = "Label4"}};
  ui::Schematic drawing{this, "drawing", 64, 35};
  ui::Value lblr1{drawing, "lblr1"};
  ui::Value lblr2{drawing, "lblr2"};
  ui::Value lblrc{drawing, "lblrc"};
  ui::Value lblre{drawing, "lblre"};
  ui::Value lblc1{drawing, "lblc1"};
  ui::Value lblc2{drawing, "lblc2"};
  ui::Value lblce{drawing, "lblce"};
  ui::Result lblpunto{this, "lblpunto"};
  ui::Result lblstabilita{this, "lblstabilita"};
  ui::Result lblguadagno{this, "lblguadagno"};
  ui::Result lblzin{this, "lblzin"};
  ui::Result lblswing{this, "lblswing"};
  ui::Note Label5{
      this, "Label5",
      "IL GUADAGNO E' SENZA CARICO: LO STADIO CHE SEGUE LO RIDUCE. SENZA CE IL GUADAGNO "
      "E' MINORE MA LA DISTORSIONE MOLTO PIU' BASSA"};

 public:
  frmpolarizztransistor()
      : Calculator{"frmpolarizztransistor",
                   "POLARIZZAZIONE DI UN TRANSISTOR AD EMETTITORE COMUNE"} {
    name_hint("Label6");
    draw();
    constexpr int width_for_results = 98;
    lay_out(ui::column(ui::form(txtvcc, txtic, txthfe, txtfmin), drawing, lblpunto, lblstabilita,
                       lblguadagno, lblzin, lblswing, Label5),
            {}, width_for_results);
  }

  void show_example() override { fill_in({"12", "1", "200", "50"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double supply_y = 4;
    constexpr double ground_y = 31;
    constexpr double divider_x = 17;
    constexpr double bypass_x = 49;
    constexpr ui::Transistor transistor{{31, 17}};
    constexpr double output_y = 12.5;
    constexpr double emitter_y = 21.5;
    constexpr double stage_x = transistor.collector.x;
    drawing.wire({{divider_x, supply_y}, {stage_x, supply_y}, {52, supply_y}})
        .terminal({52, supply_y})
        .named("+Vcc", Side::right)
        .junction({stage_x, supply_y})
        .resistor({divider_x, supply_y}, {divider_x, transistor.base.y})
        .named("R1", lblr1)
        .resistor({divider_x, transistor.base.y}, {divider_x, ground_y})
        .named("R2", lblr2)
        .junction({divider_x, transistor.base.y})
        .wire({{divider_x, transistor.base.y}, transistor.base})
        .npn(transistor);
    drawing.resistor({stage_x, supply_y}, {stage_x, output_y})
        .named("RC", lblrc)
        .junction({stage_x, output_y})
        .wire({{stage_x, output_y}, transistor.collector})
        .wire({transistor.emitter, {stage_x, emitter_y}})
        .junction({stage_x, emitter_y})
        .resistor({stage_x, emitter_y}, {stage_x, ground_y})
        .named("RE", lblre)
        .wire({{stage_x, emitter_y}, {bypass_x, emitter_y}})
        .electrolytic({bypass_x, emitter_y}, {bypass_x, ground_y})
        .named_beside("CE", lblce, Side::right);
    drawing.wire({{divider_x, ground_y}, {bypass_x, ground_y}})
        .junction({stage_x, ground_y})
        .ground({stage_x, ground_y})
        .terminal({5.5, transistor.base.y})
        .named("INGRESSO", Side::above)
        .wire({{5.5, transistor.base.y}, {8.5, transistor.base.y}})
        .capacitor({8.5, transistor.base.y}, {divider_x, transistor.base.y})
        .named("C1", lblc1)
        .wire({{stage_x, output_y}, {37, output_y}})
        .capacitor({37, output_y}, {52, output_y})
        .named("C2", lblc2)
        .terminal({52, output_y})
        .named("USCITA", Side::above);
  }

  void compute() override {
    const Real current_gain = txthfe.value();
    const CommonEmitterStage stage =
        common_emitter_stage({txtvcc.value(), txtic.value() / 1000, current_gain, txtfmin.value()});
    lblr1 = eng(stage.parts.r1_ohm, "Ohm");
    lblr2 = eng(stage.parts.r2_ohm, "Ohm");
    lblrc = eng(stage.parts.collector_ohm, "Ohm");
    lblre = eng(stage.parts.emitter_ohm, "Ohm");
    lblc1 = eng(stage.parts.input_coupling_f, "F");
    lblc2 = eng(stage.parts.output_coupling_f, "F");
    lblce = eng(stage.parts.emitter_bypass_f, "F");
    lblpunto = "PUNTO DI LAVORO: IC = " + milliampere(stage.collector_current_a) +
               "   VCE = " + fixed(stage.collector_emitter_v, 2) +
               " V   VE = " + fixed(stage.emitter_v, 2) + " V";
    lblstabilita = "IC CON HFE " + plain(current_gain / 2) + " = " +
                   milliampere(stage.current_with_half_gain_a) + "   CON HFE " +
                   plain(2 * current_gain) + " = " + milliampere(stage.current_with_double_gain_a);
    lblguadagno = "GUADAGNO A VUOTO = " + fixed(stage.voltage_gain, 0) + " VOLTE (" +
                  fixed(20 * log10(stage.voltage_gain), 1) +
                  " dB)   SENZA CE = " + fixed(stage.voltage_gain_without_bypass, 1) + " VOLTE";
    lblzin = "IMPEDENZA DI INGRESSO = " + fixed(stage.input_ohm, 0) +
             " Ohm   DI USCITA = " + fixed(stage.parts.collector_ohm, 0) + " Ohm";
    lblswing = "MASSIMA USCITA = " + fixed(stage.swing_v, 1) +
               " V PICCO-PICCO   POTENZA SUL TRANSISTOR = " + fixed(1000 * stage.dissipation_w, 1) +
               " mW";
  }
};

const ui::Registration<frmpolarizztransistor> registration{"frmpolarizztransistor"};

}  // namespace

}  // namespace eterlab::transistors
