#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmlunghezzafilo : public WindowTest {
 protected:
  test::Driven window = choose("mnulunghezzafilo");

  void compute(const char* diameter, const char* weight) const {
    window.type("txtd", diameter);
    window.type("txtgrammi", weight);
    window.click("cmdcalcola");
  }

  [[nodiscard]] std::vector<std::string> results() const {
    return {window.text("lblsezione"), window.text("lbllunghezza"), window.text("lblimax"),
            window.text("lblrtot")};
  }
};

TEST_F(frmlunghezzafilo, FourResults) {
  EXPECT_FALSE(window.shows("Frame1"));
  EXPECT_EQ(results(), (std::vector<std::string>{"", "", "imax", "rtot"}));
  set_regional_settings(test::italian());
  compute("0.5", "100");
  EXPECT_TRUE(window.shows("Frame1"));
  EXPECT_EQ(results(),
            (std::vector<std::string>{"LA SEZIONE DEL FILO E'  0,196 mmq",
                                      "LA LUNGHEZZA DEL CONDUTTORE E'  57,29 metri",
                                      "LA CORRENTE MASSIMA AMMESSA E'  0,4909 Amp",
                                      " LA RESISTENZA TOTALE DEL CONDUTTORE E'  5,13525 OHM"}));
  compute("0.1", "1000");
  EXPECT_EQ(results()[1], "LA LUNGHEZZA DEL CONDUTTORE E'  14.322,15 metri");
  EXPECT_EQ(results()[3], " LA RESISTENZA TOTALE DEL CONDUTTORE E'  32094,53 OHM");
  compute("3", "0.5");  // 0.0000249 ohm is rounded to six decimals
  EXPECT_EQ(results()[3], " LA RESISTENZA TOTALE DEL CONDUTTORE E'  2,5E-05 OHM");
}

TEST_F(frmlunghezzafilo, CurrentHasFourDecimalsBelowOneAmpere) {
  compute("0.7136", "50");  // 0.99986 A
  EXPECT_EQ(results()[2], "LA CORRENTE MASSIMA AMMESSA E'  0.9999 Amp");
  compute("0.714", "50");  // 1.00098 A
  EXPECT_EQ(results()[2], "LA CORRENTE MASSIMA AMMESSA E'  1.00 Amp");
}

TEST_F(frmlunghezzafilo, ChecksTheProductAndHidesOnChange) {
  compute("-1", "-100");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(results()[1], "LA LUNGHEZZA DEL CONDUTTORE E'  -14.32 metri");
  for (const char* box : {"txtd", "txtgrammi"}) {
    compute("1", "100");
    EXPECT_TRUE(window.shows("Frame1"));
    window.type(box, "");
    EXPECT_FALSE(window.shows("Frame1"));
    window.click("cmdcalcola");
    EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
    EXPECT_EQ(window.focus(), "txtd");
    EXPECT_FALSE(window.shows("Frame1"));
  }
}

}  // namespace
}  // namespace eterlab
