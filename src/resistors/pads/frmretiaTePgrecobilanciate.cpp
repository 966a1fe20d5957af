#include "common/number_text.h"
#include "resistors/pads/resistive_pads.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

// On both drawings.
constexpr int columns = 42;
constexpr int rows = 23;
constexpr double left = 2;
constexpr double right = columns - left;
constexpr double centre = columns / 2.0;
constexpr double top = 7;
constexpr double bottom = 19;

// Attenuators of a wanted loss between two impedances of balanced lines, as an H and as an O.
class frmretiaTePgrecobilanciate final : public ui::Calculator {
  ui::Input txtZI{this,
                  "txtZI",
                  "IMPEDENZA D' INGRESSO in OHM",
                  {.tooltip = "inserire i dati", .prompt_name = "lblZI"}};
  ui::Input txtZO{this,
                  "txtZO",
                  "IMPEDENZA D' USCITA in OHM",
                  {.tooltip = "inserire i dati", .prompt_name = "lblZo"}};
  ui::Input txtLD{this,
                  "txtLD",
                  "ATTENUAZIONE DESIDERATA in DB",
                  {.tooltip = "inserire i dati", .prompt_name = "lblLD"}};
  ui::Schematic drawing{this, "drawing", columns, rows};
  ui::Label Label1{drawing, "Label1", "RETE A T BILANCIATA (H)"};
  ui::Value lblR1H{drawing, "lblR1H"};
  ui::Value lblR1Ha{drawing, "lblR1Ha"};
  ui::Value lblR2H{drawing, "lblR2H"};
  ui::Value lblR2Ha{drawing, "lblR2Ha"};
  ui::Value lblR3H{drawing, "lblR3H"};
  ui::Schematic drawing2{this, "drawing2", columns, rows};
  ui::Label Label2{drawing2, "Label2", "RETE A P GRECO BILANCIATA (O)"};
  ui::Value lblR1O{drawing2, "lblR1O"};
  ui::Value lblR2O{drawing2, "lblR2O"};
  ui::Value lblR3O{drawing2, "lblR3O"};
  ui::Value lblR3Oa{drawing2, "lblR3Oa"};
  ui::Result lblperdita{this, "lblperdita"};

 public:
  frmretiaTePgrecobilanciate()
      : Calculator{"frmretiaTePgrecobilanciate",
                   "ATTENUATORI  E  ADATTATORI RESISTIVI BILANCIATI"} {
    draw_h();
    draw_o();
    lay_out(ui::column(ui::form(txtZI, txtZO, txtLD), ui::row(drawing, drawing2), lblperdita));
  }

  void show_example() override { fill_in({"600", "300", "15"}); }

 private:
  using Side = ui::Schematic::Side;

  void draw_h() {
    draw_ports(drawing, Label1);
    drawing.resistor({left, top}, {centre, top})
        .named("R1", lblR1H, Side::above)
        .resistor({left, bottom}, {centre, bottom})
        .named("R1", lblR1Ha, Side::below)
        .resistor({centre, top}, {right, top})
        .named("R2", lblR2H, Side::above)
        .resistor({centre, bottom}, {right, bottom})
        .named("R2", lblR2Ha, Side::below)
        .resistor({centre, top}, {centre, bottom})
        .named("R3", lblR3H)
        .junction({centre, top})
        .junction({centre, bottom});
  }

  void draw_o() {
    constexpr double shunt_in = 7;
    constexpr double shunt_out = columns - shunt_in;
    draw_ports(drawing2, Label2);
    drawing2.resistor({left, top}, {right, top})
        .named("R3", lblR3O, Side::above)
        .resistor({left, bottom}, {right, bottom})
        .named("R3", lblR3Oa, Side::below)
        .resistor({shunt_in, top}, {shunt_in, bottom})
        .named("R1", lblR1O)
        .resistor({shunt_out, top}, {shunt_out, bottom})
        .named("R2", lblR2O, Side::left)
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
        .label(name, {centre, 1.2});
  }

  static std::string text_of(const std::optional<Real>& shunt_ohm) {
    return shunt_ohm ? eng(*shunt_ohm, "Ohm") : "NESSUNA";
  }

  void compute() override {
    constexpr std::string_view title = "messaggio di errore";
    const Real input_ohm = txtZI.value();
    const Real output_ohm = txtZO.value();
    const Real loss_db = txtLD.value();
    require(input_ohm >= output_ohm, txtZI, "IMPEDENZA IN < IMPEDENZA OUT", title);
    require(loss_db <= 100, txtLD, "L'ATTENUAZIONE NON PUO' SUPERARE 100 dB", title);
    const Real least_db = least_loss_db(input_ohm, output_ohm);
    require(loss_db >= least_db - least_loss_slack_db, txtLD, "DATI NON CONGRUI", title);
    const HPad h = h_pad(input_ohm, output_ohm, loss_db);
    const OPad o = o_pad(input_ohm, output_ohm, loss_db);
    lblR1H = eng(h.series_in_ohm, "Ohm");
    lblR1Ha = lblR1H.content();
    lblR2H = eng(h.series_out_ohm, "Ohm");
    lblR2Ha = lblR2H.content();
    lblR3H = eng(h.shunt_ohm, "Ohm");
    lblR1O = text_of(o.shunt_in_ohm);
    lblR2O = text_of(o.shunt_out_ohm);
    lblR3O = eng(o.series_ohm, "Ohm");
    lblR3Oa = lblR3O.content();
    lblperdita = "PERDITA MINIMA " + fixed(least_db, 2) + " dB";
  }
};

const ui::Registration<frmretiaTePgrecobilanciate> registration{"frmretiaTePgrecobilanciate"};

}  // namespace

}  // namespace eterlab::resistors
