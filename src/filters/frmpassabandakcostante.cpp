#include "common/number_text.h"
#include "filters/lc_filters.h"
#include "ui/printing.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::filters {

namespace {

// A band-pass, as its plain section and as a pi of halved elements.
class frmpassabandakcostante final : public ui::Window {
  ui::Label Label1{this, "Label1", "IMPEDENZA INPUT = OUTPUT in OHM"};
  ui::TextBox txtimpedenza{this, "txtimpedenza"};
  ui::Label Label2{this, "Label2", "FREQUENZA INFERIORE in MHz"};
  ui::TextBox txtf1{this, "txtf1", ui::tooltip("limite inferiore della banda passante")};
  ui::Label Label3{this, "Label3", "FREQUENZA SUPERIORE in MHz"};
  ui::TextBox txtf2{this, "txtf2", ui::tooltip("limite superiore della banda passante")};
  ui::Frame Frame1{this, "Frame1"};
  ui::Result lblfc{Frame1, "lblfc"};
  ui::Result lblbw{Frame1, "lblbw"};
  ui::Result lblq{Frame1, "lblq"};
  ui::Schematic schema1{this, "schema1", 52, 20};
  ui::Label lblzin{schema1, "lblzin"};
  ui::Label lbll1{schema1, "lbll1"};
  ui::Label lblc1{schema1, "lblc1"};
  ui::Label lbll2{schema1, "lbll2"};
  ui::Label lblc2{schema1, "lblc2"};
  ui::Label lblzout{schema1, "lblzout"};
  ui::Schematic schema2{this, "schema2", 84, 20};
  ui::Label lblzin2{schema2, "lblzin2", "INPUT"};
  ui::Label lblc2a{schema2, "lblc2a"};
  ui::Label lblc1a{schema2, "lblc1a"};
  ui::Label lbll1a{schema2, "lbll1a"};
  ui::Label lbll2a{schema2, "lbll2a"};
  ui::Label lblc1b{schema2, "lblc1b"};
  ui::Label lblc2b{schema2, "lblc2b"};
  ui::Label lblzout2{schema2, "lblzout2", "OUTPUT"};
  ui::Result lblfattoreq{this, "lblfattoreq"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::Button cmdchiamabobine{this, "cmdchiamabobine", "COSTRUZIONE BOBINE"};
  ui::Button Command1{this, "Command1", "STAMPA SCHEDA",
                      ui::tooltip("IMPOSTA STAMPANTE IN ORIZZONTALE")};
  ui::ExitButton cmdchiudi{this, "cmdchiudi", "CHIUDI"};

 public:
  frmpassabandakcostante()
      : Window{"frmpassabandakcostante",
               "FILTRO L C PASSA BANDA  A K COSTANTE   -   3  POLI  BUTTERWORTH"} {
    draw_section();
    draw_split();
    Frame1.hide();
    arrange(ui::column(
                ui::row(ui::column(ui::form(field(Label1, txtimpedenza), field(Label2, txtf1),
                                            field(Label3, txtf2)),
                                   Frame1.arrange(ui::column(lblfc, lblbw, lblq)), ui::stretch()),
                        schema1),
                ui::row(ui::stretch(), schema2, ui::stretch()), lblfattoreq,
                ui::buttons(cmdcalcola, cmdchiamabobine, Command1, cmdchiudi)),
            width_in_characters);

    cmdcalcola.on_click([this] { cmdcalcola_click(); });
    cmdchiamabobine.on_click([] { open("frmbobine"); });
    Command1.on_click([this] { ui::print_window(*this); });
  }

  void show_example() override {
    txtimpedenza = "50";
    txtf1 = "7";
    txtf2 = "7.3";
    cmdcalcola.click();
  }

 private:
  using Side = ui::Schematic::Side;

  static constexpr int width_in_characters = 119;  // the centre frequency on one line

  static constexpr double line = 5;
  static constexpr double common_line = 18;
  static constexpr double above_line = line - 2.2;  // the name of a part in the line
  static constexpr double below_line = line + 1.2;  // its value
  static constexpr double name = 10;                // of a part across the line
  static constexpr double value = 12;               // under its name
  static constexpr double between_texts = (name + value) / 2;

  static void draw_ends(ui::Schematic& schema, double left, double right) {
    schema.wire({{left, common_line}, {right, common_line}});
    for (const double x : {left, right}) {
      schema.terminal({x, line}).terminal({x, common_line});
    }
  }

  static void join(ui::Schematic& schema, double x) {
    schema.junction({x, line}).junction({x, common_line});
  }

  void draw_section() {
    draw_ends(schema1, 4, 47);
    schema1.inductor({4, line}, {19, line})
        .mark({11.5, above_line}, "L1")
        .label(lbll1, {11.5, below_line}, Side::below)
        .capacitor({19, line}, {29, line})
        .mark({24, above_line}, "C1")
        .label(lblc1, {24, below_line}, Side::below)
        .wire({{29, line}, {47, line}})
        .inductor({31, line}, {31, common_line})
        .mark({28.4, name}, "L2")
        .label(lbll2, {30, value}, Side::left)
        .capacitor({35, line}, {35, common_line})
        .mark({38.4, name}, "C2")
        .label(lblc2, {36.4, value}, Side::right)
        .label(lblzin, {4, line - 0.4}, Side::above)
        .label(lblzout, {47, line - 0.4}, Side::above);
    join(schema1, 31);
    join(schema1, 35);
  }

  void draw_split() {
    draw_ends(schema2, 5, 79);
    schema2.wire({{5, line}, {22, line}})
        .capacitor({22, line}, {32, line})
        .mark({27, above_line}, "C1")
        .label(lblc1a, {27, below_line}, Side::below)
        .inductor({32, line}, {42, line})
        .mark({37, above_line}, "L1")
        .label(lbll1a, {42, below_line}, Side::below)
        .inductor({42, line}, {52, line})
        .mark({47, above_line}, "L1")
        .capacitor({52, line}, {62, line})
        .mark({57, above_line}, "C1")
        .label(lblc1b, {57, below_line}, Side::below)
        .wire({{62, line}, {79, line}})
        .capacitor({16, line}, {16, common_line})
        .mark({12.6, name}, "C2")
        .label(lblc2a, {14.6, value}, Side::left)
        .inductor({20, line}, {20, common_line})
        .mark({42, name}, "L2")
        .label(lbll2a, {42, value})
        .arrow({34, between_texts}, {21.4, between_texts})
        .arrow({50, between_texts}, {62.6, between_texts})
        .inductor({64, line}, {64, common_line})
        .capacitor({68, line}, {68, common_line})
        .mark({71.4, name}, "C2")
        .label(lblc2b, {69.4, value}, Side::right)
        .label(lblzin2, {5, line - 0.4}, Side::above)
        .label(lblzout2, {79, line - 0.4}, Side::above);
    for (const double x : {16.0, 20.0, 64.0, 68.0}) {
      join(schema2, x);
    }
  }

  void cmdcalcola_click() {
    const Real impedance_ohm = txtimpedenza.number();
    const Real lower_edge_mhz = txtf1.number();
    const Real upper_edge_mhz = txtf2.number();
    const Real product = impedance_ohm * lower_edge_mhz * upper_edge_mhz;
    if (product == 0) {
      refuse(txtimpedenza);
      return;
    }
    if (product < 0) {
      return;
    }
    const BandPass filter = band_pass(impedance_ohm, lower_edge_mhz, upper_edge_mhz);
    lbll1 = fixed(filter.series_inductance_uh, 1) + " µH";
    lblc1 = fixed(filter.series_capacitance_pf, 1) + " pF";
    lbll2 = fixed(filter.shunt_inductance_uh, 3) + " µH";
    lblc2 = fixed(filter.shunt_capacitance_pf, 1) + " pF";
    const SplitBandPass halves = split(filter);
    lblc2a = plain(halves.shunt_capacitance_pf) + " pF";
    lblc2b = lblc2a.content();
    lbll2a = "2 x " + plain(halves.shunt_inductance_uh) + " µH";
    lblc1a = plain(halves.series_capacitance_pf) + " pF";
    lblc1b = lblc1a.content();
    lbll1a = "2 x " + plain(halves.series_inductance_uh) + " µH";
    for (ui::Label* end : {&lblzin, &lblzout, &lblzin2, &lblzout2}) {
      *end = plain(impedance_ohm) + " OHM";
    }
    lblfc = "LA FREQUENZA DI CENTRO BANDA E' " + plain(filter.centre_mhz) + " MHz";
    lblbw = "LA BANDA PASSANTE E' " + fixed(filter.bandwidth_mhz, 3) + " MHz";
    lblq = "IL FATTORE DI MERITO TEORICO E' " + fixed(filter.quality_factor, 3);
    lblfattoreq = filter.quality_factor > highest_practical_quality_factor
                      ? "Q ECCESSIVO (MAX 10)     BANDA PASSANTE TROPPO STRETTA IN RELAZIONE ALLA "
                        "FREQUENZA"
                      : "";
    Frame1.show();
  }
};

const ui::Registration<frmpassabandakcostante> registration{"frmpassabandakcostante"};

}  // namespace

}  // namespace eterlab::filters
