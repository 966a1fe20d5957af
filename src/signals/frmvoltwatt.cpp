#include <array>

#include "common/number_text.h"
#include "signals/power_level.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

struct Mode {
  std::string_view power_unit;
  std::string_view voltage_unit;
  PowerUnit unit;
};

constexpr int first_mode = 1;
constexpr std::array<Mode, 7> modes{{
    {"WATT", " VOLT rms", watt_to_volt},
    {"milliWATT", " MILLIVOLT rms", milliwatt_to_millivolt},
    {"microWATT", " MILLIVOLT rms", microwatt_to_millivolt},
    {"nanoWATT", " MILLIVOLT rms", nanowatt_to_millivolt},
    {"nanoWatt", " MICROVOLT rms", nanowatt_to_microvolt},
    {"picoWATT", " MICROVOLT rms", picowatt_to_microvolt},
    {"femtoWATT", " MICROVOLT rms", femtowatt_to_microvolt},
}};

const Mode& mode_of(int index) { return modes[static_cast<std::size_t>(index - first_mode)]; }

// The voltage and the level in dBm of a power across a resistance.
class frmvoltwatt final : public ui::Window {
  ui::Frame Frame1{this, "Frame1"};
  ui::OptionArray Option1{
      Frame1,
      "Option1",
      {"DA WATT A VOLT E dBm", "DA MILLIWATT A MILLIVOLT E dBm", "DA MICROWATT A MILLIVOLT E dBm",
       "DA NANOWATT A MILLIVOLT E dBm", "DA NANOWATT A MICROVOLT E dBm",
       "DA PICOWATT A MICROVOLT E dBm", "DA FEMTOWATT A MICROVOLT E dBm"},
      first_mode};
  ui::Label lblinput{this, "lblinput"};
  ui::TextBox txtinput{this, "txtinput"};
  ui::Label Label1{this, "Label1", "OHM"};
  ui::TextBox txtohm{this, "txtohm"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lbldbm{this, "lbldbm"};
  ui::Note Label2{this, "Label2", "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmvoltwatt()
      : Window{"frmvoltwatt", "VALORE IN dBm  IN RAPPORTO ALLA POTENZA E ALL' IMPEDENZA"} {
    lblinput.reserve("femtoWATT");
    arrange(
        ui::column(ui::row(Frame1.arrange(Option1),
                           ui::column(ui::form(field(lblinput, txtinput), field(Label1, txtohm)),
                                      lbloutput, lbldbm, ui::stretch())),
                   Label2, ui::buttons(cmdcalcola, cmdesci)));

    Option1.on_click([this](int index) { Option1_click(index); });
    blank_on_change({&txtinput, &txtohm}, {&lbloutput, &lbldbm});
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    Option1.click(1);
    txtinput = "1";
    txtohm = "50";
    cmdcalcola.click();
  }

 private:
  void Option1_click(int index) {
    lblinput = mode_of(index).power_unit;
    lbloutput = "";
    lbldbm = "";
  }

  void cmdcalcola_click() {
    const Real resistance_ohm = txtohm.number();
    const Real power = txtinput.number();
    if (resistance_ohm * power <= 0) {
      refuse(txtohm);
      return;
    }
    if (Option1.selected() == ui::OptionArray::none) {
      return;
    }
    const Mode& mode = mode_of(Option1.selected());
    lbloutput =
        fixed(rms_voltage(power, resistance_ohm, mode.unit), 3) + std::string{mode.voltage_unit};
    lbldbm = "PARI A  " + plain(level_dbm(power, mode.unit)) + " dBm";
  }
};

const ui::Registration<frmvoltwatt> registration{"frmvoltwatt"};

}  // namespace

}  // namespace eterlab::signals
