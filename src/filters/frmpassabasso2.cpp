#include "common/number_text.h"
#include "filters/lc_filters.h"
#include "ui/printing.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::filters {

namespace {

// A low-pass with a trap in its line.
class frmpassabasso2 final : public ui::Window {
  ui::Label Label2{this, "Label2", "IMPEDENZA INPUT = OUTPUT in OHM"};
  ui::TextBox txtimpedenza{this, "txtimpedenza"};
  ui::Label Label3{this, "Label3", "FREQUENZA DI TAGLIO in MHz"};
  ui::TextBox txtf{this, "txtf"};
  ui::Schematic schema{this, "schema", 86, 22};
  ui::Label lblzin{schema, "lblzin", "INPUT"};
  ui::Label lblc1{schema, "lblc1"};
  ui::Label lbll{schema, "lbll"};
  ui::Label lblc2a{schema, "lblc2a"};
  ui::Label lblc2b{schema, "lblc2b"};
  ui::Label lblzout{schema, "lblzout", "OUTPUT"};
  ui::Note Label1{this, "Label1", "ARROTONDARE I CONDENSATORI SEMPRE PER DIFETTO"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::Button cmdchiamabobine{this, "cmdchiamabobine", "COSTRUZIONE BOBINE"};
  ui::Button cmdstampa{this, "cmdstampa", "STAMPA SCHEDA",
                       ui::tooltip("IMPOSTA STAMPANTE IN ORIZZONTALE")};
  ui::ExitButton cmdchiudi{this, "cmdchiudi", "CHIUDI"};

 public:
  frmpassabasso2() : Window{"frmpassabasso2", "ALTRO FILTRO \"  L C  \" PASSA BASSO"} {
    draw();
    arrange(ui::column(ui::form(field(Label2, txtimpedenza), field(Label3, txtf)), schema, Label1,
                       ui::buttons(cmdcalcola, cmdchiamabobine, cmdstampa, cmdchiudi)));

    cmdcalcola.on_click([this] { cmdcalcola_click(); });
    cmdchiamabobine.on_click([] { open("frmbobine"); });
    cmdstampa.on_click([this] { ui::print_window(*this); });
  }

  void show_example() override {
    txtimpedenza = "50";
    txtf = "7";
    cmdcalcola.click();
  }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double line = 10;
    constexpr double common_line = 20;
    constexpr double between_lines = (line + common_line) / 2;
    schema.wire({{13, line}, {32, line}})
        .inductor({32, line}, {52, line})
        .wire({{52, line}, {73, line}})
        .wire({{13, common_line}, {73, common_line}})
        .wire({{32, line}, {32, 3.5}})
        .capacitor({32, 3.5}, {52, 3.5})
        .wire({{52, 3.5}, {52, line}})
        .junction({32, line})
        .junction({52, line})
        .mark({42, 1.2}, "C1")
        .label(lblc1, {42, 4.8}, Side::below)
        .mark({42, 8.3}, "L")
        .label(lbll, {42, 10.4}, Side::below)
        .label(lblzin, {12, between_lines}, Side::left)
        .label(lblzout, {74, between_lines}, Side::right);
    for (const double x : {25.0, 59.0}) {
      schema.capacitor({x, line}, {x, common_line})
          .junction({x, line})
          .junction({x, common_line})
          .mark({x - 3.2, between_lines}, "C2");
    }
    schema.label(lblc2a, {26.4, between_lines}, Side::right)
        .label(lblc2b, {60.4, between_lines}, Side::right);
    for (const double x : {13.0, 73.0}) {
      schema.terminal({x, line}).terminal({x, common_line});
    }
  }

  void cmdcalcola_click() {
    const Real impedance_ohm = txtimpedenza.number();
    const Real cutoff_mhz = txtf.number();
    const Real product = impedance_ohm * cutoff_mhz;
    if (product == 0) {
      refuse(txtimpedenza);
      return;
    }
    if (product < 0) {
      return;
    }
    const TrapLowPass filter = trap_low_pass(cutoff_mhz, impedance_ohm);
    lbll = fixed(filter.trap_inductance_uh, 3) + " µH";
    lblc1 = fixed(filter.trap_capacitance_pf, 1) + " pF";
    lblc2a = plain(filter.shunt_capacitance_pf) + " pF";
    lblc2b = lblc2a.content();
    lblzin = plain(impedance_ohm) + " OHM";
    lblzout = lblzin.content();
  }
};

const ui::Registration<frmpassabasso2> registration{"frmpassabasso2"};

}  // namespace

}  // namespace eterlab::filters
