#include "common/number_text.h"
#include "resistors/pads/handbook_pads.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

// On both drawings.
constexpr int columns = 38;
constexpr int rows = 17;
constexpr double left = 2;
constexpr double right = columns - left;
constexpr double centre = columns / 2.0;
constexpr double top = 6;
constexpr double bottom = 16;

// Attenuators of a wanted loss between two impedances, as a T and as a pi.
class frmretiaTePgreco final : public ui::Window {
  ui::Label lblZI{this, "lblZI", "IMPEDENZA D' INGRESSO in OHM"};
  ui::TextBox txtZI{this, "txtZI", ui::tooltip("inserire i dati")};
  ui::Label lblZo{this, "lblZo", "IMPEDENZA D' USCITA in OHM"};
  ui::TextBox txtZO{this, "txtZO", ui::tooltip("inserire i dati")};
  ui::Label lblLD{this, "lblLD", "ATTENUAZIONE DESIDERATA in DB"};
  ui::TextBox txtLD{this, "txtLD", ui::tooltip("inserire i dati")};
  ui::Note Label3{this, "Label3",
                  "L'IMPEDENZA D' INGRESSO DEVE ESSERE MAGGIORE O UGUALE ALL'IMPEDENZA D' USCITA  "
                  "QUANDO E' UGUALE NON SI HANNO PERDITE D' INSERZIONE"};
  ui::Note Label4{this, "Label4",
                  "Quando le impedenze sono diverse, determinati valori di attenuazione non "
                  "consentono il calcolo"};
  ui::Schematic t_schematic{this, "t_schematic", columns, rows};
  ui::Label Label1{t_schematic, "Label1", "RETE a T"};
  ui::Label lblR1T{t_schematic, "lblR1T"};
  ui::Label lblR2T{t_schematic, "lblR2T"};
  ui::Label lblR3T{t_schematic, "lblR3T"};
  ui::Schematic pi_schematic{this, "pi_schematic", columns, rows};
  ui::Label Label2{pi_schematic, "Label2", "RETE a P GRECO"};
  ui::Label lblR1P{pi_schematic, "lblR1P"};
  ui::Label lblR2P{pi_schematic, "lblR2P"};
  ui::Label lblR3P{pi_schematic, "lblR3P"};
  ui::Result lblperdita{this, "lblperdita"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmretiaTePgreco() : Window{"frmretiaTePgreco", "ATTENUATORI  E  ADATTATORI RESISTIVI"} {
    draw_t();
    draw_pi();
    arrange(ui::column(ui::form(field(lblZI, txtZI), field(lblZo, txtZO), field(lblLD, txtLD)),
                       Label3, Label4, ui::row(t_schematic, pi_schematic), lblperdita,
                       ui::buttons(cmdcalcola, cmdesci)));
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtZI = "75";
    txtZO = "50";
    txtLD = "10";
    cmdcalcola.click();
  }

 private:
  void draw_t() {
    draw_ports(t_schematic, Label1);
    t_schematic.resistor({left, top}, {centre, top})
        .named("R1", lblR1T)
        .resistor({centre, top}, {right, top})
        .named("R2", lblR2T)
        .resistor({centre, top}, {centre, bottom})
        .named("R3", lblR3T)
        .junction({centre, top})
        .junction({centre, bottom});
  }

  void draw_pi() {
    constexpr double shunt_in = 7;
    constexpr double shunt_out = columns - shunt_in;
    draw_ports(pi_schematic, Label2);
    pi_schematic.wire({{left, top}, {shunt_in, top}})
        .resistor({shunt_in, top}, {shunt_out, top})
        .named("R3", lblR3P)
        .wire({{shunt_out, top}, {right, top}})
        .resistor({shunt_in, top}, {shunt_in, bottom})
        .named("R1", lblR1P)
        .resistor({shunt_out, top}, {shunt_out, bottom})
        .named("R2", lblR2P, ui::Schematic::Side::left)
        .junction({shunt_in, top})
        .junction({shunt_in, bottom})
        .junction({shunt_out, top})
        .junction({shunt_out, bottom});
  }

  static void draw_ports(ui::Schematic& schematic, ui::Label& name) {
    schematic.terminal({left, top})
        .terminal({left, bottom})
        .terminal({right, top})
        .terminal({right, bottom})
        .wire({{left, bottom}, {right, bottom}})
        .label(name, {centre, 1.2});
  }

  void cmdcalcola_click() {
    const Real input_ohm = txtZI.number();
    const Real output_ohm = txtZO.number();
    const Real loss_db = txtLD.number();
    if (input_ohm * output_ohm * loss_db <= 0) {
      refuse(txtZI);
      return;
    }
    if (input_ohm < output_ohm) {
      refuse(txtZI, "IMPEDENZA IN < IMPEDENZA OUT", "messaggio di errore");
      return;
    }
    const Real least_db = handbook_least_loss_db(input_ohm, output_ohm);
    if (loss_db < least_db) {
      refuse(txtLD, "DATI NON CONGRUI", "messaggio di errore");
      return;
    }
    const HandbookTPad t = handbook_t_pad(input_ohm, output_ohm, loss_db);
    const HandbookPiPad pi = handbook_pi_pad(input_ohm, output_ohm, loss_db);
    lblR1T = plain(t.series_in_ohm);
    lblR2T = plain(t.series_out_ohm);
    lblR3T = plain(t.shunt_ohm);
    lblR1P = plain(pi.shunt_in_ohm);
    lblR2P = plain(pi.shunt_out_ohm);
    lblR3P = plain(pi.series_ohm);
    lblperdita = "PERDITA D'INSERZIONE " + plain(told_in_whole_db(least_db)) + " dB";
  }
};

const ui::Registration<frmretiaTePgreco> registration{"frmretiaTePgreco"};

}  // namespace

}  // namespace eterlab::resistors
