#include <QApplication>

#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmdB : public test::WindowTest {
 protected:
  test::Driven window = choose("mnudb");

  void compute(int mode, const char* first, const char* second = "") const {
    window.click("Option1_" + std::to_string(mode));
    window.type("txtinput1", first);
    if (mode != 0) {
      window.type("txtinput2", second);
    }
    window.click("cmdcalcola");
    settle();
  }
};

TEST_F(frmdB, EachModeNamesItsValuesAndStartsWithoutResults) {
  const std::pair<const char*, Texts> modes[] = {
      {"Option1_0", {"DECIBEL", "", "RAPPORTO  in TENSIONE", "", ""}},
      {"Option1_1", {"TENSIONE ENTRATA", "TENSIONE USCITA", "DECIBEL", "", ""}},
      {"Option1_2", {"POTENZA ENTRATA", "POTENZA USCITA", "DECIBEL", "", ""}},
  };
  for (const auto& [option, texts] : modes) {
    compute(0, "6");
    window.click(option);
    EXPECT_EQ(window.texts({"lblinput1", "lblinput2", "lbloutput1", "lblout1", "lblout2"}), texts);
  }
}

TEST_F(frmdB, ResultsAndWhatShowsWithThem) {
  const std::tuple<int, const char*, const char*, Texts> table[] = {
      {1, "2", "7", {"10,88", "DB di GUADAGNO"}},
      {2, "50", "0.3", {"22,22", "DB di ATTENUAZIONE"}},
      {2, "5", "5", {"0,", "DB di GUADAGNO"}},
      {0, "6", "", {"1,995", "3,981"}},
      {0, "70", "", {"3.162,278", "10.000.000,"}},
  };
  set_regional_settings(test::italian());
  for (const auto& [mode, first, second, results] : table) {
    compute(mode, first, second);
    const char* second_result = mode == 0 ? "lblout2" : "lblvariazione";
    EXPECT_EQ(window.texts({"lblout1", second_result}), results);
    for (const char* name : {"lblinput2", "txtinput2", "lblvariazione"}) {
      EXPECT_EQ(window.shows(name), mode != 0) << name;
    }
    for (const char* name : {"lbloutput2", "lblout2", "txtvoltesempio"}) {
      EXPECT_EQ(window.shows(name), mode == 0) << name;
    }
    window.click("Option1_1");
    EXPECT_FALSE(window.shows("lblvariazione"));
  }
}

TEST_F(frmdB, Refusals) {
  const char* negative = "SOLO VALORI POSITIVI";
  const std::tuple<int, const char*, const char*, const char*> table[] = {
      {0, "-1", "", negative},  {0, "70.01", "", "MASSIMO DB CALCOLABILE = 70"},
      {1, "0", "1", negative},  {1, "-1", "-1", negative},
      {2, "1", "-1", negative},
  };
  for (const auto& [mode, first, second, message] : table) {
    compute(mode, first, second);
    expect_refusal(window, test::error(message), "txtinput1");
    EXPECT_EQ(window.text("lblout1"), "");
    EXPECT_FALSE(window.shows("txtvoltesempio"));
  }
}

TEST_F(frmdB, AProductBeyondTheRangeOfNumbersEndsTheProgram) {
  compute(1, "1e200", "1e200");
  EXPECT_TRUE(has_ended());
}

TEST_F(frmdB, ExampleGoesOnFromTheRatioAsShown) {
  const auto example = [this] { return window.texts({"lbldbesempio", "Label9", "Label10"}); };
  compute(0, "37.5");
  window.type("txtvoltesempio", "5");
  EXPECT_EQ(example(), (Texts{"37.5", "374.945", "0.067"}));
  compute(0, "6");
  // In single precision 123456.7890625; times and through 1.995, not 1.99526.
  window.type("txtvoltesempio", "123456.789");
  EXPECT_EQ(example(), (Texts{"6", "246,296.294", "61,883.102"}));
  window.type("txtinput1", "3");
  EXPECT_EQ(example(), (Texts{"", "0.", "0."}));
}

TEST_F(frmdB, OpensAndClosesTheExampleWithTheWindow) {
  const QFont usual = QApplication::font();
  QFont small = usual;
  small.setPointSizeF(7);
  for (const QFont& font : {usual, small}) {
    close("frmdB");
    QApplication::setFont(font);
    window = choose("mnudb");
    const QSize closed = window.window().size();
    compute(0, "6");
    EXPECT_EQ(window.window().pos(), QPoint(140, 67));
    EXPECT_GT(window.window().height(), closed.height());
    EXPECT_EQ(window.window().width(), closed.width());
    compute(2, "5", "5");
    EXPECT_EQ(window.window().pos(), QPoint(140, 133));
    EXPECT_EQ(window.window().size(), closed);
  }
  // A small font leaves the window the sizes of its design.
  EXPECT_EQ(window.window().size(), QSize(526, 327));
  compute(0, "6");
  EXPECT_EQ(window.window().size(), QSize(526, 447));
  close("frmdB");
  QApplication::setFont(usual);
}

}  // namespace
}  // namespace eterlab
