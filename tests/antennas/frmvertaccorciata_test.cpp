#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;
using Texts = std::vector<std::string>;

class frmvertaccorciata : public WindowTest {
 protected:
  test::Driven window = choose("mnuverticale");

  void compute(const char* length_m, const char* coil_height_m, const char* diameter_mm,
               const char* frequency_mhz) const {
    window.type("txtlunghezza", length_m);
    window.type("txtdistanza", coil_height_m);
    window.type("txtdiametro", diameter_mm);
    window.type("txtfrequenza", frequency_mhz);
    window.click("cmdcalcola");
  }
  [[nodiscard]] Texts results() const {
    Texts texts;
    for (const char* label :
         {"lblinduttanza", "lblgradi", "lblRR", "lblind", "lbldist", "lbllung", "lblradiali"}) {
      texts.push_back(window.text(label));
    }
    return texts;
  }
};

// Numbers by Python's decimal, see loaded_vertical_test.cpp.
TEST_F(frmvertaccorciata, Computes) {
  compute("2.5", "1", "10", "7.05");
  EXPECT_EQ(results(),
            (Texts{"INDUTTANZA in micro HENRY : 26.83", "LUNGHEZZA ANTENNA IN GRADI  :  21.15",
                   "RESISTENZA DI RADIAZIONE CIRCA ohm = 1.99", "26.83", "1 mt", "2.5 mt",
                   "radiali mt 10.6"}));
  compute("5", "0.5", "20", "3.6");
  EXPECT_EQ(results(),
            (Texts{"INDUTTANZA in micro HENRY : 37.18", "LUNGHEZZA ANTENNA IN GRADI  :  21.60",
                   "RESISTENZA DI RADIAZIONE CIRCA ohm = 2.07", "37.18", "0.5 mt", "5 mt",
                   "radiali mt 20.8"}));
}

TEST_F(frmvertaccorciata, ItalianResultsAndTheDigitsOfTheLengths) {
  set_regional_settings(test::italian());
  compute("1234.56789", "1000.123456", "30", "0.05");
  EXPECT_EQ(window.text("lbldist"), "1000,123 mt");  // single precision, not grouped
  EXPECT_EQ(window.text("lbllung"), "1234,56789 mt");
  EXPECT_EQ(window.text("lblradiali"), "radiali mt 1.500,0");
  EXPECT_EQ(window.text("lblgradi"), "LUNGHEZZA ANTENNA IN GRADI  :  74,07");
}

TEST_F(frmvertaccorciata, RefusesInOrder) {
  struct Refusal {
    const char* inputs[4];
    test::Box box;
    const char* focus;
  };
  const test::Box missing = test::error("MANCANO DATI");
  const test::Box too_long = test::notice("RADIATORE PIU' LUNGO DI 1/2 LAMBDA");
  const test::Box beyond_tip = test::notice("DISTANZA ECCESSIVA");
  const Refusal refusals[] = {
      {{"", "1", "10", "7.05"}, missing, "txtlunghezza"},
      {{"2.5", "", "10", "7.05"}, missing, "txtlunghezza"},
      {{"2.5", "1", "0", "7.05"}, missing, "txtlunghezza"},
      {{"2.5", "1", "10", "abc"}, missing, "txtlunghezza"},
      {{"2.5", "-1", "10", "7.05"}, missing, "txtlunghezza"},
      {{"10", "1", "10", "7.1"}, too_long, "txtlunghezza"},
      {{"10", "11", "10", "7.1"}, too_long, "txtlunghezza"},  // before the coil is looked at
      {{"2.5", "2.5", "10", "7.05"}, beyond_tip, "txtdistanza"},
      // Two negative inputs pass the first check.
      {{"2.5", "1", "-10", "-7.05"}, too_long, "txtlunghezza"},
      {{"-2.5", "1", "-10", "7.05"}, beyond_tip, "txtdistanza"},
  };
  compute("2.5", "1", "10", "7.05");
  const Texts before = results();
  for (const Refusal& refusal : refusals) {
    const auto& [length_m, coil_height_m, diameter_mm, frequency_mhz] = refusal.inputs;
    compute(length_m, coil_height_m, diameter_mm, frequency_mhz);
    EXPECT_EQ(boxes(), Boxes{refusal.box});
    EXPECT_EQ(window.focus(), refusal.focus);
    EXPECT_EQ(results(), before);
  }
}

TEST_F(frmvertaccorciata, TwoNegativesMayCompute) {
  compute("-2.5", "-3", "10", "7.05");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(window.text("lblinduttanza"), "INDUTTANZA in micro HENRY : 69.05");
  EXPECT_EQ(window.text("lblgradi"), "LUNGHEZZA ANTENNA IN GRADI  :  -21.15");
  EXPECT_EQ(window.text("lbldist"), "-3 mt");
}

TEST_F(frmvertaccorciata, ALogarithmOfANegativeNumberEndsTheProgram) {
  compute("2.5", "-1", "-10", "7.05");
  EXPECT_TRUE(has_ended());
  EXPECT_EQ(
      boxes(),
      (Boxes{{"ERRORE DI CALCOLO", "ARGOMENTO NON VALIDO. IL PROGRAMMA VIENE CHIUSO.", true}}));
}

TEST_F(frmvertaccorciata, CoilWindowStandsBeside) {
  window.click("cmdchiamabobine");
  EXPECT_EQ(window.window().pos(), QPoint(12, 12));
  ASSERT_TRUE(is_open("frmbobine"));
  EXPECT_EQ(driven("frmbobine").window().pos(), QPoint(273, 187));
  EXPECT_FALSE(driven("frmbobine").window().isModal());
  close("frmvertaccorciata");
  EXPECT_TRUE(is_open("frmbobine"));
}

}  // namespace
}  // namespace eterlab
