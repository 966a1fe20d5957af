#include "antennas/dipoles/folded_dipole.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A folded dipole: its length, and how far its two tubes raise the impedance.
class frmdipoloripiegato final : public ui::Window {
  ui::Schematic drawing{this, "drawing", 66, 19};
  ui::Label lbllung{drawing, "lbllung"};
  ui::Label lbld2{drawing, "lbld2", "d2"};
  ui::Label lbls{drawing, "lbls", "S"};
  ui::Label lbld1{drawing, "lbld1", "d1"};
  ui::Label lblimpedenza{drawing, "lblimpedenza"};

  ui::Heading Label1{this, "Label1", "CALCOLO LUNGHEZZA DIPOLO"};
  ui::Label Label2{this, "Label2", "FREQUENZA DI CENTRO BANDA IN MHz  :"};
  ui::TextBox txtfrequenza{this, "txtfrequenza", ui::tooltip("frequenza di risonanza dipolo")};
  ui::Note Label3{this, "Label3", " FREQUENZE AMMISSIBILI : da 0,1 a 500 MHz"};
  ui::Result lbllunghezza{this, "lbllunghezza"};

  ui::Note Label4{
      this, "Label4",
      "OLTRE AD ESSERE CARATTERIZZATO DA UNA ELEVATA LARGHEZZA DI BANDA E' IN GRADO DI ELEVARE DI "
      "DIVERSE VOLTE LA SUA IMPEDENZA CARATTERISTICA IN FUNZIONE DEL DIAMETRO DEI DUE BRACCI E "
      "DELLA RECIPROCA DISTANZA.  SI PUO' CALCOLARE DI QUANTE VOLTE VIENE ELEVATA L'IMPEDENZA E IL "
      "SUO VALORE"};
  ui::Label Label5{this, "Label5", "DIAMETRO BRACCIO SUPERIORE in mm"};
  ui::TextBox txtd2{this, "txtd2"};
  ui::Label Label6{this, "Label6", "DIAMETRO BRACCIO INFERIORE in mm"};
  ui::TextBox txtd1{this, "txtd1"};
  ui::Label Label7{this, "Label7", "DISTANZA TRA I BRACCI in mm  misurata dal centro dei tubi"};
  ui::TextBox txts{this, "txts"};
  ui::Note Label8{this, "Label8",
                  "SE I TUBI HANNO IL MEDESIMO DIAMETRO L'IMPEDENZA E' SEMPRE 300 OHM "
                  "INDIPENDENTEMENTE DALLA DISTANZA"};
  ui::Result lblrapporto{this, "lblrapporto"};
  ui::Result lbloutputimpedenza{this, "lbloutputimpedenza"};
  ui::Note Label9{this, "Label9", "separare i decimali con il punto del tastierino numerico"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmdipoloripiegato()
      : Window{"frmdipoloripiegato", "DIPOLO RIPIEGATO MEZZO LAMBDA   -   FOLDED DIPOLE"} {
    draw();
    arrange(ui::column(ui::row(ui::stretch(), drawing, ui::stretch()), Label1,
                       ui::form(field(Label2, txtfrequenza)), Label3, lbllunghezza, Label4,
                       ui::form(field(Label5, txtd2), field(Label6, txtd1), field(Label7, txts)),
                       Label8, lblrapporto, lbloutputimpedenza, Label9,
                       ui::buttons(cmdcalcola, cmdesci)),
            76);

    txtfrequenza.on_change([this] { txtfrequenza_change(); });
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtfrequenza = "145";
    txtd2 = "12";
    txtd1 = "6";
    txts = "50";
    cmdcalcola.click();
  }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    drawing.dimension({4, 2.5}, {62, 2.5}).label(lbllung, {33, 2.5}, Side::above);
    // The tubes and the straps that join their ends.
    drawing.box({4, 5}, {62, 6.6});
    drawing.box({4, 12.1}, {32, 12.9}).box({34, 12.1}, {62, 12.9});
    drawing.box({4, 6.6}, {4.68, 12.1}).box({61.32, 6.6}, {62, 12.1});
    drawing.arrow({13, 3.2}, {13, 5}).arrow({13, 8.4}, {13, 6.6});
    drawing.label(lbld2, {13, 8}, Side::right);
    drawing.arrow({13, 10.3}, {13, 12.1}).arrow({13, 14.7}, {13, 12.9});
    drawing.label(lbld1, {13, 14.3}, Side::right);
    drawing.dimension({48, 5.8}, {48, 12.5}).label(lbls, {48, 9.2}, Side::right);
    drawing.wire({{32, 12.5}, {32, 15.6}}).wire({{34, 12.5}, {34, 15.6}});
    drawing.terminal({32, 16}).terminal({34, 16});
    drawing.label(lblimpedenza, {33, 16.5}, Side::below);
  }

  void txtfrequenza_change() {
    const Real frequency_mhz = txtfrequenza.number();
    if (frequency_mhz <= 0) {
      lbllung.hide();
      lbllunghezza.hide();
      return;
    }
    // Before the texts: a label that does not show is not announced to screen readers.
    lbllung.show();
    lbllunghezza.show();
    const std::string length_m = plain(folded_dipole_length_m(frequency_mhz));
    lbllung = length_m + " mt.";
    lbllunghezza = "LUNGHEZZA DEL DIPOLO mt : " + length_m;
  }

  void cmdcalcola_click() {
    const Real d1 = txtd1.number();
    const Real d2 = txtd2.number();
    const Real s = txts.number();
    lbld1 = plain(d1);
    lbld2 = plain(d2);
    lbls = plain(s);
    const Real product = d1 * d2 * s;
    if (product == 0) {
      refuse(txtd2, "mancano dati", "messaggio di errore");
      return;
    }
    if (product < 0) {
      return;
    }
    if (d2 < d1 || s < d2) {
      refuse(txtd2, "MISURE NON COMPATIBILI");
      return;
    }
    const ImpedanceStepUp step_up = impedance_step_up({d1, d2, s});
    lblrapporto = "RAPPORTO DI TRASFORMAZIONE = " + fixed(step_up.ratio, 1);
    lbloutputimpedenza = "IMPEDENZA RISULTANTE OHM : " + plain(step_up.impedance_ohm);
    lblimpedenza = "Ohm " + plain(step_up.impedance_ohm);
  }
};

const ui::Registration<frmdipoloripiegato> registration{"frmdipoloripiegato"};

}  // namespace

}  // namespace eterlab::antennas
