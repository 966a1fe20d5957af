#include "common/number_text.h"
#include "resistors/meter_resistance.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

// A moving-coil meter's inner resistance from two readings that do not overload it.
class frmresiststrumento final : public ui::Calculator {
  ui::Input txtrserie{this, "txtrserie", "RESISTENZA IN SERIE in OHM"};
  ui::Input txtrparallelo{this, "txtrparallelo", "RESISTENZA IN PARALLELO ALLO STRUMENTO in OHM"};
  ui::Input txti1{this, "txti1", "PRIMA LETTURA (SENZA PARALLELO) in microA"};
  ui::Input txti2{this, "txti2", "SECONDA LETTURA (CON PARALLELO) in microA"};
  ui::Schematic drawing{this, "drawing", 62, 20};
  ui::Value lblvalorers{drawing, "lblvalorers"};
  ui::Value lblvalorerp{drawing, "lblvalorerp"};
  ui::Value lblvaloreri{drawing, "lblvaloreri"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lblcaduta{this, "lblcaduta"};

 public:
  frmresiststrumento() : Calculator{"frmresiststrumento", "RESISTENZA INTERNA DI UNO STRUMENTO"} {
    draw();
    lay_out(ui::column(ui::form(txtrserie, txtrparallelo, txti1, txti2), drawing, lbloutput,
                       lblcaduta));
  }

  void show_example() override { fill_in({"47000", "1000", "100", "50"}); }

 private:
  void draw() {
    constexpr double left = 6;
    constexpr double shunt = 30;
    constexpr double meter = 48;
    constexpr double top = 4;
    constexpr double bottom = 17;
    constexpr double middle = 10.5;
    drawing.battery({left, top}, {left, bottom})
        .resistor({left, top}, {shunt, top})
        .named("Rs", lblvalorers)
        .resistor({shunt, top}, {shunt, middle})
        .named("Rp", lblvalorerp)
        .open_contact({shunt, middle}, {shunt, bottom})
        .wire({{shunt, top}, {meter, top}})
        .resistor({meter, top}, {meter, middle})
        .named("Ri", lblvaloreri)
        .meter({meter, middle}, {meter, bottom}, "µA")
        .wire({{left, bottom}, {meter, bottom}})
        .junction({shunt, top})
        .junction({shunt, bottom});
  }

  void compute() override {
    constexpr double micro = 1e-6;
    const Real series_ohm = txtrserie.value();
    const Real shunt_ohm = txtrparallelo.value();
    const Real first_a = txti1.value() * micro;
    const Real second_a = txti2.value() * micro;
    require(second_a < first_a, txti2, "LA SECONDA LETTURA DEVE ESSERE MINORE DELLA PRIMA");
    const auto meter_ohm = meter_resistance_ohm(series_ohm, shunt_ohm, first_a, second_a);
    require(meter_ohm.has_value(), txtrparallelo, "LETTURE NON COMPATIBILI CON LE RESISTENZE");
    lbloutput = "RESISTENZA INTERNA = " + eng(*meter_ohm, "Ohm");
    lblcaduta = "CADUTA DI TENSIONE CON LA PRIMA LETTURA = " + eng(*meter_ohm * first_a, "V");
    lblvalorers = eng(series_ohm, "Ohm");
    lblvalorerp = eng(shunt_ohm, "Ohm");
    lblvaloreri = eng(*meter_ohm, "Ohm");
  }
};

const ui::Registration<frmresiststrumento> registration{"frmresiststrumento"};

}  // namespace

}  // namespace eterlab::resistors
