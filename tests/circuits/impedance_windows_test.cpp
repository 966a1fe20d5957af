#include "support/form_test.h"
#include "ui/plot.h"

// Where no other source is told, results come from the nodal equations in 60 decimal digits.

namespace eterlab::test {
namespace {

const char* const impedance = "lblmodulo lblfase lblcomplessa";
const char* const both = "lblmodulo lblfase lblcomplessa lblmodulo2 lblfase2 lblcomplessa2";

using frmvalinduttanza = FormTest;

// At 7.1 MHz 100 pF and 5.025 uH resonate: each from the others.
TEST_F(frmvalinduttanza, TwoTellTheThird) {
  use("mnuvalinduttanza", "Option1 txtinput_0 txtinput_1", "lbloutput lblreattanza lbllambda");
  expect("0|7.1|100",
         "INDUTTANZA = 5,025 µH|REATTANZA ALLA RISONANZA = 224,2 Ohm|LUNGHEZZA D'ONDA = 42,22 mt.");
  EXPECT_EQ(window.text("lblvaloref lblvalorel lblvalorec"), "f = 7,1 MHz|5,025 µH|100 pF");
  window.click("Option1_0");
  EXPECT_EQ(window.text("txtinput_0 txtinput_1 lbloutput lblvalorel"), "|||");
  expect("1|7.1|5.025",
         "CAPACITA' = 100 pF|REATTANZA ALLA RISONANZA = 224,2 Ohm|LUNGHEZZA D'ONDA = 42,22 mt.");
  expect("2|10|100",
         "FREQUENZA = 5,033 MHz|REATTANZA ALLA RISONANZA = 316,2 Ohm|"
         "LUNGHEZZA D'ONDA = 59,57 mt.");
  expect_refusal("1|7.1|", "txtinput_1");
}

TEST_F(frmvalinduttanza, AsksForWhatEachModeKnows) {
  use("mnuvalinduttanza", "Option1 txtinput_0 txtinput_1", "lblinput_0 lblinput_1");
  const char* const frequency_limits = "VALORI AMMESSI: DA 1E-09 A 1000000000";
  expect_refusal("0|1e10|1e13", "txtinput_0", frequency_limits);
  EXPECT_EQ(results(), "FREQUENZA in MHz :|CAPACITA' in pF :");
  expect_refusal("1|1e-10|1e13", "txtinput_0", frequency_limits);
  EXPECT_EQ(results(), "FREQUENZA in MHz :|INDUTTANZA in uH :");
  const char* const limits = "VALORI AMMESSI: DA 1E-12 A 1000000000000";
  expect_refusal("2|1e10|1e13", "txtinput_1", limits);
  EXPECT_EQ(results(), "INDUTTANZA in uH :|CAPACITA' in pF :");
}

using frmimpcapparallelo = FormTest;
const char* const pair_boxes = "txtfrequenza txtinduttanza txtcapacita";
const char* const pair_results = "lblxl lblxc lblreattanza lblequivale lblrisonanza";

TEST_F(frmimpcapparallelo, IsInductiveBelowResonance) {
  use("mnulcparallelo", pair_boxes, pair_results);
  expect("7|10|100",
         "XL = 439,8 Ohm|XC = 227,4 Ohm|REATTANZA = 470,7 Ohm CAPACITIVA|EQUIVALE A 48,31 pF|"
         "FREQUENZA DI RISONANZA = 5,033 MHz");
  EXPECT_EQ(window.text("lblvaloref lblvalorel lblvalorec"), "7 MHz|10 µH|100 pF");
  expect("3.5|10|100",
         "XL = 219,9 Ohm|XC = 454,7 Ohm|REATTANZA = 425,9 Ohm INDUTTIVA|EQUIVALE A 19,37 µH|"
         "FREQUENZA DI RISONANZA = 5,033 MHz");
  // 3.5 and 0.5 parts in a million away.
  expect("5.03293|10|100",
         "XL = 316,2 Ohm|XC = 316,2 Ohm|REATTANZA = 90,54 MOhm CAPACITIVA|EQUIVALE A 0,3493 fF|"
         "FREQUENZA DI RISONANZA = 5,033 MHz");
  expect("5.03292|10|100",
         "XL = 316,2 Ohm|XC = 316,2 Ohm|ALLA RISONANZA LA REATTANZA E' INFINITA||"
         "FREQUENZA DI RISONANZA = 5,033 MHz");
  expect_refusal("7|0|100", "txtinduttanza");
}

using frmimpcapserie = FormTest;

TEST_F(frmimpcapserie, IsCapacitiveBelowResonance) {
  use("mnuLCserie", pair_boxes, pair_results);
  expect("7|10|100",
         "XL = 439,8 Ohm|XC = 227,4 Ohm|REATTANZA = 212,5 Ohm INDUTTIVA|EQUIVALE A 4,831 µH|"
         "FREQUENZA DI RISONANZA = 5,033 MHz");
  expect("3.5|10|100",
         "XL = 219,9 Ohm|XC = 454,7 Ohm|REATTANZA = 234,8 Ohm CAPACITIVA|EQUIVALE A 193,7 pF|"
         "FREQUENZA DI RISONANZA = 5,033 MHz");
  expect("5.03293|10|100",
         "XL = 316,2 Ohm|XC = 316,2 Ohm|REATTANZA = 1,105 mOhm INDUTTIVA|EQUIVALE A 34,93 pH|"
         "FREQUENZA DI RISONANZA = 5,033 MHz");
  expect("5.03292|10|100",
         "XL = 316,2 Ohm|XC = 316,2 Ohm|ALLA RISONANZA LA REATTANZA E' NULLA||"
         "FREQUENZA DI RISONANZA = 5,033 MHz");
  expect("1e9|1e12|1e12",
         "XL = 6283000000000 GOhm|XC = 0,1592 fOhm|REATTANZA = 6283000000000 GOhm INDUTTIVA|"
         "EQUIVALE A 1 MH|FREQUENZA DI RISONANZA = 159,2 µHz");
  expect_refusal("7|0|100", "txtinduttanza");
}

using frmLC = FormTest;

TEST_F(frmLC, ACoilWithLosses) {
  use("mnuLCserieparall", "txtfrequenza txtinduttanza txtcapacita txtq",
      std::string{"lblrisonanza "} + both);
  EXPECT_EQ(window.text("txtq"), "100");
  expect("7|10|51.7|100",
         "FREQUENZA DI RISONANZA = 7 MHz|IMPEDENZA = 4,398 Ohm|FASE = 0,6 GRADI|"
         "Z = 4,398 + j 0,04695 Ohm|IMPEDENZA = 43,98 kOhm|FASE = -1,2 GRADI|"
         "Z = 43970 - j 909,1 Ohm");
  EXPECT_EQ(window.text("lblvalorer lblvalorec lblvalorer2 lblvalorel2"),
            "4,398 Ohm|51,7 pF|4,398 Ohm|10 µH");
  expect("7|10|51.7|1000000",
         "FREQUENZA DI RISONANZA = 7 MHz|IMPEDENZA = 46,95 mOhm|FASE = 89,5 GRADI|"
         "Z = 0,0004398 + j 0,04695 Ohm|IMPEDENZA = 4,12 MOhm|FASE = -89,5 GRADI|"
         "Z = 38590 - j 4120000 Ohm");
  // A small resistance beside a hundred million times the reactance.
  expect("1000|100|1000|1",
         "FREQUENZA DI RISONANZA = 503,3 kHz|IMPEDENZA = 888,6 kOhm|FASE = 45,0 GRADI|"
         "Z = 628300 + j 628300 Ohm|IMPEDENZA = 159,2 mOhm|FASE = -90,0 GRADI|"
         "Z = 2,016E-08 - j 0,1592 Ohm");
  expect_refusal("7|10|51.7|0.5", "txtq", "VALORI AMMESSI: DA 1 A 1000000");
  expect_refusal("1e10|10|51.7|", "txtq");
}

using frmLL = FormTest;

TEST_F(frmLL, FourWaysToConnectTwoCoils) {
  use("mnuLL", "txtl1 txtl2 txtk", "lblserie lblserie2 lblparallelo lblparallelo2 lblmutua");
  EXPECT_EQ(window.text("txtk"), "0");
  const char* const uncoupled =
      "IN SERIE CONCORDI = 32 µH|IN SERIE DISCORDI = 32 µH|IN PARALLELO CONCORDI = 6,875 µH|"
      "IN PARALLELO DISCORDI = 6,875 µH|MUTUA INDUTTANZA = 0 H";
  expect("10|22|0", uncoupled);
  expect("10|22|", uncoupled);
  expect("10|22|0.2",
         "IN SERIE CONCORDI = 37,93 µH|IN SERIE DISCORDI = 26,07 µH|"
         "IN PARALLELO CONCORDI = 8,102 µH|IN PARALLELO DISCORDI = 5,568 µH|"
         "MUTUA INDUTTANZA = 2,966 µH");
  EXPECT_EQ(window.text("lblvaloreserie lblvaloreserie2 lblvaloreparallelo lblvaloreparallelo2"),
            "37,93 µH|26,07 µH|8,102 µH|5,568 µH");
  // One winding in two wires; the same but for a ten-thousandth.
  expect("10|10|1",
         "IN SERIE CONCORDI = 40 µH|IN SERIE DISCORDI = 0 H|IN PARALLELO CONCORDI = 10 µH|"
         "IN PARALLELO DISCORDI = 0 H|MUTUA INDUTTANZA = 10 µH");
  expect("10|10.001|1",
         "IN SERIE CONCORDI = 40 µH|IN SERIE DISCORDI = 25 fH|IN PARALLELO CONCORDI = 0 H|"
         "IN PARALLELO DISCORDI = 0 H|MUTUA INDUTTANZA = 10 µH");
  for (const char* const coefficient : {"1.5", "-0.1"}) {
    expect_refusal(std::string{"10|22|"} + coefficient, "txtk", "VALORI AMMESSI: DA 0 A 1");
  }
}

using frmRC = FormTest;

TEST_F(frmRC, InSeriesAndInParallel) {
  use("mnuRC", "txtfrequenza txtohm txtcapacita", std::string{"lbltaglio "} + both);
  expect("1|50|1000",
         "FREQUENZA DI TAGLIO = 3,183 MHz|IMPEDENZA = 166,8 Ohm|FASE = -72,6 GRADI|"
         "Z = 50 - j 159,2 Ohm|IMPEDENZA = 47,7 Ohm|FASE = -17,4 GRADI|Z = 45,51 - j 14,3 Ohm");
  EXPECT_EQ(window.text("lblvalorer lblvalorec lblvalorer2 lblvalorec2"),
            "50 Ohm|1 nF|50 Ohm|1 nF");
  // What is left of a short circuit, and no more than that.
  expect("1e-9|1e-12|1e-12",
         "FREQUENZA DI TAGLIO = 1,592E+26 GHz|IMPEDENZA = 1,592E+17 GOhm|FASE = -90,0 GRADI|"
         "Z = 0 - j 1,592E+26 Ohm|IMPEDENZA = 1 pOhm|FASE = 0,0 GRADI|Z = 1E-12 + j 0 Ohm");
  expect_refusal("1|50|", "txtcapacita");
}

using frmRL = FormTest;

TEST_F(frmRL, InSeriesAndInParallel) {
  use("mnuRL", "txtfrequenza txtohm txtinduttanza", std::string{"lbltaglio "} + both);
  expect("1|50|10",
         "FREQUENZA DI TAGLIO = 795,8 kHz|IMPEDENZA = 80,3 Ohm|FASE = 51,5 GRADI|"
         "Z = 50 + j 62,83 Ohm|IMPEDENZA = 39,12 Ohm|FASE = 38,5 GRADI|Z = 30,61 + j 24,36 Ohm");
  expect("1e9|1e-12|1e12",
         "FREQUENZA DI TAGLIO = 0,0001592 fHz|IMPEDENZA = 6283000000000 GOhm|FASE = 90,0 GRADI|"
         "Z = 0 + j 6,283E+21 Ohm|IMPEDENZA = 1 pOhm|FASE = 0,0 GRADI|Z = 1E-12 + j 0 Ohm");
  expect_refusal("1|50|0", "txtinduttanza");
}

using frmRLC = FormTest;

TEST_F(frmRLC, ResonatesUnlessTheCoilIsTooLossy) {
  use("mnuRLC", "txtfrequenza txtohm txtinduttanza txtcapacita",
      std::string{impedance} + " lblrisonanza lblimprisonanza");
  expect("5|5|10|100",
         "IMPEDENZA = 15,39 kOhm|FASE = 38,8 GRADI|Z = 12000 + j 9641 Ohm|RISUONA A 5,032 MHz|"
         "IMPEDENZA ALLA RISONANZA = 20 kOhm");
  expect("5|500|10|100",
         "IMPEDENZA = 375,9 Ohm|FASE = -57,4 GRADI|Z = 202,6 - j 316,6 Ohm|"
         "IL CIRCUITO NON RISUONA|");
  // At and just below the root of L / C.
  expect("5|1000|1|1",
         "IMPEDENZA = 1,001 kOhm|FASE = 0,0 GRADI|Z = 1001 - j 0,03104 Ohm|"
         "IL CIRCUITO NON RISUONA|");
  expect("5|999.999999|1|1",
         "IMPEDENZA = 1,001 kOhm|FASE = 0,0 GRADI|Z = 1001 - j 0,03104 Ohm|RISUONA A 7,118 kHz|"
         "IMPEDENZA ALLA RISONANZA = 1 kOhm");
  expect_refusal("5|5|10|0", "txtcapacita");
}

const char* const tank_boxes = "txtfrequenza txtinduttanza txtcapacita txtohm";
const char* const tank_results = "lblmodulo lblfase lblcomplessa lblrisonanza lblq lblbanda";

/// What the curve tells of the frequency that is marked or, where that is not on it, of resonance.
std::string plotted(const Driven& window) {
  auto& plot = dynamic_cast<ui::Plot&>(window.control("plot"));
  window.control("txtohm").setFocus();
  plot.setFocus();
  return plot.readout();
}

using frmRLCparallelo = FormTest;

TEST_F(frmRLCparallelo, ImpedanceSelectivityAndCurve) {
  use("mnuparallLCR", tank_boxes, tank_results);
  expect("5|10|100|10",
         "IMPEDENZA = 10 Ohm|FASE = 0,0 GRADI|Z = 10 + j 0,004151 Ohm|"
         "FREQUENZA DI RISONANZA = 5,033 MHz|Q = 0,03162|BANDA PASSANTE = 159,2 MHz");
  expect("5|10|100|1e12",
         "IMPEDENZA = 24,09 kOhm|FASE = 90,0 GRADI|Z = 0,0005805 + j 24090 Ohm|"
         "FREQUENZA DI RISONANZA = 5,033 MHz|Q = 3162000000|BANDA PASSANTE = 1,592 mHz");
  expect("5|10|100|10000",
         "IMPEDENZA = 9,236 kOhm|FASE = 22,5 GRADI|Z = 8530 + j 3541 Ohm|"
         "FREQUENZA DI RISONANZA = 5,033 MHz|Q = 31,62|BANDA PASSANTE = 159,2 kHz");
  EXPECT_EQ(window.text("lblvaloref lblvalorel lblvalorec lblvalorer"),
            "5 MHz|10 µH|100 pF|10 kOhm");
  EXPECT_EQ(plotted(window), "5 MHz ; 9,236 kOhm");
  enter("1.6|10|100|10000");
  EXPECT_EQ(plotted(window), "5,03292 MHz ; 10 kOhm");
  expect_refusal("5|10|100|0", "txtohm");
}

using frmRLCserie = FormTest;

TEST_F(frmRLCserie, ImpedanceSelectivityAndCurve) {
  use("mnuserieLCR", tank_boxes, tank_results);
  expect("5|10|100|10000",
         "IMPEDENZA = 10 kOhm|FASE = 0,0 GRADI|Z = 10000 - j 4,151 Ohm|"
         "FREQUENZA DI RISONANZA = 5,033 MHz|Q = 0,03162|BANDA PASSANTE = 159,2 MHz");
  expect("5|10|100|1e-12",
         "IMPEDENZA = 4,151 Ohm|FASE = -90,0 GRADI|Z = 0 - j 4,151 Ohm|"
         "FREQUENZA DI RISONANZA = 5,033 MHz|Q = 316200000000000|BANDA PASSANTE = 15,92 nHz");
  expect("5|10|100|10",
         "IMPEDENZA = 10,83 Ohm|FASE = -22,5 GRADI|Z = 10 - j 4,151 Ohm|"
         "FREQUENZA DI RISONANZA = 5,033 MHz|Q = 31,62|BANDA PASSANTE = 159,2 kHz");
  EXPECT_EQ(plotted(window), "5 MHz ; 10,83 Ohm");
  enter("16|10|100|10");
  EXPECT_EQ(plotted(window), "5,03292 MHz ; 10 Ohm");
  expect_refusal("5|10|100|0", "txtohm");
  EXPECT_EQ(plotted(window), "");
}

using frmRLR = FormTest;

TEST_F(frmRLR, ACoilDampedByAResistor) {
  use("mnuRLR", "txtfrequenza txtohm txtinduttanza txtohm2", impedance);
  expect("5|5|10|1000", "IMPEDENZA = 298,4 Ohm|FASE = 71,7 GRADI|Z = 93,55 + j 283,4 Ohm");
  EXPECT_EQ(window.text("lblvalorer1 lblvalorel lblvalorer2"), "5 Ohm|10 µH|1 kOhm");
  expect_refusal("5|5|10|", "txtohm2");
}

using frmCircuitiRLC = FormTest;

TEST_F(frmCircuitiRLC, ShortCircuitsTheLoadAtResonance) {
  use("mnuCLR", "txtfrequenza txtcapacita txtinduttanza txtohm",
      std::string{"lblrisonanza "} + impedance);
  expect("5|100|10|50",
         "FREQUENZA DI RISONANZA = 5,033 MHz|IMPEDENZA = 4,136 Ohm|FASE = -85,3 GRADI|"
         "Z = 0,3422 - j 4,122 Ohm");
  EXPECT_EQ(window.text("lblvalorec lblvalorel lblvalorer"), "100 pF|10 µH|50 Ohm");
  expect("5.03292|100|10|50",
         "FREQUENZA DI RISONANZA = 5,033 MHz|IMPEDENZA = 152,1 µOhm|FASE = -90,0 GRADI|"
         "Z = 4,627E-10 - j 0,0001521 Ohm");
  expect("5.0329212104487|100|10|50",
         "FREQUENZA DI RISONANZA = 5,033 MHz|IMPEDENZA = 0 Ohm|FASE = 0,0 GRADI|"
         "Z = 0 + j 0 Ohm");
  expect_refusal("5|0|10|50", "txtcapacita");
}

}  // namespace
}  // namespace eterlab::test
