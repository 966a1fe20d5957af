#include "support/layout_faults.h"
#include "support/window_test.h"

// frmpassabasso and frmpassaalto, which are one window with two sets of formulas and texts.

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class PassFilters : public WindowTest {
 protected:
  test::Driven low = choose("mnufiltripassabasso");
  test::Driven high = choose("mnufiltripassaalto");

  static void compute(const test::Driven& window, const char* frequency, const char* impedance) {
    window.type("txtfrequenza", frequency);
    window.type("txtimpedenza", impedance);
    window.press(Qt::Key_Return);
  }
  static std::vector<std::string> shown(const test::Driven& window) {
    std::vector<std::string> names;
    for (const char* name :
         {"lblistruzione", "Image1", "lblpigreco", "Image2", "lblT", "lblfrequenza", "txtfrequenza",
          "lblimpedenza", "txtimpedenza", "lblinduttanza", "lblcapacità", "lblnota", "cmdcalcola",
          "cmdbobine", "cmdesci"}) {
      if (window.shows(name)) {
        names.emplace_back(name);
      }
    }
    return names;
  }
};

// Values in 40 digits: 0.318 Z / F = 2.2714, 0.159 Z / F = 1.1357, 0.0796 Z / F = 0.5686;
// 159000 / 350 = 454.2857, 318000 / 350 = 908.5714, 79600 / 350 = 227.4286.
TEST_F(PassFilters, EachFormComputes) {
  struct Expected {
    const test::Driven& window;
    const char* picture;
    const char* inductance;
    const char* capacitance;
  };
  const Expected table[] = {
      {low, "Image1", "2.27", "454.3"},
      {high, "Image1", "1.14", "227.4"},
  };
  const Expected tee_table[] = {
      {low, "Image2", "1.14", "908.6"},
      {high, "Image2", "0.57", "454.3"},
  };
  const auto expect = [](const Expected& expected) {
    expected.window.click(expected.picture);
    compute(expected.window, "7", "50");
    EXPECT_EQ(expected.window.text("lblinduttanza"),
              std::string{"INDUTTANZA in microHENRY di L : "} + expected.inductance);
    EXPECT_EQ(expected.window.text("lblcapacità"),
              std::string{"CAPACITA' in picoFARAD di C : "} + expected.capacitance);
  };
  for (const Expected& expected : table) {
    expect(expected);
  }
  close("frmpassabasso");
  close("frmpassaalto");
  low = choose("mnufiltripassabasso");
  high = choose("mnufiltripassaalto");
  for (const Expected& expected : tee_table) {
    expect(expected);
  }
}

// 0.05 MHz and 200 ohm: L = 1272 and C = 15900; 636 and 7960.
TEST_F(PassFilters, NumbersAreWrittenEachInItsWay) {
  set_regional_settings(test::italian());
  low.click("Image1");
  compute(low, "0.05", "200");
  EXPECT_EQ(low.text("lblinduttanza"), "INDUTTANZA in microHENRY di L : 1.272,");
  EXPECT_EQ(low.text("lblcapacità"), "CAPACITA' in picoFARAD di C : 15900");
  high.click("Image1");
  compute(high, "0.05", "200");
  EXPECT_EQ(high.text("lblinduttanza"), "INDUTTANZA in microHENRY di L : 636,00");
  compute(high, "0.05", "300");
  EXPECT_EQ(high.text("lblcapacità"), "CAPACITA' in picoFARAD di C : 5306,7");
}

TEST_F(PassFilters, CapacitanceIsInSinglePrecision) {
  low.click("Image1");
  compute(low, "0.0007", "0.3");  // 757142857.1, of which single precision makes 757142848
  EXPECT_EQ(low.text("lblcapacità"), "CAPACITA' in picoFARAD di C : 7.571428E+08");
}

