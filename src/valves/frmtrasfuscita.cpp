#include <optional>
#include <string>

#include "common/number_text.h"
#include "transformers/core_window.h"
#include "transformers/winding_text.h"
#include "transformers/wire_table.h"
#include "ui/schematic.h"
#include "ui/ui.h"
#include "valves/output_transformer.h"
#include "valves/output_valves.h"

namespace eterlab::valves {

namespace {

using transformers::LaminatedCore;
using Side = ui::Schematic::Side;

constexpr ui::Transformer transformer{.place = {16.5, 14}, .core = ui::Transformer::Core::iron};

// The output transformer of a valve set.
class frmtrasfuscita final : public transformers::CoreWindow {
  ui::Frame Frame1{this, "Frame1", "STADIO FINALE"};
  ui::OptionArray Option1{Frame1, "Option1", {"UNA VALVOLA IN CLASSE A", "PUSH-PULL"}};
  ui::List cmbvalvola{this, "cmbvalvola", "VALVOLA"};
  ui::Input txtra{this,
                  "txtra",
                  "IMPEDENZA ANODICA in Ohm",
                  {.range = ui::Range{500, 20000}, .prompt_name = "lblra"}};
  ui::Input txtwatt{this,
                    "txtwatt",
                    "POTENZA DI USCITA in W",
                    {.range = ui::Range{0.1, 50}, .prompt_name = "Label2"}};
  ui::Input txtma{this,
                  "txtma",
                  "CORRENTE ANODICA in mA",
                  {.range = ui::Range{1, 300}, .prompt_name = "lblma"}};
  ui::Input txtzs{this,
                  "txtzs",
                  "ALTOPARLANTE in Ohm",
                  {.holds = "8", .range = ui::Range{1, 1000}, .prompt_name = "Label3"}};
  ui::Input txtf{this,
                 "txtf",
                 "FREQUENZA MINIMA in Hz",
                 {.tooltip = "quella a cui la risposta scende di 3 dB",
                  .holds = "70",
                  .range = ui::Range{20, 300},
                  .prompt_name = "Label4"}};
  ui::Result lblnucleo{this, "lblnucleo"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lbltraferro{this, "lbltraferro"};
  ui::Result lblrapporto{this, "lblrapporto"};
  ui::Result lblriportato{this, "lblriportato"};
  ui::Result lblrendimento{this, "lblrendimento"};
  ui::ResultTable table{this,
                        "table",
                        2,
                        {{"lblavvolgimento", "", ui::ResultTable::Kind::text},
                         {"lblspire", "SPIRE"},
                         {"lblfilo", "FILO"},
                         {"lblresistenza", "RESISTENZA"}}};
  ui::Schematic drawing{this, "drawing", 46, 29};
  ui::Value lbldisra{drawing, "lbldisra"};
  ui::Value lbldiszs{drawing, "lbldiszs"};
  ui::Value lbldisma{drawing, "lbldisma"};
  ui::Note Label11{this, "Label11",
                   "IL TRAFERRO E' UN VALORE DI PARTENZA: RITOCCARLO MISURANDO L'INDUTTANZA CON LA "
                   "CORRENTE ANODICA"};
  ui::CompanionButton cmdchiamatabella{*this, "cmdchiamatabella", "TABELLA FILI SMALTATI",
                                       transformers::wire_table};

 public:
  frmtrasfuscita()
      : CoreWindow{"frmtrasfuscita", "CALCOLO DEL TRASFORMATORE DI USCITA PER VALVOLE", "Label5"} {
    name_hint("Label12");
    cmbvalvola.offer(output_valves());
    cmbvalvola.choose(-1);
    Option1.preset(0);
    txtra.prompt().reserve("IMPEDENZA DA ANODO AD ANODO in Ohm");
    table.at(0, 0) = "PRIMARIO";
    table.at(1, 0) = "SECONDARIO";
    for (int column = 1; const char* longest : {"2 x 99.999", "0,000 mm", "99.999 Ohm"}) {
      table.reserve(column++, longest);
    }
    draw();
    lay_out(
        ui::column(
            ui::row(ui::column(Frame1.arrange(Option1),
                               ui::form(cmbvalvola, txtra, txtwatt, txtma, txtzs, txtf, txtsezione),
                               ui::stretch()),
                    drawing),
            lblnucleo,
            ui::row(
                ui::column(lblinduttanza, lbltraferro, lblrapporto, lblriportato, lblrendimento),
                ui::column(table, ui::stretch())),
            Label11),
        {&cmdchiamatabella});
    Option1.on_click([this](int /*index*/) { change_circuit(); });
    cmbvalvola.on_choose([this] { take_valve(cmbvalvola.chosen_of(output_valves())); });
  }

  void show_example() override {
    cmbvalvola.choose("EL84");
    fill_in({"5200", "5.7", "48", "8", "70", ""});
  }

 private:
  [[nodiscard]] OutputCircuit circuit() const {
    return Option1.selected() == 0 ? OutputCircuit::single : OutputCircuit::push_pull;
  }

  void change_circuit() {
    if (circuit() == OutputCircuit::single) {
      txtra.ask("IMPEDENZA ANODICA in Ohm");
      txtma.show();
    } else {
      txtra.ask("IMPEDENZA DA ANODO AD ANODO in Ohm");
      txtma.hide();
    }
    draw();
  }

  void take_valve(const OutputValve& valve) {
    const bool is_single = valve.circuit == OutputCircuit::single;
    Option1.click(is_single ? 0 : 1);
    txtra = as_typed(valve.load_ohm);
    txtwatt = as_typed(valve.power_w);
    txtma = is_single ? as_typed(valve.anode_current_ma) : "";
  }

  void draw() {
    constexpr double speaker_x = 23;
    drawing.clear();
    drawing.transformer(transformer)
        .wire({transformer.secondary_top, {speaker_x, transformer.secondary_top.y}})
        .wire({transformer.secondary_bottom, {speaker_x, transformer.secondary_bottom.y}})
        .loudspeaker({speaker_x, transformer.secondary_top.y},
                     {speaker_x, transformer.secondary_bottom.y})
        .named(lbldiszs);
    if (circuit() == OutputCircuit::single) {
      draw_single();
    } else {
      draw_push_pull();
    }
  }

  void draw_single() {
    constexpr ui::Triode valve{{7, 18}};
    constexpr double line = 7;
    constexpr double supply = 22;
    draw_grid(valve);
    drawing
        .wire({valve.anode,
               {valve.anode.x, line},
               {transformer.primary_top.x, line},
               transformer.primary_top})
        .ground(valve.cathode)
        .wire({transformer.primary_bottom, {transformer.primary_bottom.x, supply}})
        .terminal({transformer.primary_bottom.x, supply})
        .named("+B", lbldisma, Side::right)
        .label(lbldisra, {transformer.primary_top.x, line}, Side::above);
  }

  void draw_push_pull() {
    constexpr ui::Triode upper{{7, 9}};
    constexpr ui::Triode lower{{7, 19}, ui::Flip::upside_down};
    constexpr double top = 4;
    constexpr double bottom = 24;
    constexpr double supply_x = 12.5;
    constexpr ui::At cathodes{upper.cathode.x, (upper.cathode.y + lower.cathode.y) / 2};
    constexpr ui::At ground{cathodes.x - 3, cathodes.y};
    draw_grid(upper);
    draw_grid(lower);
    drawing
        .wire({upper.anode,
               {upper.anode.x, top},
               {transformer.primary_top.x, top},
               transformer.primary_top})
        .wire({lower.anode,
               {lower.anode.x, bottom},
               {transformer.primary_bottom.x, bottom},
               transformer.primary_bottom})
        .wire({upper.cathode, lower.cathode})
        .junction(cathodes)
        .wire({cathodes, ground})
        .ground(ground)
        .wire({transformer.primary_tap, {supply_x, transformer.primary_tap.y}})
        .terminal({supply_x, transformer.primary_tap.y})
        .named("+B", Side::left)
        .label(lbldisra, {transformer.primary_top.x, top}, Side::above);
  }

  void draw_grid(const ui::Triode& valve) {
    const ui::At input{valve.grid.x - 0.6, valve.grid.y};
    drawing.triode(valve).wire({input, valve.grid}).terminal(input);
  }

  void compute() override {
    const bool is_single = circuit() == OutputCircuit::single;
    const OutputStage stage{circuit(),       txtra.value(),
                            txtwatt.value(), is_single ? txtma.value() / 1000 : 0,
                            txtzs.value(),   txtf.value()};
    const LaminatedCore core = chosen_core(stage);
    const OutputTransformer output = output_transformer(stage, core);
    lblnucleo = core_text(core);
    lblinduttanza = "INDUTTANZA PRIMARIA = " + fixed(output.inductance_h, 1) + " H";
    lbltraferro =
        is_single ? transformers::spacer_text(output.gap_m) : "LAMIERINI INCROCIATI SENZA TRAFERRO";
    lblrapporto = "RAPPORTO SPIRE = " + fixed(output.turns_ratio, 1) + " : 1";
    lblriportato = "CARICO ALL'ANODO = " + fixed(output.load_ohm, 0) + " Ohm";
    lblrendimento = "RENDIMENTO = " + fixed(100 * output.efficiency, 0) + " %";
    table.at(0, 1) =
        is_single ? fixed(output.primary.turns, 0) : "2 x " + fixed(output.primary.turns / 2, 0);
    table.at(1, 1) = fixed(output.secondary.turns, 0);
    table.at(0, 2) = wire_text(*output.primary.wire);
    table.at(1, 2) = wire_text(*output.secondary.wire);
    table.at(0, 3) = fixed(output.primary.resistance_ohm, 0) + " Ohm";
    table.at(1, 3) = fixed(output.secondary.resistance_ohm, 2) + " Ohm";
    lbldisra = plain(stage.load_ohm) + " Ohm";
    lbldiszs = plain(stage.speaker_ohm) + " Ohm";
    lbldisma = is_single ? plain(txtma.value()) + " mA" : "";
  }

  /// A typed core may lose more than one that is proposed.
  [[nodiscard]] LaminatedCore chosen_core(const OutputStage& stage) {
    constexpr double usual_loss = 0.10;
    constexpr double greatest_loss = 0.20;
    const auto smallest = [&stage](Real loss) {
      return transformers::smallest_core(
          [&stage, loss](const LaminatedCore& core) { return copper_loss(stage, core) <= loss; });
    };
    const std::optional<LaminatedCore> least =
        smallest(is_section_typed() ? greatest_loss : usual_loss);
    require(least.has_value(), txtwatt,
            "NUCLEO OLTRE 50 cmq: RIDURRE LA POTENZA O ALZARE LA FREQUENZA");
    if (!is_section_typed()) {
      return *least;
    }
    const LaminatedCore typed{txtsezione.value()};
    require(
        copper_loss(stage, typed) <= greatest_loss, txtsezione,
        "NUCLEO TROPPO PICCOLO: SERVONO ALMENO " + transformers::typed_section(*least) + " cmq");
    return typed;
  }
};

const ui::Registration<frmtrasfuscita> registration{"frmtrasfuscita"};

}  // namespace

}  // namespace eterlab::valves
