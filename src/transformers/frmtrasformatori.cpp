#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "transformers/core_window.h"
#include "transformers/mains_transformer.h"
#include "transformers/winding_text.h"
#include "transformers/wire_table.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::transformers {

namespace {

constexpr std::string_view plain_first = "SECONDARIO 1";
constexpr std::string_view tapped_first = "SECONDARIO 1 (V PER RAMO, A IN CONTINUA)";

// The mains transformer of a valve set: core, turns, wires and copper.
class frmtrasformatori final : public CoreWindow {
  ui::Input txtprimario{this,
                        "txtprimario",
                        "TENSIONE DI RETE in V (50 Hz)",
                        {.holds = "230", .range = ui::Range{100, 500}, .prompt_name = "Label1"}};
  ui::List cmblamierini{this, "cmblamierini", "LAMIERINI"};
  ui::Frame Frame1{this, "Frame1", "SECONDARIO 1"};
  ui::OptionArray Option1{
      Frame1, "Option1", {"SEMPLICE", "A PRESA CENTRALE PER RADDRIZZATRICE BIPLACCA"}};
  ui::Label Label4{this, "Label4", "TENSIONE in V"};
  ui::Label Label5{this, "Label5", "CORRENTE in A"};
  ui::InputArray txtvolt{this,
                         "txtvolt",
                         {plain_first, "SECONDARIO 2", "SECONDARIO 3"},
                         {.range = ui::Range{1, 2000}, .prompt_name = "lblsec"}};
  ui::InputArray txtampere{this, "txtampere", {"", "", ""}, {.range = ui::Range{0.001, 25}}};
  ui::Result lblnucleo{this, "lblnucleo"};
  ui::Result lblspirevolt{this, "lblspirevolt"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Result lblrendimento{this, "lblrendimento"};
  ui::ResultTable table{this,
                        "table",
                        4,
                        {{"lblavvolgimento", "", ui::ResultTable::Kind::text},
                         {"lblspire", "SPIRE"},
                         {"lblfilo", "FILO"},
                         {"lblcorrente", "CORRENTE"},
                         {"lblpeso", "RAME"}}};
  ui::Schematic drawing{this, "drawing", 41, 31};
  ui::ControlArray<ui::Value> lbldis{drawing, "lbldis", 4};
  ui::Note Label14{this, "Label14",
                   "NUCLEO A COLONNA QUADRATA, DENSITA' DI CORRENTE 2,5 A/mmq. LE SPIRE TENGONO "
                   "CONTO DELLA CADUTA A PIENO CARICO."};
  ui::CompanionButton cmdchiamatabella{*this, "cmdchiamatabella", "TABELLA FILI SMALTATI",
                                       wire_table};
  ui::CompanionButton cmdchiamalunghezza{
      *this,
      "cmdchiamalunghezza",
      "LUNGHEZZA E PESO DEL FILO",
      {.window = "frmlunghezzafilo", .caller_corner = {180, 180}, .corner = {4100, 2800}}};

 public:
  frmtrasformatori()
      : CoreWindow{"frmtrasformatori", "CALCOLO DEL TRASFORMATORE DI ALIMENTAZIONE", "Label3",
                   "larghezza della colonna per spessore del pacco: vuota = calcolata"} {
    name_hint("Label15");
    cmblamierini.offer(laminations());
    cmblamierini.choose("AL SILICIO (1,2 T)");
    Option1.preset(0);
    for (int row = 0; row < table.rows(); ++row) {
      table.at(row, 0) = row == 0 ? "PRIMARIO" : "SECONDARIO " + std::to_string(row);
    }
    for (int column = 1; const char* longest : {"2 x 9.999", "0,000 mm", "00,000 A", "9.999 g"}) {
      table.reserve(column++, longest);
    }
    lblnucleo.reserve("NUCLEO: SEZIONE LORDA 50,0 cmq, COLONNA 71 x 71 mm");
    std::vector<ui::TableRow> rows;
    for (int row = 0; row < txtvolt.size(); ++row) {
      txtampere[row].prompt().hide();  // both stand behind one prompt
      rows.push_back({&txtvolt[row].prompt(), {&txtvolt[row], &txtampere[row]}});
    }
    txtvolt[0].prompt().reserve(tapped_first);
    draw();
    lay_out(ui::column(ui::row(ui::form(txtprimario, cmblamierini, txtsezione), ui::stretch()),
                       Frame1.arrange(Option1), ui::table({&Label4, &Label5}, rows),
                       ui::row(ui::column(lblnucleo, lblspirevolt, lblpotenza, lblrendimento, table,
                                          ui::stretch()),
                               drawing),
                       Label14),
            {&cmdchiamatabella, &cmdchiamalunghezza});
    Option1.on_click(
        [this](int index) { txtvolt[0].prompt() = index == 0 ? plain_first : tapped_first; });
  }

  void show_example() override { fill_in({"230", "", "250", "0.06", "6.3", "2", "5", "2"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double primary_x = 9;
    constexpr double core_x = primary_x + 2.2;
    constexpr double core_gap = 0.5;
    constexpr double secondary_x = core_x + core_gap + 2.2;
    constexpr double terminal_x = secondary_x + 4.5;
    constexpr double input_x = primary_x - 4.5;
    constexpr double coil = 4.8;
    constexpr double top = 5;
    constexpr double between = 2.4;
    constexpr double second_y = top + 2 * coil + between;
    constexpr double third_y = second_y + coil + between;
    constexpr double bottom = third_y + coil;
    constexpr double primary_y = (top + bottom) / 2 - coil;
    for (const double x : {core_x, core_x + core_gap}) {
      drawing.wire({{x, top}, {x, bottom}});
    }
    for (const double y : {primary_y, primary_y + coil}) {
      drawing.inductor({primary_x, y}, {primary_x, y + coil});
    }
    for (const double y : {primary_y, primary_y + 2 * coil}) {
      drawing.wire({{input_x, y}, {primary_x, y}}).terminal({input_x, y});
    }
    drawing.label(lbldis[0], {primary_x, top - 2}, Side::above);

    for (const double y : {top, top + coil, second_y, third_y}) {
      drawing.inductor({secondary_x, y + coil}, {secondary_x, y});
    }
    for (const double y :
         {top, top + 2 * coil, second_y, second_y + coil, third_y, third_y + coil}) {
      drawing.wire({{secondary_x, y}, {terminal_x, y}}).terminal({terminal_x, y});
    }
    drawing.dashed({{secondary_x, top + coil}, {terminal_x, top + coil}})
        .terminal({terminal_x, top + coil})
        .named("(CENTRO)", Side::right)
        .label(lbldis[1], {terminal_x, top + coil / 2}, Side::right)
        .label(lbldis[2], {terminal_x, second_y + coil / 2}, Side::right)
        .label(lbldis[3], {terminal_x, third_y + coil / 2}, Side::right);
  }

  /// The first secondary must be told; of the others a row with anything in it.
  [[nodiscard]] bool is_used(int row) const {
    return row == 0 || txtvolt[row].value() != 0 || txtampere[row].value() != 0;
  }

  [[nodiscard]] std::vector<ui::Input*> used_inputs() const override {
    std::vector<ui::Input*> inputs = CoreWindow::used_inputs();
    for (int row = 0; row < txtvolt.size(); ++row) {
      if (!is_used(row)) {
        std::erase(inputs, &txtvolt[row]);
        std::erase(inputs, &txtampere[row]);
      }
    }
    return inputs;
  }

  [[nodiscard]] MainsTransformerTask task() const {
    MainsTransformerTask task{txtprimario.value(), cmblamierini.chosen_of(laminations()), {}};
    for (int row = 0; row < txtvolt.size(); ++row) {
      if (is_used(row)) {
        task.secondaries.push_back(
            {txtvolt[row].value(), txtampere[row].value(), row == 0 && Option1.selected() == 1});
      }
    }
    return task;
  }

  void compute() override {
    const MainsTransformerTask task = this->task();
    const auto suits = [&task](const LaminatedCore& core) {
      return mains_transformer(task, core).fits;
    };
    const std::optional<LaminatedCore> smallest = smallest_core(suits);
    require(smallest.has_value(), txtampere[0],
            "POTENZA TROPPO GRANDE: IL NUCLEO SUPEREREBBE 50 cmq");
    const Real section_cm2 = txtsezione.value();
    const LaminatedCore core = section_cm2 == 0 ? *smallest : LaminatedCore{section_cm2};
    const MainsTransformer transformer = mains_transformer(task, core);
    if (!transformer.fits) {
      // A core a little larger than the smallest may ask for a thicker wire, and not hold it.
      const LaminatedCore enough = smallest_core(suits, section_cm2).value_or(*smallest);
      require(false, txtsezione,
              "NUCLEO TROPPO PICCOLO: SERVONO ALMENO " + typed_section(enough) + " cmq");
    }
    lblnucleo = core_text(core);
    lblspirevolt = "SPIRE PER VOLT = " + fixed(transformer.turns_per_volt, 2);
    lblpotenza = "POTENZA RESA = " + fixed(transformer.output_va, 1) + " VA";
    lblrendimento = "RENDIMENTO = " + fixed(100 * transformer.efficiency, 0) + " %";
    tell(0, transformer.primary, txtprimario);
    int used = 0;
    for (int row = 0; row < txtvolt.size(); ++row) {
      if (is_used(row)) {
        tell(row + 1, transformer.secondaries[static_cast<std::size_t>(used++)], txtvolt[row]);
      }
    }
  }

  void tell(int row, const MainsWinding& winding, const ui::Input& volts) {
    const std::string halves = winding.halves == 2 ? "2 x " : "";
    table.at(row, 1) = halves + fixed(winding.turns, 0);
    table.at(row, 2) = wire_text(*winding.wire);
    table.at(row, 3) = fixed(winding.current_a, 3) + " A";
    table.at(row, 4) = fixed(winding.copper_g, 0) + " g";
    lbldis[row] = halves + plain(volts.value()) + " V";
  }
};

const ui::Registration<frmtrasformatori> registration{"frmtrasformatori"};

}  // namespace

}  // namespace eterlab::transformers
