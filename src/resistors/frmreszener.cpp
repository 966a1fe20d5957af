#include "common/number_text.h"
#include "resistors/series_resistor.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

// The series resistor of a Zener stabiliser and its dissipation.
class frmreszener final : public ui::Window {
  static constexpr ui::Tooltip load_tip = ui::tooltip("corrente assorbita dal circuito");

  ui::Label Label3{this, "Label3", "Tensione di alimentazione"};
  ui::TextBox txtvcc{this, "txtvcc", ui::tooltip("input tensione non stabilizzata")};
  ui::Label Label4{this, "Label4", "Tensione diodo zener"};
  ui::TextBox txtvz{this, "txtvz", ui::tooltip("Tens. stabilizzata")};
  ui::Label Label5{this, "Label5", "Assorbimento in milliAmpere", load_tip};
  ui::TextBox txtma{this, "txtma", load_tip};
  ui::Frame Frame1{this, "Frame1", "Zener utilizzato",
                   ui::tooltip("selezionare la potenza del diodo zener")};
  ui::OptionArray Option1{
      Frame1, "Option1", {"Zener da 1/2 watt", "Zener da 1 watt", "Zener da 2 watt"}};
  ui::Schematic drawing{this, "drawing", 62, 16};
  ui::Label Label1{drawing, "Label1", "+ Vcc"};
  ui::Label Label2{drawing, "Label2", "Vz"};
  ui::Label lblvcc{drawing, "lblvcc"};
  ui::Label lblohm{drawing, "lblohm"};
  ui::Label lblvz{drawing, "lblvz"};
  ui::Result lblohmlunga{this, "lblohmlunga"};
  ui::Result lblwatt{this, "lblwatt"};
  ui::Note Label6{this, "Label6", "USARE IL PUNTO PER SEPARARE I DECIMALI"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

  int standing_ma_ = 0;

 public:
  frmreszener() : Window{"frmreszener", "CALCOLO DELLA RESISTENZA DI CADUTA"} {
    draw();
    arrange(ui::column(
        ui::row(ui::form(field(Label3, txtvcc), field(Label4, txtvz), field(Label5, txtma)),
                Frame1.arrange(Option1)),
        drawing, lblohmlunga, lblwatt, Label6, ui::buttons(cmdcalcola, cmdesci)));

    Option1.on_click(
        [this](int index) { standing_ma_ = zener_standing_ma(static_cast<ZenerClass>(index)); });
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtvcc = "12";
    txtvz = "5.1";
    txtma = "20";
    Option1.click(0);
    cmdcalcola.click();
  }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double supply_y = 4;
    constexpr double ground_y = 13;
    constexpr double input_x = 11;
    constexpr double zener_x = 34;
    constexpr double output_x = 51;
    drawing.terminal({input_x, supply_y})
        .resistor({input_x, supply_y}, {zener_x, supply_y})
        .wire({{zener_x, supply_y}, {output_x, supply_y}})
        .terminal({output_x, supply_y})
        .junction({zener_x, supply_y})
        .zener({zener_x, ground_y}, {zener_x, supply_y})
        .ground({zener_x, ground_y});
    drawing.label(Label1, {input_x - 0.4, supply_y}, Side::left)
        .label(lblvcc, {input_x, supply_y + 1}, Side::below)
        .label(lblohm, {(input_x + zener_x) / 2, supply_y - 0.8}, Side::above)
        .label(Label2, {output_x + 0.4, supply_y}, Side::right)
        .label(lblvz, {zener_x + 1, (supply_y + ground_y) / 2}, Side::right);
  }

  void cmdcalcola_click() {
    const Real supply_v = txtvcc.number();
    const Real zener_v = txtvz.number();
    const Real load_ma = txtma.number();
    if (zener_v > supply_v) {
      refuse(txtvcc, "VALORI DI TENSIONE ERRATI");
      return;
    }
    const Real product = supply_v * zener_v * load_ma;
    if (product == 0) {
      refuse(txtvcc);
      return;
    }
    if (product < 0) {
      return;
    }
    const ZenerResistor resistor = zener_series_resistor(supply_v, zener_v, load_ma, standing_ma_);
    const std::string resistance = std::to_string(resistor.resistance_ohm);
    lblvcc = plain(supply_v) + " V";
    lblohm = resistance + " ohm";
    lblvz = plain(zener_v) + " V";
    lblohmlunga = "Valore della resistenza = Ohm " + resistance;
    lblwatt = "Dissipazione in Watt = " + plain(resistor.dissipation_w);
  }
};

const ui::Registration<frmreszener> registration{"frmreszener"};

}  // namespace

}  // namespace eterlab::resistors
