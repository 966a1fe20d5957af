#include "common/number_text.h"
#include "signals/waveform.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

constexpr std::string_view rms_caption = "VOLT EFFICACI";
constexpr std::string_view peak_caption = "VOLT DI PICCO";
constexpr std::string_view peak_to_peak_caption = "VOLT PICCO PICCO";

constexpr ui::Colour chosen_blue{0, 0, 192};

// One measure of an alternating voltage turned into the others, as the user types.
class frmvolt final : public ui::Window {
  ui::Frame Frame1{this, "Frame1", "Dato conosciuto"};
  ui::OptionArray Option1{Frame1, "Option1", {rms_caption, peak_caption, peak_to_peak_caption}};
  ui::Frame Frame2{this, "Frame2", " ONDE "};
  ui::OptionArray Option2{Frame2, "Option2", {"SINUSOIDALI", "TRIANGOLARI", "QUADRE"}};
  ui::Label lblinput{this, "lblinput"};
  ui::TextBox txtinput{this, "txtinput", ui::tooltip("inserisci il voltaggio")};
  ui::Result lblout1{this, "lblout1"};
  ui::Result lblout2{this, "lblout2"};
  ui::Result lblout3{this, "lblout3"};
  ui::Note Label1{this, "Label1", "USARE IL PUNTO PER SEPARARE I DECIMALI"};
  ui::ExitButton cmdesci{this, "cmdesci"};

  Real peak_v_;  // of the last computation, which one without a kind goes on from

 public:
  frmvolt() : Window{"frmvolt", "VOLT EFFICACI - VOLT DI PICCO - VOLT PICCO PICCO"} {
    Option2.preset(0);
    lblinput.reserve(peak_to_peak_caption);
    arrange(ui::column(ui::row(Frame1.arrange(Option1), Frame2.arrange(Option2)),
                       ui::form(field(lblinput, txtinput)), lblout1, lblout2, lblout3, Label1,
                       ui::buttons(cmdesci)));

    Option1.on_click([this](int index) { Option1_click(index); });
    Option2.on_click([this](int /*index*/) { clear(); });
    txtinput.on_change([this] { txtinput_change(); });
  }

  void show_example() override {
    Option1.click(0);
    txtinput = "10";
  }

 private:
  void Option1_click(int index) {
    clear();
    lblinput = Option1[index].caption();
    Option1.mark(index, chosen_blue);
  }

  // Emptying the box is an edit: where it held a text, the results of 0 volt appear.
  void clear() {
    lblout1 = "";
    lblout2 = "";
    lblout3 = "";
    txtinput = "";
  }

  void txtinput_change() {
    const auto wave = static_cast<Waveform>(Option2.selected());
    const Real voltage_v = txtinput.number();
    if (voltage_v < 0) {
      refuse(txtinput, "VALORE NEGATIVO");
      return;
    }
    if (lblinput.content() == rms_caption) {
      const WaveVoltages voltages = from_rms(voltage_v, wave);
      peak_v_ = voltages.peak_v;
      lblout1 = "VOLT di picco : " + fixed(voltages.peak_v, 2);
      lblout2 = "VOLT picco picco : " + fixed(voltages.peak_to_peak_v, 2);
    } else if (lblinput.content() == peak_caption) {
      const WaveVoltages voltages = from_peak(voltage_v, wave);
      peak_v_ = voltages.peak_v;
      lblout1 = "VOLT efficaci : " + fixed(voltages.rms_v, 2);
      lblout2 = "VOLT picco picco : " + fixed(voltages.peak_to_peak_v, 2);
    } else if (lblinput.content() == peak_to_peak_caption) {
      const WaveVoltages voltages = from_peak_to_peak(voltage_v, wave);
      peak_v_ = voltages.peak_v;
      lblout1 = "VOLT efficaci : " + fixed(voltages.rms_v, 2);
      lblout2 = "VOLT di picco : " + fixed(voltages.peak_v, 2);
    }
    lblout3 = "VOLT VALORE MEDIO : " + fixed(average_v(peak_v_, wave), 2);
  }
};

const ui::Registration<frmvolt> registration{"frmvolt"};

}  // namespace

}  // namespace eterlab::signals
