#include "coils/toroids/toroid_picker.h"
#include "coils/toroids/toroid_transformer.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

// A transformer on a toroid that matches an antenna to its cable.
class frmadattatoritoroidali final : public ui::Window {
  static constexpr ui::Tooltip point_hint = ui::tooltip("SEPARARE I DECIMALI CON IL PUNTO");

  ToroidPicker picker{this, "CLICCARE SUL TOROIDE SELEZIONATO"};
  ui::Note lblhelp{this, "lblhelp",
                   "SELEZIONARE UN TOROIDE IDONEO PER FREQUENZA E DIMENSIONI PER USO RADIANTISTICO "
                   "SONO CONSIGLIATE LE MISCELE : 2 - 6 - 12"};
  ui::Label Label2{this, "Label2", "FREQUENZA DI LAVORO DELL'ANTENNA in MHz"};
  ui::TextBox txtfrequenza{this, "txtfrequenza", point_hint};
  ui::Label Label3{this, "Label3", "IMPEDENZA DELL'ANTENNA in OHM"};
  ui::TextBox txtimpantenna{this, "txtimpantenna", point_hint};
  ui::Label Label4{this, "Label4", "IMPEDENZA DEL CAVO in OHM"};
  ui::TextBox txtimpcavo{this, "txtimpcavo", point_hint};
  ui::Result lblspireprimario{this, "lblspireprimario"};
  ui::Result lblspiresecondario{this, "lblspiresecondario"};
  ui::Note lblpunto{this, "lblpunto", "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO"};
  ui::Note Label5{this, "Label5", "DA NON CONFONDERE CON BALUN E UN - UN  A LARGA BANDA"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmadattatoritoroidali()
      : Window{"frmadattatoritoroidali",
               " ADATTATORI  D'IMPEDENZA A NUCLEI TOROIDALI  PER ANTENNE"} {
    show_inputs(false);
    arrange(ui::column(ui::row(picker.list(), ui::stretch()),
                       ui::alternatives(ui::column(lblhelp, ui::stretch()), picker.core()),
                       ui::form(field(Label2, txtfrequenza), field(Label3, txtimpantenna),
                                field(Label4, txtimpcavo)),
                       lblspireprimario, lblspiresecondario, lblpunto, Label5,
                       ui::buttons(cmdcalcola, cmdesci)));

    picker.on_choose([this] { cmbnucleo_click(); });
    blank_on_change({&txtfrequenza, &txtimpantenna, &txtimpcavo},
                    {&lblspireprimario, &lblspiresecondario});
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    picker.choose("T-50/ 2");
    txtfrequenza = "7";
    txtimpantenna = "200";
    txtimpcavo = "50";
    cmdcalcola.click();
  }

 private:
  void show_inputs(bool shown) {
    Label2.setVisible(shown);
    txtfrequenza.setVisible(shown);
    Label3.setVisible(shown);
    txtimpantenna.setVisible(shown);
    Label4.setVisible(shown);
    txtimpcavo.setVisible(shown);
    lblpunto.setVisible(shown);
    cmdcalcola.setVisible(shown);
  }

  void cmbnucleo_click() {
    lblhelp.hide();
    lblspireprimario = "";
    lblspiresecondario = "";
    show_inputs(true);
  }

  void cmdcalcola_click() {
    const Real frequency_mhz = txtfrequenza.number();
    const Real antenna_ohm = txtimpantenna.number();
    const Real cable_ohm = txtimpcavo.number();
    const Real product = frequency_mhz * antenna_ohm * cable_ohm;
    if (product == 0) {
      refuse(txtfrequenza);
      return;
    }
    if (product < 0) {
      return;
    }
    const MatchingWindings windings =
        matching_windings(frequency_mhz, antenna_ohm, cable_ohm, picker.inductance_index_uh());
    lblspireprimario = "OCCORRONO " + fixed(windings.antenna_turns, 1) + " SPIRE VERSO L'ANTENNA";
    lblspiresecondario =
        "INTERCALATE CON " + fixed(windings.cable_turns, 1) + " SPIRE VERSO IL CAVO";
  }
};

const ui::Registration<frmadattatoritoroidali> registration{"frmadattatoritoroidali"};

}  // namespace

}  // namespace eterlab::coils
