#include <QApplication>
#include <QLineEdit>

#include "support/window_test.h"

namespace eterlab {
namespace {

using Boxes = std::vector<test::Box>;
const test::Box refused_negative = test::error("SOLO VALORI POSITIVI");

class frmdB : public test::WindowTest {
 protected:
  test::Driven window = choose("mnudb");

  void compute(int mode, const char* first, const char* second = "") const {
    window.click("Option1_" + std::to_string(mode));
    window.type("txtinput1", first);
    if (window.shows("txtinput2")) {
      window.type("txtinput2", second);
    }
    window.click("cmdcalcola");
    settle();
  }

  [[nodiscard]] std::vector<std::string> example() const {
    return {window.text("lbldbesempio"), window.text("txtvoltesempio"), window.text("Label9"),
            window.text("Label10")};
  }
  using Example = std::vector<std::string>;

  /// What the Tab key goes through, once around.
  [[nodiscard]] std::vector<std::string> tab_stops() const {
    std::vector<std::string> stops;
    window.control("txtinput1").setFocus();
    do {
      stops.push_back(window.focus());
      window.press(Qt::Key_Tab);
    } while (window.focus() != "txtinput1" && stops.size() < 10);
    return stops;
  }
};

TEST_F(frmdB, EachModeNamesItsValues) {
  struct Expected {
    std::string first_input;
    std::string second_input;  // empty: hidden
    std::string first_output;
    bool has_second_output;
  };
  const Expected modes[] = {
      {"DECIBEL", "", "RAPPORTO  in TENSIONE", true},
      {"TENSIONE ENTRATA", "TENSIONE USCITA", "DECIBEL", false},
      {"POTENZA ENTRATA", "POTENZA USCITA", "DECIBEL", false},
  };
  compute(1, "1", "10");
  int mode = 0;
  for (const Expected& expected : modes) {
    SCOPED_TRACE(mode);
    window.click("Option1_" + std::to_string(mode++));
    EXPECT_EQ(window.text("lblinput1"), expected.first_input);
    EXPECT_EQ(window.shows("lblinput2"), !expected.second_input.empty());
    EXPECT_EQ(window.shows("txtinput2"), !expected.second_input.empty());
    if (window.shows("lblinput2")) {
      EXPECT_EQ(window.text("lblinput2"), expected.second_input);
    }
    EXPECT_EQ(window.text("lbloutput1"), expected.first_output);
    EXPECT_EQ(window.shows("lbloutput2"), expected.has_second_output);
    EXPECT_EQ(window.shows("lblout2"), expected.has_second_output);
    EXPECT_FALSE(window.shows("lblvariazione"));
    EXPECT_EQ(window.text("lblout1"), "");
  }
  EXPECT_EQ(window.text("lbloutput2"), "RAPPORTO in POTENZA");
}

TEST_F(frmdB, RatiosToDecibels) {
  struct Expected {
    int mode;
    const char* input;
    const char* output;
    const char* decibels;
    const char* change;
  };
  const Expected table[] = {
      {1, "1", "10", "20.", "DB di GUADAGNO"},         {1, "10", "1", "20.", "DB di ATTENUAZIONE"},
      {1, "2", "7", "10.88", "DB di GUADAGNO"},        {2, "1", "10", "10.", "DB di GUADAGNO"},
      {2, "50", "0.3", "22.22", "DB di ATTENUAZIONE"}, {2, "5", "5", "0.", "DB di GUADAGNO"},
  };
  const QSize size = window.window().size();
  for (const Expected& expected : table) {
    SCOPED_TRACE(expected.decibels);
    compute(expected.mode, expected.input, expected.output);
    EXPECT_EQ(window.text("lblout1"), expected.decibels);
    EXPECT_EQ(window.text("lblvariazione"), expected.change);
    EXPECT_TRUE(window.shows("lblvariazione"));
    EXPECT_FALSE(window.shows("Label3"));
    EXPECT_EQ(window.window().size(), size);
  }
}

TEST_F(frmdB, DecibelsToRatios) {
  set_regional_settings(test::italian());
  compute(0, "6");
  EXPECT_EQ(window.text("lblout1"), "1,995");
  EXPECT_EQ(window.text("lblout2"), "3,981");
  compute(0, "70");
  EXPECT_EQ(window.text("lblout1"), "3.162,278");
  EXPECT_EQ(window.text("lblout2"), "10.000.000,");
  compute(0, "0");
  EXPECT_EQ(window.text("lblout1"), "1,");
  EXPECT_EQ(boxes(), Boxes{});
  compute(0, "70.01");
  EXPECT_EQ(boxes(), Boxes{test::error("MASSIMO DB CALCOLABILE = 70")});
  EXPECT_EQ(window.focus(), "txtinput1");
}

TEST_F(frmdB, ExampleGoesOnFromTheRatioAsShown) {
  set_regional_settings(test::italian());
  compute(0, "6");
  window.type("txtvoltesempio", "1");
  EXPECT_EQ(example(), (Example{"6", "1", "1,995", "0,501"}));
  // In single precision 123456.7890625; times and through 1.995, not 1.99526.
  window.type("txtvoltesempio", "123456.789");
  EXPECT_EQ(example(), (Example{"6", "123456.789", "246.296,294", "61.883,102"}));
  window.clear("txtvoltesempio");
  EXPECT_EQ(example(), (Example{"6", "", "0,", "0,"}));
  compute(0, "37.5");
  window.type("txtvoltesempio", "5");
  EXPECT_EQ(example(), (Example{"37,5", "5", "374,945", "0,067"}));
  window.type("txtinput1", "3");
  EXPECT_EQ(example(), (Example{"", "", "0,", "0,"}));
}

TEST_F(frmdB, ExampleCanBeSeenAndReachedOnlyAfterAConversionFromDecibels) {
  const std::vector<std::string> without{"txtinput1", "cmdcalcola", "cmdesci", "Option1_0"};
  const std::vector<std::string> with{"txtinput1", "cmdcalcola", "cmdesci", "txtvoltesempio",
                                      "Option1_0"};
  EXPECT_FALSE(window.shows("txtvoltesempio"));
  EXPECT_EQ(tab_stops(), without);
  compute(0, "71");  // refused
  EXPECT_FALSE(window.shows("txtvoltesempio"));
  compute(0, "6");
  EXPECT_TRUE(window.shows("txtvoltesempio"));
  EXPECT_EQ(tab_stops(), with);
  window.click("Option1_0");
  EXPECT_FALSE(window.shows("txtvoltesempio"));
  EXPECT_EQ(tab_stops(), without);
}

TEST_F(frmdB, OpensAndClosesTheExampleWithTheWindow) {
  const QSize closed = window.window().size();
  EXPECT_EQ(window.window().pos(), QPoint(140, 133));
  for (int round = 0; round < 2; ++round) {
    compute(0, "6");
    EXPECT_EQ(window.window().pos(), QPoint(140, 67));
    EXPECT_GT(window.window().height(), closed.height());
    EXPECT_EQ(window.window().width(), closed.width());
    window.click("Option1_2");
    settle();
    EXPECT_EQ(window.window().pos(), QPoint(140, 133));
    EXPECT_EQ(window.window().size(), closed);
  }
}

TEST_F(frmdB, HasTheSizesOfTheDesignWhereTheFontAllows) {
  const QFont usual = QApplication::font();
  QFont small = usual;
  small.setPointSizeF(7);
  close("frmdB");
  QApplication::setFont(small);
  window = choose("mnudb");
  EXPECT_EQ(window.window().size(), QSize(526, 327));
  compute(0, "6");
  EXPECT_EQ(window.window().size(), QSize(526, 447));
  window.click("Option1_1");
  settle();
  EXPECT_EQ(window.window().size(), QSize(526, 327));
  close("frmdB");
  QApplication::setFont(usual);
}

TEST_F(frmdB, RefusesWhatIsNotPositive) {
  struct Refused {
    int mode;
    const char* first;
    const char* second;
  };
  const Refused table[] = {{0, "-1", ""},  {1, "-1", "-1"}, {1, "1", "0"},   {1, "0", "1"},
                           {1, "1", "-1"}, {2, "-2", "1"},  {2, "1", "text"}};
  for (const Refused& refused : table) {
    SCOPED_TRACE(refused.first);
    compute(refused.mode, refused.first, refused.second);
    EXPECT_EQ(boxes(), Boxes{refused_negative});
    EXPECT_EQ(window.focus(), "txtinput1");
    EXPECT_EQ(window.text("lblout1"), "");
  }
}

TEST_F(frmdB, AProductBeyondTheRangeOfNumbersEndsTheProgram) {
  compute(1, "1e200", "1e200");
  EXPECT_TRUE(has_ended());
}

TEST_F(frmdB, Texts) {
  EXPECT_EQ(window.window().windowTitle(), "CONVERSIONI TRA DECIBEL E VARIAZIONI DI SEGNALE");
  EXPECT_EQ(window.text("Frame1"), " Opzioni di calcolo ");
  EXPECT_EQ(window.text("Option1_0"),
            "NOTI I DECIBEL TROVARE LA VARIAZIONE IN TENSIONE E IN POTENZA");
  EXPECT_EQ(window.text("Option1_1"), "NOTE LE TENSIONI DI ENTRATA E USCITA TROVARE I DECIBEL");
  EXPECT_EQ(window.text("Option1_2"), "NOTE LE POTENZE DI ENTRATA E USCITA TROVARE I DECIBEL");
  EXPECT_EQ(window.tooltip("txtinput2"), "inserire i dati e cliccare \"Calcola\"");
  EXPECT_EQ(window.text("Label11"), " dopo l'inserimento cliccare su CALCOLA  --->");
  EXPECT_EQ(window.text("Label3"), "  Facciamo un esempio ");
  EXPECT_EQ(window.text("Label4"),
            "In un dispositivo che presenta un guadagno o una attenuazione di DB :");
  EXPECT_EQ(window.text("Label5"), "se si applica in ingresso una tensione di  :");
  EXPECT_EQ(window.tooltip("txtvoltesempio"), "IL CALCOLO E'  INDIPENDENTE DALL'UNITA' DI MISURA");
  EXPECT_EQ(window.text("Label7"), "in guadagno  : ");
  EXPECT_EQ(window.text("Label8"), " in attenuazione  : ");
}

}  // namespace
}  // namespace eterlab
