#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmvertaccorciata : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuverticale");

  /// Length and height of the coil in m, diameter in mm, frequency in MHz.
  void compute(const Texts& inputs) const {
    window.enter({{"txtlunghezza", inputs[0]},
                  {"txtdistanza", inputs[1]},
                  {"txtdiametro", inputs[2]},
                  {"txtfrequenza", inputs[3]}});
  }
  [[nodiscard]] Texts results() const {
    return window.texts(
        {"lblinduttanza", "lblgradi", "lblRR", "lblind", "lbldist", "lbllung", "lblradiali"});
  }
};

// Numbers by Python's decimal, see loaded_vertical_test.cpp.
TEST_F(frmvertaccorciata, Computes) {
  compute({"5", "0.5", "20", "3.6"});
  EXPECT_EQ(results(),
            (Texts{"INDUTTANZA in micro HENRY : 37.18", "LUNGHEZZA ANTENNA IN GRADI  :  21.60",
                   "RESISTENZA DI RADIAZIONE CIRCA ohm = 2.07", "37.18", "0.5 mt", "5 mt",
                   "radiali mt 20.8"}));
  set_regional_settings(test::italian());
  compute({"1234.56789", "1000.123456", "30", "0.05"});
  EXPECT_EQ(window.texts({"lblgradi", "lbldist", "lbllung", "lblradiali"}),
            (Texts{"LUNGHEZZA ANTENNA IN GRADI  :  74,07",
                   "1000,123 mt",  // single precision, not grouped
                   "1234,56789 mt", "radiali mt 1.500,0"}));
  compute({"-2.5", "-3", "10", "7.05"});  // two negatives pass every check
  EXPECT_EQ(window.texts({"lblind", "lbldist"}), (Texts{"69,05", "-3 mt"}));
}

TEST_F(frmvertaccorciata, RefusesInOrder) {
  struct Refusal {
    Texts inputs;
    test::Box box;
    const char* focus;
  };
  const test::Box missing = test::error("MANCANO DATI");
  const test::Box too_long = test::notice("RADIATORE PIU' LUNGO DI 1/2 LAMBDA");
  const test::Box beyond_tip = test::notice("DISTANZA ECCESSIVA");
  const Refusal refusals[] = {
      {{"2.5", "", "10", "7.05"}, missing, "txtlunghezza"},
      {{"2.5", "-1", "10", "7.05"}, missing, "txtlunghezza"},
      {{"10", "11", "10", "7.1"}, too_long, "txtlunghezza"},  // before the coil is looked at
      {{"2.5", "2.5", "10", "7.05"}, beyond_tip, "txtdistanza"},
      // Two negative inputs pass the first check.
      {{"2.5", "1", "-10", "-7.05"}, too_long, "txtlunghezza"},
      {{"-2.5", "1", "-10", "7.05"}, beyond_tip, "txtdistanza"},
  };
  compute({"2.5", "1", "10", "7.05"});
  const Texts before = results();
  for (const auto& [inputs, box, focus] : refusals) {
    compute(inputs);
    expect_refusal(window, box, focus);
    EXPECT_EQ(results(), before);
  }
}

TEST_F(frmvertaccorciata, ALogarithmOfANegativeNumberEndsTheProgram) {
  compute({"2.5", "-1", "-10", "7.05"});
  EXPECT_TRUE(has_ended());
}

TEST_F(frmvertaccorciata, CoilWindowStandsBeside) {
  window.click("cmdchiamabobine");
  EXPECT_EQ(window.window().pos(), QPoint(12, 12));
  expect_companion("frmbobine", {273, 187});
}

}  // namespace
}  // namespace eterlab
