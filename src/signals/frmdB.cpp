#include "common/number_text.h"
#include "signals/decibel.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

constexpr int decibels_known = 0;
constexpr int voltages_known = 1;
constexpr int powers_known = 2;

// What the mode with the longest captions and results needs: changing modes changes no width.
constexpr int width_of_the_ratios = 81;

constexpr Real most_decibels = 70;
constexpr std::string_view ratio_mask = "#,##0.###";

// Decibels and the ratios of voltage and power that they stand for, turned into each other;
// decibels also for an example voltage, on a part of the window that opens with their ratios.
class frmdB final : public ui::Window {
  ui::Frame Frame1{this, "Frame1", " Opzioni di calcolo "};
  ui::OptionArray Option1{Frame1,
                          "Option1",
                          {"NOTI I DECIBEL TROVARE LA VARIAZIONE IN TENSIONE E IN POTENZA",
                           "NOTE LE TENSIONI DI ENTRATA E USCITA TROVARE I DECIBEL",
                           "NOTE LE POTENZE DI ENTRATA E USCITA TROVARE I DECIBEL"}};
  ui::Label lblinput1{this, "lblinput1"};
  ui::TextBox txtinput1{this, "txtinput1", ui::tooltip("inserire i dati e cliccare \"Calcola\"")};
  ui::Label lblinput2{this, "lblinput2"};
  ui::TextBox txtinput2{this, "txtinput2", ui::tooltip("inserire i dati e cliccare \"Calcola\"")};
  ui::Label lbloutput1{this, "lbloutput1"};
  ui::Result lblout1{this, "lblout1"};
  ui::Label lbloutput2{this, "lbloutput2", "RAPPORTO in POTENZA"};
  ui::Result lblout2{this, "lblout2"};
  ui::Result lblvariazione{this, "lblvariazione"};
  ui::Note Label2{this, "Label2", "per separare i decimali usare il punto"};
  ui::Note Label1{
      this, "Label1",
      "Il decibel (dB) è un'unità di misura logaritmica che indica il rapporto esistente "
      "tra il segnale applicato all'ingresso e il segnale prelevato all'uscita di un "
      "dispositivo. Il Decibel può esprimere un guadagno o una attenuazione."};
  ui::Label Label11{this, "Label11", " dopo l'inserimento cliccare su CALCOLA  --->"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

  ui::Frame example{this, "example"};
  ui::Heading Label3{example, "Label3", "  Facciamo un esempio "};
  ui::Label Label4{example, "Label4",
                   "In un dispositivo che presenta un guadagno o una attenuazione di DB :"};
  ui::Result lbldbesempio{example, "lbldbesempio"};
  ui::Label Label5{example, "Label5", "se si applica in ingresso una tensione di  :"};
  ui::TextBox txtvoltesempio{example, "txtvoltesempio",
                             ui::tooltip("IL CALCOLO E'  INDIPENDENTE DALL'UNITA' DI MISURA")};
  ui::Label Label6{example, "Label6", "si ottengono in uscita :"};
  ui::Label Label7{example, "Label7", "in guadagno  : "};
  ui::Result Label9{example, "Label9"};
  ui::Label Label8{example, "Label8", " in attenuazione  : "};
  ui::Result Label10{example, "Label10"};

  Real voltage_ratio_;  // of the last conversion from decibels, as shown

 public:
  frmdB() : Window{"frmdB", "CONVERSIONI TRA DECIBEL E VARIAZIONI DI SEGNALE"} {
    lblinput1.reserve("TENSIONE ENTRATA");
    lblout1.reserve("9.999.999,999");
    lblout2.reserve("9.999.999,999");
    lbldbesempio.setWordWrap(false);  // little room: a longer number widens the window
    example.arrange(ui::column(
        Label3, ui::form(field(Label4, lbldbesempio)), ui::form(field(Label5, txtvoltesempio)),
        ui::row(Label6, ui::form(field(Label7, Label9), field(Label8, Label10)))));
    arrange(ui::column(
                Frame1.arrange(Option1),
                ui::row(ui::form(field(lblinput1, txtinput1), field(lblinput2, txtinput2)),
                        ui::column(ui::form(field(lbloutput1, lblout1), field(lbloutput2, lblout2)),
                                   lblvariazione)),
                Label2, Label1, ui::buttons(Label11, cmdcalcola, cmdesci), example),
            width_of_the_ratios);
    // What only some modes tell.
    ui::give_up_place_when_hidden({&lbloutput2, &lblout2, &lblvariazione, &example});

    Option1.on_click([this](int index) { Option1_click(index); });
    txtinput1.on_change([this] { txtinput1_change(); });
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
    txtvoltesempio.on_change([this] { txtvoltesempio_change(); });
  }

  void load() override { Option1.click(decibels_known); }

  void show_example() override {
    Option1.click(decibels_known);
    txtinput1 = "6";
    cmdcalcola.click();
    txtvoltesempio = "1";
  }

 private:
  void Option1_click(int index) {
    const bool gives_ratios = index == decibels_known;
    if (gives_ratios) {
      lblinput1 = "DECIBEL";
      lbloutput1 = "RAPPORTO  in TENSIONE";
    } else {
      lblinput1 = index == voltages_known ? "TENSIONE ENTRATA" : "POTENZA ENTRATA";
      lblinput2 = index == voltages_known ? "TENSIONE USCITA" : "POTENZA USCITA";
      lbloutput1 = "DECIBEL";
    }
    lblinput2.setVisible(!gives_ratios);
    txtinput2.setVisible(!gives_ratios);
    lbloutput2.setVisible(gives_ratios);
    lblout2.setVisible(gives_ratios);
    lblvariazione.hide();
    lblout1 = "";  // what stood there answers another question
    lblout2 = "";
    close_example();
  }

  void cmdcalcola_click() {
    const Real input = txtinput1.number();
    if (input < 0) {
      refuse_negative();
      return;
    }
    if (Option1.selected() == decibels_known) {
      show_ratios(input);
    } else {
      show_decibels(input, txtinput2.number());
    }
  }

  void show_ratios(Real decibels) {
    if (decibels > most_decibels) {
      refuse(txtinput1, "MASSIMO DB CALCOLABILE = 70");
      return;
    }
    const SignalRatios ratios = ratios_from_decibels(decibels);
    voltage_ratio_ = ratios.voltage;
    lblout1 = pattern(ratios.voltage, ratio_mask);
    lblout2 = pattern(ratios.power, ratio_mask);
    lbldbesempio = plain(decibels);
    open_example();
  }

  void show_decibels(Real input, Real output) {
    if (input * output <= 0) {
      refuse_negative();
      return;
    }
    const SignalChange change = Option1.selected() == voltages_known ? from_voltages(input, output)
                                                                     : from_powers(input, output);
    lblout1 = pattern(change.decibels, "#0.##");
    lblvariazione = change.is_gain ? "DB di GUADAGNO" : "DB di ATTENUAZIONE";
    lblvariazione.show();
  }

  void refuse_negative() { refuse(txtinput1, "SOLO VALORI POSITIVI"); }

  void txtinput1_change() {
    txtvoltesempio = "";
    lbldbesempio = "";
  }

  void txtvoltesempio_change() {
    const Single input_v{txtvoltesempio.number()};
    Label9 = pattern(input_v * voltage_ratio_, ratio_mask);
    Label10 = pattern(input_v / voltage_ratio_, ratio_mask);
  }

  void open_example() {
    example.show();
    set_client_area({7890, 6700});
    move_to({2100, 1000});
  }

  void close_example() {
    example.hide();
    set_client_area({7890, 4900});
    move_to({2100, 2000});
  }
};

const ui::Registration<frmdB> registration{"frmdB"};

}  // namespace

}  // namespace eterlab::signals
