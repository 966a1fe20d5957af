#include "capacitors/working_voltage_text.h"
#include "ui/ui.h"

namespace eterlab::capacitors {

namespace {

enum Duty : std::uint8_t { direct, alternating, radio };  // in the order of the options

// The working voltage that a capacitor needs.
class frmtensmincond final : public ui::Calculator {
  static constexpr int characters_of_notes = 80;

  ui::OptionArray Option1{this, "Option1", {"IN CONTINUA", "IN ALTERNATA", "IN RADIOFREQUENZA"}};
  ui::Input txtinput_0{this, "txtinput_0", "", {.prompt_name = "lblinput_0"}};
  ui::Input txtinput_1{this,
                       "txtinput_1",
                       "",
                       {.is_optional = true,
                        .negative = "IL VALORE NON PUO' ESSERE NEGATIVO",
                        .prompt_name = "lblinput_1"}};
  ui::Input txtinput_2{
      this,
      "txtinput_2",
      "ROS :",
      {.range = ui::Range{.lowest = 1}, .is_optional = true, .prompt_name = "lblinput_2"}};
  ui::Result lblpicco{this, "lblpicco"};
  ui::Result lblminima{this, "lblminima"};
  ui::Result lblcommerciale{this, "lblcommerciale"};
  ui::Note Label1{this, "Label1"};

 public:
  frmtensmincond() : Calculator{"frmtensmincond", "TENSIONE DI LAVORO MINIMA DEI CONDENSATORI"} {
    Option1.preset(direct);
    ask_for(direct);
    lay_out(ui::column(ui::across(Option1), ui::form(txtinput_0, txtinput_1, txtinput_2), lblpicco,
                       lblminima, lblcommerciale, Label1),
            {}, characters_of_notes);
    Option1.on_click([this](int duty) { ask_for(duty); });
  }

  void show_example() override {
    Option1.click(radio);
    fill_in({"100", "50", "3"});
  }

 private:
  void ask_for(int duty) {
    for (ui::Input* input : {&txtinput_0, &txtinput_1, &txtinput_2}) {
      *input = "";
    }
    txtinput_2.hide();
    switch (duty) {
      case direct:
        txtinput_0.ask("TENSIONE CONTINUA in VOLT :");
        txtinput_1.ask("RIPPLE PICCO PICCO in VOLT :", {.lowest = 0});
        Label1 = "";
        break;
      case alternating:
        txtinput_0.ask("TENSIONE EFFICACE in VOLT :");
        txtinput_1.ask("TENSIONE CONTINUA SOVRAPPOSTA in VOLT :", {.lowest = 0});
        Label1 = "SULLA RETE LUCE SI USANO SOLO CONDENSATORI DI CLASSE X2 O Y2";
        break;
      default:
        txtinput_0.ask("POTENZA in WATT :");
        txtinput_1.ask("IMPEDENZA in OHM :", {});
        txtinput_2.show();
        Label1 = "IN RADIOFREQUENZA CONTA ANCHE LA CORRENTE: USARE TIPI ADATTI";
    }
  }

  void check() override {
    const bool is_radio = Option1.selected() == radio;
    check_presence(txtinput_0);
    require(!is_radio || txtinput_1.value() > 0, txtinput_1, "MANCANO DATI");
    check_range(txtinput_0);
    check_range(txtinput_1);
    if (is_radio) {
      require(txtinput_2.value() >= 1, txtinput_2, "IL ROS NON PUO' ESSERE INFERIORE A 1");
      check_range(txtinput_2);
    }
  }

  [[nodiscard]] Real peak_v() const {
    switch (Option1.selected()) {
      case direct:
        return direct_peak_v(txtinput_0.value(), txtinput_1.value());
      case alternating:
        return alternating_peak_v(txtinput_0.value(), txtinput_1.value());
      default:
        return line_peak_v(txtinput_0.value(), txtinput_1.value(), txtinput_2.value());
    }
  }

  void compute() override {
    const Real peak = peak_v();
    lblpicco = "TENSIONE DI PICCO = " + fixed(peak, 1) + " Volt";
    lblminima =
        "TENSIONE DI LAVORO MINIMA = " + fixed(least_whole_working_voltage_v(peak), 0) + " Volt";
    lblcommerciale = "VALORE COMMERCIALE = " + working_voltage_text(least_working_voltage_v(peak));
  }
};

const ui::Registration<frmtensmincond> registration{"frmtensmincond"};

}  // namespace

}  // namespace eterlab::capacitors
