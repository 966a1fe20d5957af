#include <array>
#include <string>

#include "common/number_text.h"
#include "common/preferred_values.h"
#include "resistors/pads/resistive_pads.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

struct CellTexts {
  std::string_view first;
  std::string_view second;
};

// In the order of the options, which is that of Cell.
constexpr std::array<CellTexts, 3> texts{{
    {"R1 (DUE, IN SERIE) = ", "R2 (VERSO MASSA) = "},
    {"R1 (DUE, VERSO MASSA) = ", "R2 (IN SERIE) = "},
    {"R1 (IN SERIE) = ", "R2 (IN PARALLELO AL CARICO) = "},
}};

constexpr std::array<int, 6> steps_db{1, 2, 3, 5, 10, 20};

// On the drawing.
constexpr int columns = 62;
constexpr int rows = 20;
constexpr double left = 6.5;
constexpr double right = columns - left;
constexpr double centre = columns / 2.0;
constexpr double top = 4;
constexpr double bottom = 17;
constexpr double middle = (top + bottom) / 2;

/// Numbered as on the drawing.
struct Resistors {
  Real first_ohm;
  Real second_ohm;
};

// Attenuator cells between equal impedances.
class frmattimpcost final : public ui::Calculator {
  ui::OptionArray Option1{
      this, "Option1", {"CELLA A T", "CELLA A P GRECO", "CELLA A L PER ALTOPARLANTI"}};
  ui::Input txtohm{this, "txtohm", "IMPEDENZA in OHM"};
  ui::Input txtdb{this, "txtdb", "ATTENUAZIONE in dB"};
  ui::Schematic drawing{this, "drawing", columns, rows};
  ui::Value lblvaloreingresso{drawing, "lblvaloreingresso"};
  ui::Value lblvalorer1{drawing, "lblvalorer1"};
  ui::Value lblvalorer1a{drawing, "lblvalorer1a"};
  ui::Value lblvalorer2{drawing, "lblvalorer2"};
  ui::Value lblvaloreuscita{drawing, "lblvaloreuscita"};
  ui::Result lblr1{this, "lblr1"};
  ui::Result lblr2{this, "lblr2"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::ResultTable table{this,
                        "table",
                        steps_db.size(),
                        {{"lbltabdb", "ATTENUAZIONE", ui::ResultTable::Kind::number},
                         {"lbltabr1", "R1"},
                         {"lbltabr2", "R2"}}};

 public:
  frmattimpcost() : Calculator{"frmattimpcost", "ATTENUATORI A IMPEDENZA COSTANTE"} {
    Option1.preset(0);
    draw();
    for (int row = 0; const int step_db : steps_db) {
      table.at(row++, 0) = std::to_string(step_db) + " dB";
    }
    table.reserve(1, "999,9 kOhm");
    table.reserve(2, "999,9 kOhm");
    lay_out(
        ui::column(ui::row(ui::column(Option1, ui::form(txtohm, txtdb), ui::stretch()), drawing),
                   lblr1, lblr2, lblpotenza, table));
    Option1.on_click([this](int) { draw(); });
  }

  void show_example() override { fill_in({"50", "6"}); }

 private:
  [[nodiscard]] Cell cell() const { return static_cast<Cell>(Option1.selected()); }

  void draw() {
    drawing.clear();
    draw_port(left, lblvaloreingresso);
    switch (cell()) {
      case Cell::t:
        draw_t();
        break;
      case Cell::pi:
        draw_pi();
        break;
      case Cell::l:
        draw_l();
        break;
    }
  }

  void draw_port(double x, ui::Label& value) {
    drawing.terminal({x, top})
        .terminal({x, bottom})
        .mark({x, middle - 1}, "Z")
        .label(value, {x, middle + 1});
  }

  void draw_t() {
    draw_port(right, lblvaloreuscita);
    drawing.resistor({left, top}, {centre, top})
        .named("R1", lblvalorer1)
        .resistor({centre, top}, {right, top})
        .named("R1", lblvalorer1a)
        .resistor({centre, top}, {centre, bottom})
        .named("R2", lblvalorer2)
        .wire({{left, bottom}, {right, bottom}})
        .junction({centre, top})
        .junction({centre, bottom});
  }

  void draw_pi() {
    constexpr double shunt_in = left + 10.5;
    constexpr double shunt_out = right - 10.5;
    draw_port(right, lblvaloreuscita);
    drawing.resistor({left, top}, {right, top})
        .named("R2", lblvalorer2)
        .resistor({shunt_in, top}, {shunt_in, bottom})
        .named("R1", lblvalorer1)
        .resistor({shunt_out, top}, {shunt_out, bottom})
        .named("R1", lblvalorer1a, ui::Schematic::Side::left)
        .wire({{left, bottom}, {right, bottom}})
        .junction({shunt_in, top})
        .junction({shunt_in, bottom})
        .junction({shunt_out, top})
        .junction({shunt_out, bottom});
  }

  void draw_l() {
    constexpr double loudspeaker = right - 9.5;
    drawing.resistor({left, top}, {centre, top})
        .named("R1", lblvalorer1)
        .wire({{centre, top}, {loudspeaker, top}})
        .resistor({centre, top}, {centre, bottom})
        .named("R2", lblvalorer2)
        .loudspeaker({loudspeaker, top}, {loudspeaker, bottom})
        .named(lblvaloreuscita)
        .wire({{left, bottom}, {loudspeaker, bottom}})
        .junction({centre, top})
        .junction({centre, bottom});
  }

  [[nodiscard]] Resistors resistors(Real impedance_ohm, Real loss_db) const {
    const AttenuatorCell chosen = attenuator_cell(cell(), impedance_ohm, loss_db);
    return cell() == Cell::pi ? Resistors{chosen.shunt_ohm, chosen.series_ohm}
                              : Resistors{chosen.series_ohm, chosen.shunt_ohm};
  }

  static std::string with_nearest(Real ohm) {
    return eng(ohm, "Ohm") + ", E24 " + eng(nearest_preferred(ohm, Series::e24), "Ohm");
  }

  void compute() override {
    const Real impedance_ohm = txtohm.value();
    const Real loss_db = txtdb.value();
    require(loss_db <= 100, txtdb, "L'ATTENUAZIONE NON PUO' SUPERARE 100 dB",
            "messaggio di errore");
    const Resistors chosen = resistors(impedance_ohm, loss_db);
    const CellTexts& told = texts[static_cast<std::size_t>(Option1.selected())];
    lblr1 = std::string{told.first} + with_nearest(chosen.first_ohm);
    lblr2 = std::string{told.second} + with_nearest(chosen.second_ohm);
    lblpotenza = "POTENZA DISSIPATA " + fixed(100 * dissipated_share(loss_db), 1) +
                 " % DI QUELLA IN INGRESSO";
    for (int row = 0; const int step_db : steps_db) {
      const Resistors step = resistors(impedance_ohm, step_db);
      table.at(row, 1) = eng(step.first_ohm, "Ohm");
      table.at(row, 2) = eng(step.second_ohm, "Ohm");
      ++row;
    }
    lblvalorer1 = eng(chosen.first_ohm, "Ohm");
    lblvalorer1a = cell() == Cell::l ? "" : lblvalorer1.content();
    lblvalorer2 = eng(chosen.second_ohm, "Ohm");
    lblvaloreingresso = eng(impedance_ohm, "Ohm");
    lblvaloreuscita = lblvaloreingresso.content();
  }
};

const ui::Registration<frmattimpcost> registration{"frmattimpcost"};

}  // namespace

}  // namespace eterlab::resistors
