#include "capacitors/stored_energy.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::capacitors {

namespace {

// Energy and charge of a capacitor, and the resistor that makes it safe.
class frmenergiapotenziale final : public ui::Calculator {
  ui::Input txtcapacita{this, "txtcapacita", "CAPACITA' in microF"};
  ui::Input txtvolt{this, "txtvolt", "TENSIONE in VOLT"};
  ui::Input txtohm{this,
                   "txtohm",
                   "RESISTENZA DI SCARICA in OHM",
                   {.tooltip = "facoltativa",
                    .is_optional = true,
                    .negative = "LA RESISTENZA NON PUO' ESSERE NEGATIVA"}};
  ui::Result lblenergia{this, "lblenergia"};
  ui::Result lblcarica{this, "lblcarica"};
  ui::Result lbltempo{this, "lbltempo"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Schematic drawing{this, "drawing", 39, 14};
  ui::Value lblvaloretensione{drawing, "lblvaloretensione"};
  ui::Value lblvalorecapacita{drawing, "lblvalorecapacita"};
  ui::Value lblvaloreresistenza{drawing, "lblvaloreresistenza"};

 public:
  frmenergiapotenziale()
      : Calculator{"frmenergiapotenziale", "ENERGIA ELETTROSTATICA DI UN CONDENSATORE"} {
    draw();
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtcapacita, txtvolt, txtohm), ui::stretch()), drawing),
        lblenergia, lblcarica, lbltempo, lblpotenza));
  }

  void show_example() override { fill_in({"100", "400", "100000"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double voltage_x = 9.5;
    constexpr double left = 12;
    constexpr double right = 25;
    constexpr double top = 2;
    constexpr double bottom = 12;
    constexpr double middle = (top + bottom) / 2;
    drawing.dimension({voltage_x, top}, {voltage_x, bottom})
        .mark({voltage_x, middle - 1}, "U", Side::left)
        .label(lblvaloretensione, {voltage_x, middle + 1}, Side::left)
        .capacitor({left, top}, {left, bottom})
        .named_beside("C", lblvalorecapacita, Side::right)
        .resistor({right, top}, {right, bottom})
        .named_beside("R", lblvaloreresistenza, Side::right)
        .wire({{left, top}, {right, top}})
        .wire({{left, bottom}, {right, bottom}});
  }

  void compute() override {
    const Real capacitance_f = txtcapacita.value() * 1e-6;
    const Real voltage_v = txtvolt.value();
    const Real resistance_ohm = txtohm.value();
    lblenergia = "ENERGIA = " + eng(stored_energy_j(capacitance_f, voltage_v), "J");
    lblcarica = "CARICA = " + eng(stored_charge_c(capacitance_f, voltage_v), "C");
    lblvaloretensione = eng(voltage_v, "V");
    lblvalorecapacita = eng(capacitance_f, "F");
    if (resistance_ohm < ui::Range{}.lowest) {
      return;
    }
    const std::string safe = plain(safe_voltage_v);
    lbltempo = voltage_v > safe_voltage_v
                   ? "SCENDE SOTTO I " + safe + " VOLT IN " +
                         eng(time_to_safety_s(capacitance_f, voltage_v, resistance_ohm), "s")
                   : "GIA' SOTTO I " + safe + " VOLT";
    lblpotenza = "POTENZA INIZIALE SULLA RESISTENZA = " +
                 eng(discharge_power_w(voltage_v, resistance_ohm), "W");
    lblvaloreresistenza = eng(resistance_ohm, "Ohm");
  }
};

const ui::Registration<frmenergiapotenziale> registration{"frmenergiapotenziale"};

}  // namespace

}  // namespace eterlab::capacitors
