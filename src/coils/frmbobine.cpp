#include "coils/single_layer_coil.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

enum Mode : int { find_turns, find_inductance };

constexpr std::string_view inductance_prompt = "induttanza in µH :";
constexpr std::string_view turns_prompt = "numero di spire :";

// A single-layer coil in air: its turns or its inductance, the widest wire and the wire's length.
class frmbobine final : public ui::Window {
  ui::Frame Frame1{this, "Frame1"};
  ui::OptionArray Option1{
      Frame1, "Option1", {"Trovare il numero delle spire", "Trovare il valore dell'Induttanza"}};
  ui::Label lbldiametro{this, "lbldiametro", "diametro interno bobina in millimetri",
                        ui::tooltip("calcolato al centro spira")};
  ui::TextBox txtdiametro{this, "txtdiametro", ui::tooltip("diametro del supporto")};
  ui::Label lbllunghezza{this, "lbllunghezza", "lunghezza bobina  in millimetri"};
  ui::TextBox txtlunghezza{this, "txtlunghezza",
                           ui::tooltip("digitare un dato compatibile con la sezione del filo")};
  ui::Label lblinput{this, "lblinput", inductance_prompt};
  ui::TextBox txtinput{this, "txtinput"};
  ui::Schematic Picture1{this, "Picture1", 38, 18};
  ui::Label lbll{Picture1, "lbll"};
  ui::Label lbld{Picture1, "lbld"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lbllunghezzafilo{this, "lbllunghezzafilo"};
  ui::Note Label5{this, "Label5", "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO"};
  ui::Note Label7{this, "Label7",
                  "ALCUNI AUTORI AFFERMANO CHE IL RAPPORTO OTTIMALE DI \"Q\" SI OTTIENE CON "
                  "D = 2 L,  ALTRI CON D = L"};
  ui::Note Label1{this, "Label1",
                  "Le bobine sono monostrato, senza schermo e senza nucleo. I valori ottenuti sono "
                  "teorici e si discostano sempre più da quelli reali con il crescere della "
                  "frequenza, soprattutto oltre i 30/40 MHz."};
  ui::Note Label2{this, "Label2",
                  "La formula è quella di Wheeler - Benz riportata dall'handbook dell'ARRL: non "
                  "dipende dal diametro del filo e comporta un errore minimo per le bobine non "
                  "molto lunghe, purché sia L ≥ 0,4 D."};
  ui::Note Label3{this, "Label3",
                  "La lunghezza della bobina viene stabilita in partenza: il filo dovrà quindi "
                  "avere un diametro adatto al numero di spire trovato. Partire dalla lunghezza "
                  "della bobina, anziché dalla sezione del filo, facilita anche la realizzazione "
                  "di bobine a spire spaziate."};
  ui::Button cmdaprevhf{this, "cmdaprevhf", "per bobine VHF clicca qui   \"Costr.Bobine VHF \""};
  ui::CompanionButton cmdchiamaawg{
      *this, "cmdchiamaawg", "CONVERSIONI AWG", {"frmawg", {180, 180}, {4100, 3000}}};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci", "E X I T"};

 public:
  frmbobine()
      : Window{"frmbobine",
               "CALCOLO BOBINE  HF  MONOSTRATO IN ARIA      FORMULA DI WHEELER - BENZ"} {
    Option1.preset(find_turns);
    draw();
    withdraw_results();
    arrange(ui::column(ui::row(ui::column(Frame1.arrange(Option1),
                                          ui::form(field(lbldiametro, txtdiametro),
                                                   field(lbllunghezza, txtlunghezza),
                                                   field(lblinput, txtinput)),
                                          Label5),
                               Picture1),
                       lbloutput, lbllunghezzafilo, Label7, Label1, Label2, Label3,
                       ui::buttons(cmdaprevhf, cmdchiamaawg, cmdcalcola, cmdesci)),
            96);

    Option1.on_click([this](int index) { Option1_click(index); });
    for (ui::TextBox* box : {&txtdiametro, &txtlunghezza, &txtinput}) {
      box->on_change([this] { withdraw_results(); });
    }
    cmdaprevhf.on_click([] { open("frmmicrobobine"); });
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtdiametro = "20";
    txtlunghezza = "40";
    txtinput = "10";
    cmdcalcola.click();
  }

 private:
  void draw() {
    Picture1.winding({2, 10}, {22, 10}, 9, 10)
        .wire({{2, 14.5}, {2, 17}})
        .wire({{22, 14.5}, {22, 17}})
        .dashed({{2, 9}, {2, 2.5}})
        .dashed({{22, 9}, {22, 2.5}})
        .dimension({2, 3}, {22, 3})
        .dashed({{21.5, 5.5}, {25.5, 5.5}})
        .dashed({{22.5, 14.5}, {25.5, 14.5}})
        .dimension({25, 5.5}, {25, 14.5})
        .label(lbll, {12, 3}, ui::Schematic::Side::above)
        .label(lbld, {25, 10}, ui::Schematic::Side::right);
  }

  void withdraw_results() {
    lbloutput.hide();
    lbllunghezzafilo.hide();
    lbll = "L";
    lbld = " D ";
  }

  void Option1_click(int index) {
    withdraw_results();
    lblinput = index == find_turns ? inductance_prompt : turns_prompt;
  }

  void cmdcalcola_click() {
    const CoilForm form{txtdiametro.number(), txtlunghezza.number()};
    const Real input = txtinput.number();
    if (form.diameter_mm * form.length_mm * input <= 0) {
      refuse(txtinput);
      return;
    }
    if (Option1.selected() == find_turns) {
      const SingleLayerCoil coil = coil_of_inductance(form, input);
      lbloutput = fixed(coil.turns, 1) + " spire in aria, filo con diametro massimo di mm. " +
                  plain(coil.widest_wire_mm);
      lbllunghezzafilo = "lunghezza del conduttore : " + plain(coil.wire_length_cm) + " cm.";
    } else {
      const SingleLayerCoil coil = coil_of_turns(form, input);
      lbloutput = "µHenry :   " + fixed(coil.inductance_uh, 2);
      lbllunghezzafilo = "lunghezza del conduttore " + plain(coil.wire_length_cm) +
                         " cm. con diametro max mm. " + plain(coil.widest_wire_mm);
    }
    lbll = plain(form.length_mm) + " mm";
    lbld = plain(form.diameter_mm) + " mm ";
    lbloutput.show();
    lbllunghezzafilo.show();
  }
};

const ui::Registration<frmbobine> registration{"frmbobine"};

}  // namespace

}  // namespace eterlab::coils
