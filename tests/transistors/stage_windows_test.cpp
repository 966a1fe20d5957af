#include "support/form_test.h"

namespace eterlab::test {
namespace {

const char* const too_far_apart = "RAPPORTO TRA LE IMPEDENZE TROPPO GRANDE PER UNA SOLA RETE";

using frmoscill_preampl = FormTest;

TEST_F(frmoscill_preampl, ExamplesAndLimits) {
  use("mnuoscillampl", "txtfrequenza txtvce txtpotenza txtrb txtq",
      "lbll1 lblc1 lblc2 lblcarico lbltensione lblcommerciali");
  expect("14|9|20|50|10",
         "2,053 µH|73,4 pF|304,7 pF|CARICO DELL'OSCILLATORE = 1.806 Ohm|"
         "TENSIONE RF SULLA BASE = 1,00 V EFF.|CON VALORI COMMERCIALI: C1 = 68 pF   C2 = 270 pF   "
         "L1 = 2,206 µH   CARICO = 1.794 Ohm");
  expect("7|12|100|100|5",
         "3,007 µH|271,9 pF|389,3 pF|CARICO DELL'OSCILLATORE = 661 Ohm|"
         "TENSIONE RF SULLA BASE = 3,16 V EFF.|CON VALORI COMMERCIALI: C1 = 270 pF   C2 = 390 pF   "
         "L1 = 3,018 µH   CARICO = 668 Ohm");
  expect_refusal("14|9|20|50|5", "txtq", "Q TROPPO BASSO: USARE ALMENO 6");
  enter("14|9|20|50|6");
  EXPECT_EQ(boxes(), Boxes{});
  expect_refusal("14|1.5|10|50|5", "txtpotenza",
                 "IL CARICO DELL'OSCILLATORE NON E' MAGGIORE DELLA RESISTENZA DI INGRESSO: "
                 "DIMINUIRE LA POTENZA");
  expect_refusal("14|100|1|50|99", "txtpotenza", too_far_apart);
  expect_refusal("14|9||50|5", "txtpotenza");
  expect_refusal("14|9|20|50|101", "txtq", "VALORI AMMESSI: DA 1 A 100");
}

using frmminifinale_antenna = FormTest;

TEST_F(frmminifinale_antenna, ExamplesAndLimits) {
  use("mnufinqrp", "txtfrequenza txtvcc txtpotenza txtza txtq",
      "lblc1 lbll1 lblc2 lblzrf lblc3 lblcarico lblassorbita lblbobina lblarmonica lblcommerciali");
  EXPECT_EQ(window.text("txtza"), "50");
  expect("7.03|12|2|50|3",
         "1,622 nF|607,8 nH|1,358 nF|7,485 µH|15 nF|CARICO DI COLLETTORE = 33,1 Ohm|"
         "CORRENTE ASSORBITA IN CLASSE B = 221 mA|CORRENTE RF IN L1 = 0,63 A EFF.|"
         "ATTENUAZIONE DELLA SECONDA ARMONICA = 28,7 dB|CON VALORI COMMERCIALI: C1 = 1,8 nF   "
         "C2 = 1,5 nF   L1 = 561,9 nH   ROS = 1,00");
  expect("28.1|9|0.3|50|2.5",
         "117,6 pF|368,6 nH|160,6 pF|6,82 µH|1 nF|CARICO DI COLLETTORE = 120,4 Ohm|"
         "CORRENTE ASSORBITA IN CLASSE B = 45 mA|CORRENTE RF IN L1 = 0,13 A EFF.|"
         "ATTENUAZIONE DELLA SECONDA ARMONICA = 24,9 dB|CON VALORI COMMERCIALI: C1 = 120 pF   "
         "C2 = 180 pF   L1 = 359,4 nH   ROS = 1,13");
  expect_refusal("7.03|12|0.1|50|3", "txtq", "Q TROPPO BASSO: USARE ALMENO 4");
  expect_refusal("7.03|100|0.01|50|20", "txtpotenza", too_far_apart);
  expect_refusal("7.03|12|2||3", "txtza");
}

using frmfinale_antenna = FormTest;

TEST_F(frmfinale_antenna, ExamplesAndLimits) {
  use("mnufinalepot", "txtfrequenza txtvcc txtpotenza txtcout txtza txtq",
      "lbll1 lblc1 lblc2 lblzrf lblcarico lblassorbita lblbobina lbltensione");
  EXPECT_EQ(window.text("txtza"), "50");
  expect("145|12.5|25|90|50|6",
         "17,24 nH|59,51 pF|23,54 pF|29,03 nH|CARICO DI COLLETTORE = 2,65 Ohm|"
         "CORRENTE ASSORBITA IN CLASSE B = 2,77 A|CORRENTE RF IN L1 = 3,15 A EFF.|"
         "TENSIONE RF DI PICCO SU C1 = 68 VOLT");
  expect("28.5|13.5|50|200|50|8",
         "70,07 nH|385,4 pF|110,3 pF|87,26 nH|CARICO DI COLLETTORE = 1,56 Ohm|"
         "CORRENTE ASSORBITA IN CLASSE B = 5,09 A|CORRENTE RF IN L1 = 5,67 A EFF.|"
         "TENSIONE RF DI PICCO SU C1 = 101 VOLT");
  enter("145|12.5|25||50|6");
  EXPECT_EQ(boxes(), Boxes{});
  expect_refusal("145|12.5|25|90|50|4", "txtq", "Q TROPPO BASSO: USARE ALMENO 5");
  expect_refusal("145|12.5|2000|90|1000|49", "txtpotenza", too_far_apart);
  expect_refusal("145|12.5|1||50|6", "txtpotenza",
                 "IL CARICO DI COLLETTORE NON E' MINORE DELL'IMPEDENZA D'ANTENNA: USARE LO STADIO "
                 "FINALE QRP");
}

using frmtrasm_lineare = FormTest;

TEST_F(frmtrasm_lineare, ExamplesAndLimits) {
  use("mnutraslineare", "txtfrequenza txtpotenza txtztx txtr txtx txtq",
      "lblc1 lblc2 lbll1 lblros lblbanda lblcorrente lbltensione");
  EXPECT_EQ(window.text("txtztx"), "50");
  expect("145|3|50|1.5|1|8",
         "22,52 pF|79,09 pF|12,07 nH|ROS SENZA ADATTAMENTO = 33,3|"
         "ROS A 142,100 MHz = 1,35   -   ROS A 147,900 MHz = 1,35|"
         "CORRENTE RF IN BASE = 1,41 A EFF.|TENSIONE RF DI PICCO SU C2 = 24 VOLT");
  expect("28.5|20|50|3|-1.5|5",
         "149,2 pF|304,4 pF|92,14 nH|ROS SENZA ADATTAMENTO = 16,7|"
         "ROS A 27,930 MHz = 1,22   -   ROS A 29,070 MHz = 1,22|"
         "CORRENTE RF IN BASE = 2,58 A EFF.|TENSIONE RF DI PICCO SU C2 = 56 VOLT");
  expect_refusal("145|3|50|1.5|1|4", "txtq", "Q TROPPO BASSO: USARE ALMENO 6");
  // A Q of 6 would cancel the base's reactance: 6 x 0.3 is just below 1.8.
  expect_refusal("145|3|5|0.3|1.8|5", "txtq", "Q TROPPO BASSO: USARE ALMENO 7");
  expect_refusal("145|3|50|49.5|1|8", "txtr",
                 "LA RESISTENZA DI INGRESSO DEVE ESSERE MINORE DELL'IMPEDENZA DEL TRASMETTITORE");
  expect_refusal("145|3|50|1|50|8", "txtr", too_far_apart);
  expect_refusal("145|3|50|1.5|1001|8", "txtx", "VALORI AMMESSI: DA -1000 A 1000");
}

using frmpolarizztransistor = FormTest;

TEST_F(frmpolarizztransistor, ExamplesAndLimits) {
  use("mnucommonemitter", "txtvcc txtic txthfe txtfmin",
      "lblr1 lblr2 lblrc lblre lblc1 lblc2 lblce lblpunto lblstabilita lblguadagno lblzin "
      "lblswing");
  expect("12|1|200|50",
         "180 kOhm|36 kOhm|5,6 kOhm|1,2 kOhm|10 µF|10 µF|150 µF|"
         "PUNTO DI LAVORO: IC = 1,00 mA   VCE = 5,22 V   VE = 1,20 V|"
         "IC CON HFE 100 = 0,89 mA   CON HFE 400 = 1,06 mA|"
         "GUADAGNO A VUOTO = 216 VOLTE (46,7 dB)   SENZA CE = 4,5 VOLTE|"
         "IMPEDENZA DI INGRESSO = 4.427 Ohm   DI USCITA = 5.600 Ohm|"
         "MASSIMA USCITA = 10,0 V PICCO-PICCO   POTENZA SUL TRANSISTOR = 5,2 mW");
  expect("9|2|150|100",
         "51 kOhm|13 kOhm|2 kOhm|510 Ohm|10 µF|10 µF|150 µF|"
         "PUNTO DI LAVORO: IC = 1,99 mA   VCE = 3,99 V   VE = 1,02 V|"
         "IC CON HFE 75 = 1,77 mA   CON HFE 300 = 2,12 mA|"
         "GUADAGNO A VUOTO = 154 VOLTE (43,8 dB)   SENZA CE = 3,8 VOLTE|"
         "IMPEDENZA DI INGRESSO = 1.639 Ohm   DI USCITA = 2.000 Ohm|"
         "MASSIMA USCITA = 7,6 V PICCO-PICCO   POTENZA SUL TRANSISTOR = 8,0 mW");
  expect_refusal("12|600|200|50", "txtic", "VALORI AMMESSI: DA 0.05 A 100");
}

}  // namespace
}  // namespace eterlab::test
