#include "support/window_test.h"

namespace eterlab {
namespace {

class frmmils : public test::WindowTest {
 protected:
  test::Driven window = choose("mnumils");

  std::string result_of(const char* input) const {
    window.type("txtinput", input);
    return window.text("lblout");
  }
};

TEST_F(frmmils, BothWays) {
  set_regional_settings(test::italian());
  EXPECT_EQ(window.text("lblinput"), "INSERIRE MILLIMETRI");
  EXPECT_EQ(result_of("1"), "CORRISPONDENTE A MILS : 39,3700787");
  EXPECT_EQ(result_of("62.5"), "CORRISPONDENTE A MILS : 2460,62991875");
  window.click("Option1_1");
  EXPECT_EQ(window.text("lblinput"), "INSERIRE MILS");
  EXPECT_EQ(result_of("10"), "CORRISPONDENTI A mm : 0,254   PARI A 254 microMETRI");
  EXPECT_EQ(result_of("0.1"), "CORRISPONDENTI A mm : 0,00254   PARI A 2,54 microMETRI");
  set_regional_settings(test::english());
  EXPECT_EQ(result_of("62.5"), "CORRISPONDENTI A mm : 1.5875   PARI A 1587.5 microMETRI");
}

TEST_F(frmmils, WithoutAPositiveLengthTheResultIsHidden) {
  for (const char* input : {"", "0", "-1", "abc", ","}) {
    SCOPED_TRACE(input);
    window.type("txtinput", "1");
    EXPECT_TRUE(window.shows("lblout"));
    window.type("txtinput", input);
    EXPECT_FALSE(window.shows("lblout"));
  }
  EXPECT_TRUE(boxes().empty());
}

TEST_F(frmmils, AnOptionStartsAfresh) {
  window.type("txtinput", "1");
  window.click("Option1_1");
  EXPECT_EQ(window.text("txtinput"), "");
  EXPECT_FALSE(window.shows("lblout"));
  EXPECT_EQ(window.focus(), "txtinput");
}

TEST_F(frmmils, ALengthBeyondTheRangeOfNumbersEndsTheProgram) {
  window.type("txtinput", "1e306");
  EXPECT_FALSE(has_ended());
  window.type("txtinput", "1e307");
  EXPECT_TRUE(has_ended());
}

TEST_F(frmmils, Texts) {
  EXPECT_EQ(window.window().windowTitle(),
            "CONVERSIONE DA MILLIMETRI IN MILS E DA MILS IN MILLIMETRI");
  EXPECT_EQ(window.text("Frame1"), " Opzioni ");
  EXPECT_EQ(window.text("Option1_0"), "DA MILLIMETRI A MILS");
  EXPECT_EQ(window.text("Option1_1"), "DA MILS A MILLIMETRI");
  EXPECT_EQ(window.tooltip("lblinput"), "USA IL PUNTO PER SEPARARE I DECIMALI");
  EXPECT_EQ(window.tooltip("txtinput"), "USA IL PUNTO PER SEPARARE I DECIMALI");
}

}  // namespace
}  // namespace eterlab
