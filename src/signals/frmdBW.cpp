#include <optional>

#include "common/number_text.h"
#include "signals/decibel_watt.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

constexpr double impedance_ohm = 50;
constexpr ui::Range watts{1e-30, 1e30};
constexpr ui::Range decibels{-300, 300};

// A power in watts, dBW and dBm, as the user types.
class frmdBW final : public ui::Calculator {
  ui::OptionArray Option1{this, "Option1", {"DA WATT", "DA dBW", "DA dBm"}};
  ui::Input txtinput{
      this, "txtinput", "POTENZA IN WATT :", {.range = watts, .prompt_name = "lblinput"}};
  ui::Result lblwatt{this, "lblwatt"};
  ui::Result lbldbw{this, "lbldbw"};
  ui::Result lbldbm{this, "lbldbm"};
  ui::Result lblvolt{this, "lblvolt"};

 public:
  frmdBW() : Calculator{"frmdBW", "CONVERSIONE TRA WATT, dBW E dBm", Computes::as_typed} {
    Option1.preset(0);
    txtinput.prompt().reserve("POTENZA IN WATT :");
    lay_out(ui::column(ui::across(Option1), ui::form(txtinput), lblwatt, lbldbw, lbldbm, lblvolt));
    Option1.on_click([this](int index) { Option1_click(index); });
  }

  void show_example() override { fill_in({"100"}); }

 private:
  void Option1_click(int index) {
    switch (index) {
      case 0:
        txtinput.ask("POTENZA IN WATT :", watts);
        break;
      case 1:
        txtinput.ask("LIVELLO IN dBW :", decibels);
        break;
      default:
        txtinput.ask("LIVELLO IN dBm :", decibels);
    }
    txtinput = "";
  }

  void compute() override {
    const std::optional<Real> input = txtinput.usable();
    if (!input) {
      return;
    }
    const bool is_power = Option1.selected() == 0;
    const bool is_dbm = Option1.selected() == 2;
    const Real level = is_power ? level_dbw(*input) : is_dbm ? *input - one_watt_dbm : *input;
    const Real power = is_power ? *input : power_w(level);
    lblwatt = "POTENZA = " + eng(power, "W");
    lbldbw = "dBW = " + fixed(level, 2);
    lbldbm = "dBm = " + fixed(is_dbm ? *input : level + one_watt_dbm, 2);
    lblvolt = "SU 50 OHM = " + eng(rms_voltage_v(power, impedance_ohm), "V") + " efficaci";
  }
};

const ui::Registration<frmdBW> registration{"frmdBW"};

}  // namespace

}  // namespace eterlab::signals
