#include <QComboBox>

#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmtrasfuscita = FormTest;

constexpr const char* output_results =
    "lblnucleo lblinduttanza lbltraferro lblrapporto lblriportato lblrendimento lblspire_0 "
    "lblfilo_0 lblresistenza_0 lblspire_1 lblfilo_1 lblresistenza_1";

TEST_F(frmtrasfuscita, OneValveAndTwo) {
  use("mnutrasfuscita", "Option1 txtra txtwatt txtma txtzs txtf txtsezione", output_results);
  EXPECT_EQ(window.text("cmbvalvola txtra txtzs txtf txtsezione"), "||8|70|");
  expect("0|5200|5.7|48|8|70|",
         "NUCLEO: SEZIONE LORDA 5,6 cmq, COLONNA 24 x 24 mm|INDUTTANZA PRIMARIA = 11,8 H|"
         "TRAFERRO: CARTONCINO DA 0,13 mm|RAPPORTO SPIRE = 24,2 : 1|CARICO ALL'ANODO = 5.292 Ohm|"
         "RENDIMENTO = 89 %|2.690|0,160 mm|301 Ohm|111|0,800 mm|0,50 Ohm");
  EXPECT_EQ(window.text("lbldisra lbldiszs lbldisma"), "5200 Ohm|8 Ohm|48 mA");
  expect("1|8000|11||8|40|",
         "NUCLEO: SEZIONE LORDA 5,4 cmq, COLONNA 24 x 24 mm|INDUTTANZA PRIMARIA = 49,0 H|"
         "LAMIERINI INCROCIATI SENZA TRAFERRO|RAPPORTO SPIRE = 30,1 : 1|"
         "CARICO ALL'ANODO = 8.162 Ohm|RENDIMENTO = 89 %|2 x 1.627|0,140 mm|468 Ohm|108|0,800 mm|"
         "0,48 Ohm");
  EXPECT_EQ(window.text("lblra lbldisma"), "IMPEDENZA DA ANODO AD ANODO in Ohm|");
  EXPECT_EQ(window.shown("lblma txtma"), "");
}

