#include "circuits/lc_filters.h"
#include "common/number_text.h"
#include "ui/printing.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

// A low-pass with a trap in its line.
class frmpassabasso2 final : public ui::Window {
  ui::Label Label2{this, "Label2", "IMPEDENZA INPUT = OUTPUT in OHM"};
  ui::TextBox txtimpedenza{this, "txtimpedenza"};
  ui::Label Label3{this, "Label3", "FREQUENZA DI TAGLIO in MHz"};
  ui::TextBox txtf{this, "txtf"};
  ui::Schematic schema{this, "schema", 74, 22};
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
    schema.wire({{7, line}, {26, line}})
        .inductor({26, line}, {46, line})
        .wire({{46, line}, {67, line}})
        .wire({{7, common_line}, {67, common_line}})
        .wire({{26, line}, {26, 3.5}})
        .capacitor({26, 3.5}, {46, 3.5})
        .wire({{46, 3.5}, {46, line}})
        .junction({26, line})
        .junction({46, line})
        .mark({36, 1.2}, "C1")
        .label(lblc1, {36, 4.8}, Side::below)
        .mark({36, 8.3}, "L")
        .label(lbll, {36, 10.4}, Side::below)
        .label(lblzin, {7, between_lines})
        .label(lblzout, {67, between_lines});
    for (const double x : {19.0, 53.0}) {
      schema.capacitor({x, line}, {x, common_line})
          .junction({x, line})
          .junction({x, common_line})
          .mark({x - 3.2, between_lines}, "C2");
    }
    schema.label(lblc2a, {20.4, between_lines}, Side::right)
        .label(lblc2b, {54.4, between_lines}, Side::right);
    for (const double x : {7.0, 67.0}) {
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

}  // namespace eterlab::circuits
