#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;
using Texts = std::vector<std::string>;

class frmdipoloripiegato : public WindowTest {
 protected:
  test::Driven window = choose("mnufoldeddipole");

  void compute(const char* d1, const char* d2, const char* s) const {
    window.type("txtd1", d1);
    window.type("txtd2", d2);
    window.type("txts", s);
    window.click("cmdcalcola");
  }
  [[nodiscard]] Texts captions() const {
    return {window.text("lbld1"), window.text("lbld2"), window.text("lbls")};
  }
  [[nodiscard]] Texts results() const {
    return {window.text("lblrapporto"), window.text("lbloutputimpedenza"),
            window.text("lblimpedenza")};
  }
};

TEST_F(frmdipoloripiegato, LengthIsPlainTextOfASinglePrecisionNumber) {
  struct Expected {
    const char* frequency;
    const char* length;
  };
  // 142.5 / f; the last one has seven digits only.
  const Expected table[] = {
      {"7.1", "20,07"}, {"300", "0,48"}, {"0.1", "1425"}, {"0.0007", "203571,4"}};
  set_regional_settings(test::italian());
  for (const Expected& expected : table) {
    window.type("txtfrequenza", expected.frequency);
    EXPECT_EQ(window.text("lbllung"), std::string{expected.length} + " mt.");
    EXPECT_EQ(window.text("lbllunghezza"),
              std::string{"LUNGHEZZA DEL DIPOLO mt : "} + expected.length);
  }
}

TEST_F(frmdipoloripiegato, LengthHidesWithoutAPositiveFrequency) {
  for (const char* text : {"0", "-3", ""}) {
    window.type("txtfrequenza", "145");
    EXPECT_TRUE(window.shows("lbllung") && window.shows("lbllunghezza"));
    window.type("txtfrequenza", text);
    EXPECT_FALSE(window.shows("lbllung") || window.shows("lbllunghezza"));
  }
}

TEST_F(frmdipoloripiegato, ImpedanceInItalian) {
  set_regional_settings(test::italian());
  compute("2", "10", "40");
  EXPECT_EQ(results(), (Texts{"RAPPORTO DI TRASFORMAZIONE = 7,7",
                              "IMPEDENZA RISULTANTE OHM : 577,5", "Ohm 577,5"}));
  compute("3.5", "3.5", "3.5");  // the spacing may be as small as the upper diameter
  EXPECT_EQ(results(), (Texts{"RAPPORTO DI TRASFORMAZIONE = 4,0", "IMPEDENZA RISULTANTE OHM : 300",
                              "Ohm 300"}));
  EXPECT_EQ(captions(), (Texts{"3,5", "3,5", "3,5"}));
}

TEST_F(frmdipoloripiegato, RefusalsComeAfterTheCaptionsAndKeepTheResults) {
  struct Case {
    const char* d1;
    const char* d2;
    const char* s;
    Boxes boxes;
    Texts captions;
  };
  const test::Box missing{"messaggio di errore", "mancano dati"};
  const test::Box incompatible = test::error("MISURE NON COMPATIBILI");
  const Case cases[] = {
      {"", "", "", {missing}, {"0", "0", "0"}},
      {"6", "12", "0", {missing}, {"6", "12", "0"}},
      {"10", "5", "50", {incompatible}, {"10", "5", "50"}},
      {"6", "12", "11.9", {incompatible}, {"6", "12", "11.9"}},
      {"-20", "-30", "50", {incompatible}, {"-20", "-30", "50"}},
      {"-6", "12", "50", {}, {"-6", "12", "50"}},
  };
  EXPECT_EQ(captions(), (Texts{"d1", "d2", "S"}));
  compute("6", "12", "50");
  const Texts before = results();
  EXPECT_EQ(before.back(), "Ohm 405");
  for (const Case& refused : cases) {
    SCOPED_TRACE(refused.captions[0]);
    compute(refused.d1, refused.d2, refused.s);
    EXPECT_EQ(boxes(), refused.boxes);
    EXPECT_EQ(window.focus(), refused.boxes.empty() ? "cmdcalcola" : "txtd2");
    EXPECT_EQ(captions(), refused.captions);
    EXPECT_EQ(results(), before);
  }
}

TEST_F(frmdipoloripiegato, TwoNegativeDiametersAreNotCaught) {
  compute("-3", "-2", "50");
  EXPECT_EQ(boxes().back().is_critical, true);
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
