#include <algorithm>
#include <array>

#include "coils/toroids/toroid_cores.h"
#include "coils/toroids/toroid_picker.h"
#include "coils/toroids/toroid_tuning.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

struct Mode {
  std::array<std::string_view, 3> names;  // of the two inputs and of the unknown
  std::array<std::string_view, 3> units;
  std::string_view caption;
  TunedCircuit (*solve)(Real, Real);
  Real TunedCircuit::*unknown;
};

constexpr std::array<Mode, 3> modes{{
    {{"INDUTTANZA :", "CAPACITA' :", "FREQUENZA :"},
     {" microH", " pF", " MHz"},
     "CALCOLA LA FREQUENZA E LE SPIRE",
     from_inductance_and_capacitance,
     &TunedCircuit::frequency_mhz},
    {{"FREQUENZA :", "INDUTTANZA :", "CAPACITA' :"},
     {" MHz", " microH", " pF"},
     "CALCOLA LA CAPACITA' E LE SPIRE",
     from_frequency_and_inductance,
     &TunedCircuit::capacitance_pf},
    {{"FREQUENZA :", "CAPACITA' :", "INDUTTANZA :"},
     {" MHz", " pF", " microH"},
     "CALCOLA L'INDUTTANZA E LE SPIRE",
     from_frequency_and_capacitance,
     &TunedCircuit::inductance_uh},
}};

// A tuned circuit of which two quantities are known: the third, and the turns on a toroid.
class frmsintoniatoro final : public ui::Window {
  ToroidPicker picker{this, "SELEZIONARE IL TOROIDE"};
  ui::Frame Frame2{this, "Frame2", "dati conosciuti", ui::tooltip("EFFETTUARE UNA SCELTA")};
  ui::OptionArray Option1{
      Frame2,
      "Option1",
      {"INDUTTANZA e CAPACITA'", "FREQUENZA e INDUTTANZA", "FREQUENZA e CAPACITA'"}};
  ui::LabelArray lblinput{this, "lblinput", 4};
  ui::TextBox txtinput1{this, "txtinput1"};
  ui::TextBox txtinput2{this, "txtinput2"};
  ui::LabelArray lblumisura{this, "lblumisura", 3};
  ui::Result lblspire{this, "lblspire"};
  ui::Note lblhelp2{
      this, "lblhelp2",
      " IL RISULTATO E' TEORICO IN QUANTO LA PIU' O MENO OMOGENEA DISTRIBUZIONE DELLE SPIRE "
      "MODIFICA    L' INDUTTANZA E GLI STESSI  PRODUTTORI DEI TOROIDI DICHIARANO UNA TOLLERANZA "
      "DEL 20 % DELLA PERMEABILITA'"};
  ui::Note lblpunto{this, "lblpunto", "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmsintoniatoro() : Window{"frmsintoniatoro", "BOBINE DI SINTONIA CON NUCLEI TOROIDALI "} {
    lblinput[0].reserve("INDUTTANZA :");
    lblumisura[0].reserve(" microH");
    lblinput[3].set_role(ui::Label::Role::result);
    Frame2.hide();
    txtinput1.hide();
    txtinput2.hide();
    lblhelp2.hide();
    lblpunto.hide();
    cmdcalcola.hide();
    arrange(ui::column(ui::row(picker.list(), ui::stretch()), picker.core(),
                       ui::row(Frame2.arrange(Option1),
                               ui::column(ui::form(field(lblinput[0], txtinput1, lblumisura[0]),
                                                   field(lblinput[1], txtinput2, lblumisura[1]),
                                                   field(lblinput[2], lblinput[3], lblumisura[2])),
                                          lblspire)),
                       lblhelp2, lblpunto, ui::buttons(cmdcalcola, cmdesci)));

    picker.on_choose([this] { cmbnucleo_click(); });
    Option1.on_click([this](int index) { Option1_click(index); });
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    picker.choose("T-50/ 2");
    Option1.click(0);
    txtinput1 = "10";
    txtinput2 = "100";
    cmdcalcola.click();
  }

 private:
  void clear() {
    lblinput[3] = "";
    lblspire = "";
  }

  void cmbnucleo_click() {
    clear();
    Frame2.show();
  }

  void Option1_click(int index) {
    clear();
    txtinput1.show();
    txtinput2.show();
    cmdcalcola.show();
    lblhelp2.show();
    lblpunto.show();
    const Mode& mode = modes.at(static_cast<std::size_t>(index));  // any other ends the program
    for (int i = 0; i < 3; ++i) {
      lblinput[i] = mode.names[static_cast<std::size_t>(i)];
      lblumisura[i] = mode.units[static_cast<std::size_t>(i)];
    }
    cmdcalcola.set_caption(mode.caption);
  }

  void cmdcalcola_click() {
    const Real first = txtinput1.number();
    const Real second = txtinput2.number();
    if (first * second == 0) {
      refuse(txtinput1);
      return;
    }
    const Mode& mode = *std::ranges::find_if(modes, [this](const Mode& each) {
      return lblinput[0].content() == each.names[0] && lblinput[1].content() == each.names[1];
    });
    const TunedCircuit circuit = mode.solve(first, second);
    lblinput[3] = fixed(circuit.*mode.unknown, 3);
    lblspire = "OCCORRONO " +
               fixed(toroid_turns(circuit.inductance_uh, picker.inductance_index_uh()), 1) +
               " SPIRE";
  }
};

const ui::Registration<frmsintoniatoro> registration{"frmsintoniatoro"};

}  // namespace

}  // namespace eterlab::coils