TEST_F(PassFilters, FirstTheFormIsChosen) {
  const std::vector<std::string> choosing{"lblistruzione", "Image1", "lblpigreco",
                                          "Image2",        "lblT",   "cmdesci"};
  const std::vector<std::string> working{"Image1",       "lblpigreco",   "lblfrequenza",
                                         "txtfrequenza", "lblimpedenza", "txtimpedenza",
                                         "cmdcalcola",   "cmdbobine",    "cmdesci"};
  EXPECT_EQ(shown(low), choosing);
  low.press(Qt::Key_Return);  // nothing to compute yet
  EXPECT_EQ(boxes(), Boxes{});

  low.click("Image1");
  EXPECT_EQ(shown(low), working);
  EXPECT_EQ(low.focus(), "txtfrequenza");
  EXPECT_EQ(low.control("Image1").pos(), QPoint(16, 56));

  compute(low, "7", "50");
  low.click("Image1");  // once more: nothing changes
  EXPECT_TRUE(low.shows("lblinduttanza"));
  EXPECT_TRUE(low.shows("lblnota"));
  EXPECT_EQ(low.control("lblinduttanza").pos(), QPoint(247, 153));
  EXPECT_EQ(low.control("lblcapacità").pos(), QPoint(247, 193));
}

TEST_F(PassFilters, TheTeeTakesThePlaceOfThePi) {
  high.click("Image2");
  settle();
  EXPECT_FALSE(high.shows("Image1"));
  EXPECT_FALSE(high.shows("lblpigreco"));
  EXPECT_EQ(high.control("Image2").pos(), QPoint(16, 56));
  EXPECT_EQ(high.control("lblT").pos(), QPoint(80, 48));
  compute(high, "7", "50");
  settle();
  EXPECT_EQ(test::layout_faults(high.window()), std::vector<std::string>{});
}

TEST_F(PassFilters, ChoosingByKey) {
  low.window().activateWindow();
  low.control("Image2").setFocus();
  low.press(Qt::Key_Space);
  EXPECT_FALSE(low.shows("Image1"));
  EXPECT_EQ(low.focus(), "txtfrequenza");
}

TEST_F(PassFilters, ZeroIsReportedAndANegativeProductIsNot) {
  for (const test::Driven& window : {low, high}) {
    window.click("Image1");
    compute(window, "7", "");
    EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
    EXPECT_EQ(window.focus(), "txtfrequenza");
    compute(window, "7", "-50");
    EXPECT_EQ(boxes(), Boxes{});
    EXPECT_FALSE(window.shows("lblinduttanza"));
    EXPECT_FALSE(window.shows("lblnota"));
    compute(window, "-7", "-50");
    EXPECT_TRUE(window.shows("lblinduttanza"));
    window.type("txtimpedenza", "1");
    EXPECT_NE(window.text("lblinduttanza"), "");  // results stay until the next ones
  }
}

TEST_F(PassFilters, Texts) {
  EXPECT_EQ(low.text("lblpigreco"), "filtro a PI- GRECO");
  EXPECT_EQ(high.text("lblpigreco"), "FILTRO a P-GRECO");
  EXPECT_EQ(low.text("lblimpedenza"), "IMPEDENZA (di solito = 50 ohm)");
  EXPECT_EQ(high.text("lblimpedenza"), "IMPEDENZA (di solito = 50 Ohm)");
  EXPECT_EQ(low.tooltip("Image1"), "clicca su di me");
  EXPECT_EQ(low.tooltip("lblT"), "clicca sul circuito");
  EXPECT_NE(low.text("lblnota").find("ottava.Qualora"), std::string::npos);
  EXPECT_NE(high.text("lblnota").find("db x ottava. Qualora"), std::string::npos);
}

TEST_F(PassFilters, CoilWindowStandsBeside) {
  high.click("Image1");
  high.click("cmdbobine");
  EXPECT_EQ(high.window().pos(), QPoint(12, 12));
  expect_companion("frmbobine", QPoint(273, 187));
}

}  // namespace
}  // namespace eterlab
