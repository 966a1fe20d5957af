#include <array>

#include "circuits/ohms_law.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

struct Mode {
  std::string_view formulas;
  std::array<std::string_view, 4> names;  // of the two inputs, then of the two results
  OperatingPoint (*solve)(Real, Real);
  Real OperatingPoint::*first_result;
  Real OperatingPoint::*second_result;
};

using Point = OperatingPoint;

constexpr std::array<Mode, 6> modes{{
    {"R = V : I     W= V x I",
     {"VOLT :", "AMPER :", "OHM :", "WATT :"},
     from_voltage_and_current,
     &Point::resistance_ohm,
     &Point::power_w},
    {"I = V : R     W = (V x V) : R",
     {"VOLT :", "OHM :", "AMPER :", "WATT :"},
     from_voltage_and_resistance,
     &Point::current_a,
     &Point::power_w},
    {"I = W : V     R = (V x V) : W",
     {"VOLT :", "WATT :", "AMPER :", "OHM :"},
     from_voltage_and_power,
     &Point::current_a,
     &Point::resistance_ohm},
    {"V = I x R     W = (I x I) x R",
     {"AMPER :", "OHM :", "VOLT :", "WATT :"},
     from_current_and_resistance,
     &Point::voltage_v,
     &Point::power_w},
    {"V = W : I     R = W : (I x I)",
     {"AMPER :", "WATT :", "VOLT :", "OHM :"},
     from_current_and_power,
     &Point::voltage_v,
     &Point::resistance_ohm},
    {"V = radice(R x W)   I = radice( W : R)",
     {"OHM :", "WATT :", "VOLT :", "AMPER :"},
     from_resistance_and_power,
     &Point::voltage_v,
     &Point::current_a},
}};

// Ohm's law and power: two of the four quantities known, the other two computed.
class frmleggediohm final : public ui::Window {
  ui::Frame Frame1{this, "Frame1", "dati conosciuti", ui::tooltip("effettuare una scelta")};
  ui::OptionArray Option1{Frame1,
                          "Option1",
                          {"VOLT  e  AMPERE", "VOLT e  OHM", "VOLT e  WATT", "AMPERE e OHM",
                           "AMPERE e  WATT", "OHM e  WATT"}};
  ui::Label lblformule{this, "lblformule"};
  ui::LabelArray lblinput{this, "lblinput", 6};
  ui::TextBox txtinput1{this, "txtinput1", ui::tooltip("immissione dato")};
  ui::TextBox txtinput2{this, "txtinput2", ui::tooltip("immissione dato")};
  ui::Note Label1{this, "Label1", "USARE IL PUNTO PER SEPARARE I DECIMALI"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola", "CALCOLA", ui::tooltip("abilita il calcolo")};
  ui::ExitButton cdmesci{this, "cdmesci", "CHIUDI", ui::tooltip("esce dall'applicazione")};

 public:
  frmleggediohm() : Window{"frmleggediohm", "POTENZA - TENSIONE - CORRENTE - RESISTENZA"} {
    lblformule.reserve(modes.back().formulas);
    lblinput[0].reserve("AMPER :");
    lblinput[4].set_role(ui::Label::Role::result);
    lblinput[5].set_role(ui::Label::Role::result);
    lblinput[2].hide();
    lblinput[3].hide();
    arrange(ui::column(
        ui::row(
            Frame1.arrange(Option1),
            ui::column(lblformule,
                       ui::form(field(lblinput[0], txtinput1), field(lblinput[1], txtinput2),
                                field(lblinput[2], lblinput[4]), field(lblinput[3], lblinput[5])),
                       ui::stretch())),
        Label1, ui::buttons(cmdcalcola, cdmesci)));

    Option1.on_click([this](int index) { Option1_click(index); });
    blank_on_change({&txtinput1, &txtinput2}, {&lblinput[4], &lblinput[5]});
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    Option1.click(5);
    txtinput1 = "50";
    txtinput2 = "100";
    cmdcalcola.click();
  }

 private:
  void Option1_click(int index) {
    const Mode& mode = modes[static_cast<std::size_t>(index)];
    lblinput[4] = "";
    lblinput[5] = "";
    lblformule = mode.formulas;
    for (int i = 0; i < 4; ++i) {
      lblinput[i] = mode.names[static_cast<std::size_t>(i)];
    }
  }

  void cmdcalcola_click() {
    const Real first = txtinput1.number();
    const Real second = txtinput2.number();
    if (first * second <= 0) {
      refuse(txtinput1);
      return;
    }
    if (Option1.selected() != ui::OptionArray::none) {
      const Mode& mode = modes[static_cast<std::size_t>(Option1.selected())];
      const OperatingPoint point = mode.solve(first, second);
      lblinput[4] = pattern(point.*mode.first_result, "#,##0.###");
      lblinput[5] = pattern(point.*mode.second_result, "#,##0.###");
    }
    lblinput[2].show();
    lblinput[3].show();
  }
};

const ui::Registration<frmleggediohm> registration{"frmleggediohm"};

}  // namespace

}  // namespace eterlab::circuits
