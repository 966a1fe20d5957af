#include "support/window_test.h"

// The windows that convert one number as the user types: frmawg, frmdBmicrovolt, frmmils and
// frmtemperatura. Most expected numbers are those of conversions_test.cpp.

namespace eterlab {
namespace {

using test::Texts;

class ConversionWindows : public test::WindowTest {};

// Diameters were computed with fifty decimals in Python and rounded.
TEST_F(ConversionWindows, WireGaugesUpToEighty) {
  const test::Driven window = choose("mnuawg");
  const std::tuple<const char*, const char*, std::string> table[] = {
      {"24", "24", "0,511"},     {"40", "40", "0,080"}, {"-", "-", "8,251"},
      {"12,5", "12,5", "2,053"}, {"81", "80", "0,001"}, {"80.5", "80", "0,001"},
  };
  EXPECT_FALSE(window.shows("lbl2"));
  set_regional_settings(test::italian());
  for (const auto& [typed, box, mm] : table) {
    window.type("txtawg", typed);
    EXPECT_EQ(window.texts({"txtawg", "lbld"}),
              (Texts{box, "IL DIAMETRO DEL FILO CORRISPONDE A " + mm + " MILLIMETRI"}));
    EXPECT_TRUE(window.shows("lbl2"));
  }
}

TEST_F(ConversionWindows, OnlyKelvinLosesTheTrailingSeparator) {
  const test::Driven window = choose("mnutemperatura");
  const std::pair<const char*, Texts> table[] = {
      {"-", {"32,", "0,", "273"}},
      {"36.6", {"97,88", "29,28", "309,6"}},
      {"2000", {"3632,", "1600,", "2273"}},
  };
  set_regional_settings(test::italian());
  for (const auto& [celsius, results] : table) {
    window.type("txtcentigradi", celsius);
    EXPECT_EQ(window.texts({"lblfahr", "lblreau", "lblkelv"}), results);
  }
}

TEST_F(ConversionWindows, MilsBothWaysWhereAnOptionStartsAfresh) {
  const test::Driven window = choose("mnumils");
  window.type("txtinput", "62.5");
  EXPECT_EQ(window.texts({"lblinput", "lblout"}),
            (Texts{"INSERIRE MILLIMETRI", "CORRISPONDENTE A MILS : 2460.62991875"}));
  window.click("Option1_1");
  EXPECT_EQ(window.texts({"lblinput", "txtinput"}), (Texts{"INSERIRE MILS", ""}));
  EXPECT_EQ(window.focus(), "txtinput");
  set_regional_settings(test::italian());
  for (const char* none : {"", "0", "-1", ","}) {
    window.type("txtinput", none);
    EXPECT_FALSE(window.shows("lblout")) << none;
    window.type("txtinput", "0.1");
    EXPECT_TRUE(window.shows("lblout"));
  }
  EXPECT_EQ(window.text("lblout"), "CORRISPONDENTI A mm : 0,00254   PARI A 2,54 microMETRI");
}

TEST_F(ConversionWindows, MillimetresBeyondTheRangeOfNumbersEndTheProgram) {
  const test::Driven window = choose("mnumils");
  window.type("txtinput", "1e306");
  EXPECT_FALSE(has_ended());
  window.type("txtinput", "1e307");
  EXPECT_TRUE(has_ended());
}

// Negative microvolt count as one; levels out of range keep the result.
TEST_F(ConversionWindows, DecibelMicrovoltBothWays) {
  const test::Driven window = choose("mnudbmicrovolt");
  const test::Box negative = test::error("NON ESISTONO VALORI NEGATIVI");
  const auto expect = [&](const char* input, const char* output) {
    window.type("txtin", input);
    EXPECT_EQ(window.text("lblout"), output) << input;
  };
  EXPECT_FALSE(window.shows("lbloutput"));
  expect("0.5", "-6.02");
  EXPECT_TRUE(window.shows("lbloutput"));
  expect("0", "0");
  expect("100", "40");
  EXPECT_TRUE(boxes().empty());
  expect("-5", "0");
  expect_refusal(window, negative, "txtin");
  EXPECT_EQ(window.texts({"lblinput", "lbloutput"}),
            (Texts{"DIGITARE I microvolt", "CORRISPONDE A dBmicrovolt : "}));

  window.click("Option1_1");
  EXPECT_EQ(window.texts({"lblinput", "lbloutput", "txtin", "lblout"}),
            (Texts{"DIGITARE I dBmicrovolt", "CORRISPONDE A microvolt", "-5", "0"}));
  set_regional_settings(test::italian());
  expect("119.99", "998849,4");  // seven digits of 998849,37
  expect("", "1");
  expect("120.5", "1000000");  // refused at "120.5", not at "120."
  expect_refusal(window, test::error("dBmicroV max = 120"), "txtin");
  expect("-5", "1");  // of the minus sign alone
  expect_refusal(window, negative, "txtin");
}

}  // namespace
}  // namespace eterlab
