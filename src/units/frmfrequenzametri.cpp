#include <optional>

#include "common/number_text.h"
#include "ui/ui.h"
#include "units/wave_quantities.h"

namespace eterlab::units {

namespace {

constexpr double khz = 1e3;
constexpr double ms_in_second = 1e3;

// Wavelength, frequency, angular frequency and period, each from any other, as the user types.
class frmfrequenzametri final : public ui::Calculator {
  ui::OptionArray Option1{
      this, "Option1", {"LUNGHEZZA D'ONDA", "FREQUENZA", "PULSAZIONE", "PERIODO"}};
  ui::Input txtinput{
      this, "txtinput", "METRI :", {.range = ui::Range{1e-12, 1e15}, .prompt_name = "lblinput"}};
  ui::Result lblmetri{this, "lblmetri"};
  ui::Result lblfrequenza{this, "lblfrequenza"};
  ui::Result lblpulsazione{this, "lblpulsazione"};
  ui::Result lblperiodo{this, "lblperiodo"};

 public:
  frmfrequenzametri()
      : Calculator{"frmfrequenzametri", "FREQUENZA, LUNGHEZZA D'ONDA, PULSAZIONE E PERIODO",
                   Computes::as_typed} {
    Option1.preset(0);
    txtinput.prompt().reserve("PULSAZIONE/SECONDO :");
    lay_out(ui::column(ui::across(Option1), ui::form(txtinput), lblmetri, lblfrequenza,
                       lblpulsazione, lblperiodo));
    Option1.on_click([this](int index) { Option1_click(index); });
  }

  void show_example() override {
    Option1.click(1);
    fill_in({"7100"});
  }

 private:
  void Option1_click(int index) {
    switch (index) {
      case 0:
        txtinput.ask("METRI :");
        break;
      case 1:
        txtinput.ask("FREQUENZA IN KHz :");
        break;
      case 2:
        txtinput.ask("PULSAZIONE/SECONDO :");
        break;
      default:
        txtinput.ask("PERIODO/millisecondi:");
    }
    txtinput = "";
  }

  [[nodiscard]] WaveQuantities wave(Real input) const {
    switch (Option1.selected()) {
      case 0:
        return wave_of_wavelength(input);
      case 1:
        return wave_of_frequency(input * khz);
      case 2:
        return wave_of_angular_frequency(input);
      default:
        return wave_of_period(input / ms_in_second);
    }
  }

  void compute() override {
    const std::optional<Real> input = txtinput.usable();
    if (!input) {
      return;
    }
    const WaveQuantities told = wave(*input);
    lblmetri = "METRI : " + sig(told.wavelength_m, 6);
    lblfrequenza = "FREQUENZA IN KHz : " + sig(told.frequency_hz / khz, 6);
    lblpulsazione = "PULSAZIONE/SECONDO : " + sig(told.angular_frequency_rad_per_s, 6);
    lblperiodo = "PERIODO/millisecondi : " + sig(told.period_s * ms_in_second, 6);
  }
};

const ui::Registration<frmfrequenzametri> registration{"frmfrequenzametri"};

}  // namespace

}  // namespace eterlab::units