TEST_F(frmtrasfuscita, Refuses) {
  use("mnutrasfuscita", "Option1 txtra txtwatt txtma txtzs txtf txtsezione", output_results);
  expect_refusal("0|5200|5.7||8|70|0.5", "txtma");
  expect_refusal("0|5200|5.7|48|8|70|0.5", "txtsezione", "VALORI AMMESSI: DA 1 A 50");
  expect_refusal("0|5200|5.7|48|8|70|2", "txtsezione",
                 "NUCLEO TROPPO PICCOLO: SERVONO ALMENO 3.9 cmq");
  expect_refusal("0|20000|50|300|8|20|", "txtwatt",
                 "NUCLEO OLTRE 50 cmq: RIDURRE LA POTENZA O ALZARE LA FREQUENZA");
  enter("0|5200|5.7|48|8|70|3.9");
  EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(frmtrasfuscita, TakesAValveFromTheList) {
  use("mnutrasfuscita", "cmbvalvola", "Option1_0 lblnucleo");
  enter("2 x 6L6 (360 V)");
  EXPECT_EQ(window.text("txtra txtwatt lblra"), "6600|26.5|IMPEDENZA DA ANODO AD ANODO in Ohm");
  EXPECT_NE(window.text("lblnucleo"), "");
  window.type("cmbvalvola", "2A3");
  EXPECT_EQ(window.text("lblnucleo txtra txtwatt txtma lblra"),
            "|2500|3.5|60|IMPEDENZA ANODICA in Ohm");
  window.type("txtra Option1", "2600|1");
  EXPECT_EQ(window.text("cmbvalvola txtra"), "2A3|2600");
  const auto& valves = dynamic_cast<QComboBox&>(window.control("cmbvalvola"));
  window.pick("cmbvalvola", valves.currentIndex());
  EXPECT_EQ(window.text("txtra lblra"), "2500|IMPEDENZA ANODICA in Ohm") << "picked again";
}

using frmcodextrasfusa = FormTest;

TEST_F(frmcodextrasfusa, EveryPart) {
  use("mnucodextrasfusa", "cmbtipo", "lblfilo_0 lblcolore_0 lblinglese_0");
  EXPECT_EQ(window.text("lblfilo_4 lblcolore_5 lblinglese_8 lblcolore_13"),
            "ALTA TENSIONE|ROSSO / GIALLO|GREEN|GRIGIO / GIALLO");
  expect("BASSA FREQUENZA E USCITA", "PRIMARIO: ANODO (FINE)|BLU|BLUE");
  EXPECT_EQ(window.text("lblinglese_7 lblfilo_8"), "BLACK|");
  expect("MEDIA FREQUENZA", "PRIMARIO: ANODO|BLU|BLUE");
  EXPECT_EQ(window.text("lblcolore_4 lblfilo_5"), "VERDE / NERO|");
  expect("ALTOPARLANTE", "BOBINA MOBILE: FINE|VERDE|GREEN");
  EXPECT_EQ(window.text("lblcolore_2 lblinglese_5"), "NERO / ROSSO|");
}

using frmimpanodica = FormTest;

TEST_F(frmimpanodica, EveryClass) {
  use("mnuimpedenzaanodica", "Option1 Option2 txtva txtia txtvmin",
      "lblimpedenza lblingresso lbluscita lblrendimento lbldissipazione lblpicco");
  expect("3|0|600|100|",
         "IMPEDENZA ANODICA = 2.843 Ohm|POTENZA ASSORBITA = 60,0 W|POTENZA RESA = 45,7 W|"
         "RENDIMENTO = 76 %|DISSIPAZIONE ANODICA = 14,3 W A PIENO PILOTAGGIO|"
         "TENSIONE ANODICA DI PICCO = 1.110 V");
  expect("1|1|300|92|",
         "IMPEDENZA DA ANODO AD ANODO = 7.667 Ohm|POTENZA ASSORBITA = 27,6 W|"
         "POTENZA RESA = 17,0 W|RENDIMENTO = 61 %|"
         "DISSIPAZIONE ANODICA = 10,6 W A PIENO PILOTAGGIO|TENSIONE ANODICA DI PICCO = 555 V");
  expect("0|0|250|60|100",
         "IMPEDENZA ANODICA = 2.500 Ohm|POTENZA ASSORBITA = 15,0 W|POTENZA RESA = 4,5 W|"
         "RENDIMENTO = 30 %|DISSIPAZIONE ANODICA = 15,0 W SENZA SEGNALE|"
         "TENSIONE ANODICA DI PICCO = 400 V");
  for (const char* least : {"250", "251"}) {
    expect_refusal(std::string{"0|0|250|48|"} + least, "txtvmin",
                   "LA TENSIONE MINIMA DEVE ESSERE MINORE DI QUELLA ANODICA");
  }
  expect_refusal("2|0|9|48|", "txtva", "VALORI AMMESSI: DA 10 A 10000");
}

using frmadattimppassabasso = FormTest;

TEST_F(frmadattimppassabasso, ComputesAndRefuses) {
  use("mnuadattimppassabasso", "txtra txtz txtf txtq txtcv txtp",
      "lblc1 lbll lblc2 lblarmonica lblv1 lblv2 lblcorrente");
  EXPECT_EQ(window.text("txtz txtq lbldisc1 lbldisl lbldisc2"), "50|12|C1|L|C2");
  expect("2846|50|7.05|12|8|50",
         "C1 = 87,19 pF|L = 5,868 µH|C2 = 561,7 pF|ATTENUAZIONE 2a ARMONICA = 36,3 dB|"
         "TENSIONE DI PICCO SU C1 = 533 V|TENSIONE DI PICCO SU C2 = 71 V|"
         "CORRENTE NELLA BOBINA = 1,60 A");
  EXPECT_EQ(window.text("lbldisra lbldisc1 lbldisl lbldisc2 lbldisz"),
            "2846 Ohm|87,19 pF|5,868 µH|561,7 pF|50 Ohm");
  expect("1800|75|14.2|12||",
         "C1 = 74,72 pF|L = 1,982 µH|C2 = 335,6 pF|ATTENUAZIONE 2a ARMONICA = 37,9 dB|||");
  // A whole number that is typed back must do.
  const std::pair<const char*, const char*> low[] = {{"5000|50|3.65|8||", "10"},
                                                     {"100|50|7|1||", "2"},
                                                     {"500|50|7|3||", "4"},
                                                     {"50000|5|7|99.9||", "100"}};
  for (const auto& [typed, enough] : low) {
    expect_refusal(typed, "txtq", std::string{"Q TROPPO BASSO: USARE ALMENO "} + enough);
    window.type("txtq", enough);
    window.press(Qt::Key_Return);
    EXPECT_EQ(boxes(), Boxes{}) << typed;
  }
  expect_refusal("20000|1|7|100||", "txtra",
                 "RAPPORTO TRA LE IMPEDENZE TROPPO GRANDE PER UNA SOLA RETE");
  expect_refusal("5000|50|144|12|8|", "txtq",
                 "LA CAPACITA' DELLA VALVOLA SUPERA C1: AUMENTARE IL Q");
}

}  // namespace
}  // namespace eterlab::test
