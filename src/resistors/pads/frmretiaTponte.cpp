#include "common/number_text.h"
#include "resistors/pads/handbook_pads.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

// The bridged-T attenuator between equal impedances.
class frmretiaTponte final : public ui::Window {
  ui::Note Label1{
      this, "Label1",
      "La rete a T  a ponte ha il vantaggio di poter modificare l'attenuazione variando "
      "due sole resistenze"};
  ui::Label lblZI{this, "lblZI", "IMPEDENZA D' INGRESSO E USCITA"};
  ui::TextBox txtR0{this, "txtR0", ui::tooltip("inserire i dati")};
  ui::Label lblattenuazione{this, "lblattenuazione", "ATTENUAZIONE IN dB"};
  ui::TextBox txtattenuazione{this, "txtattenuazione", ui::tooltip("inserire i dati")};
  ui::Schematic schematic{this, "schematic", 48, 21};
  ui::Label lblR1{schematic, "lblR1"};
  ui::Label lblR1a{schematic, "lblR1a"};
  ui::Label lblR2{schematic, "lblR2"};
  ui::Label lblR3{schematic, "lblR3"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmretiaTponte()
      : Window{"frmretiaTponte",
               "RETI a T a ponte       l'impedenza d'ingresso deve essere uguale a quella "
               "d'uscita"} {
    draw();
    arrange(ui::column(Label1,
                       ui::form(field(lblZI, txtR0), field(lblattenuazione, txtattenuazione)),
                       schematic, ui::buttons(cmdcalcola, cmdesci)));
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtR0 = "50";
    txtattenuazione = "6";
    cmdcalcola.click();
  }

 private:
  void draw() {
    constexpr double left = 2;
    constexpr double branch_in = 7;
    constexpr double centre = 24;
    constexpr double branch_out = 41;
    constexpr double right = 46;
    constexpr double bridge = 3;
    constexpr double series = 10;
    constexpr double bottom = 20;
    schematic.terminal({left, series})
        .terminal({left, bottom})
        .terminal({right, series})
        .terminal({right, bottom})
        .wire({{left, series}, {branch_in, series}, {branch_in, bridge}})
        .wire({{right, series}, {branch_out, series}, {branch_out, bridge}})
        .wire({{left, bottom}, {right, bottom}})
        .resistor({branch_in, bridge}, {branch_out, bridge})
        .named("R3", lblR3)
        .resistor({branch_in, series}, {centre, series})
        .named("R1", lblR1)
        .resistor({centre, series}, {branch_out, series})
        .named("R1a", lblR1a)
        .resistor({centre, series}, {centre, bottom})
        .named("R2", lblR2)
        .junction({branch_in, series})
        .junction({branch_out, series})
        .junction({centre, series})
        .junction({centre, bottom});
  }

  void cmdcalcola_click() {
    const Real impedance_ohm = txtR0.number();
    const Real loss_db = txtattenuazione.number();
    if (impedance_ohm * loss_db <= 0) {
      refuse(txtR0);
      return;
    }
    const HandbookBridgedTPad pad = handbook_bridged_t_pad(impedance_ohm, loss_db);
    lblR1 = fixed(pad.series_ohm, 1);
    lblR1a = fixed(pad.series_ohm, 1);
    lblR2 = fixed(pad.shunt_ohm, 1);
    lblR3 = fixed(pad.bridge_ohm, 1);
  }
};

const ui::Registration<frmretiaTponte> registration{"frmretiaTponte"};

}  // namespace

}  // namespace eterlab::resistors
