#include "support/window_test.h"

namespace eterlab {
namespace {

class frmled : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuled");
};

TEST_F(frmled, EveryColourAtTwelveVolt) {
  struct Expected {
    const char* voltage;
    const char* least_supply;
    const char* resistance;
  };
  const Expected table[] = {
      {"LA TENSIONE DA APPLICARE AI DIODI ROSSI E' 1,8 VOLT.", "ALIMENTAZIONE MINIMA 1,8 VOLT ",
       "ohm 1020"},
      {"LA TENSIONE DA APPLICARE AI DIODI VERDI E' 2 VOLT.", "ALIMENTAZIONE MINIMA 2 VOLT ",
       "ohm 1000"},
      {"LA TENSIONE DA APPLICARE AI DIODI GIALLI E' 1,9 VOLT.", "ALIMENTAZIONE MINIMA 1,9 VOLT ",
       "ohm 1010"},
      {"LA TENSIONE DA APPLICARE AI DIODI ARANCIO E' 2 VOLT.", "ALIMENTAZIONE MINIMA 2 VOLT ",
       "ohm 1000"},
      {"LA TENSIONE DA APPLICARE AI DIODI BLU E' 3 VOLT.", "ALIMENTAZIONE MINIMA 3 VOLT ",
       "ohm 900"},
      {"LA TENSIONE DA APPLICARE AI DIODI BIANCHI E' 3 VOLT.", "ALIMENTAZIONE MINIMA 3 VOLT ",
       "ohm 900"},
  };
  int index = 0;
  for (const Expected& expected : table) {
    window.click("Option1_" + std::to_string(index++));
    EXPECT_EQ(window.text("lblled"), expected.voltage);
    EXPECT_EQ(window.text("lblvoltled"), expected.least_supply);
    window.type("txttensione", "12");
    EXPECT_EQ(window.text("lblohm"), expected.resistance);
    EXPECT_EQ(window.text("lbltensione"), "12 V.");
  }
}

TEST_F(frmled, ResultsAsTyped) {
  struct Expected {
    const char* typed;
    const char* voltage;
    const char* resistance;
  };
  set_regional_settings(test::italian());
  window.click("Option1_5");
  // (V - 3) x 100 by hand, to a hundredth, of which seven digits are shown.
  const Expected table[] = {
      {"2", "2 V.", "ohm -100"},
      {"5.12345", "5,12345 V.", "ohm 212,35"},
      {"-", "0 V.", "ohm -300"},
      {"12345.6789", "12345,6789 V.", "ohm 1234268"},
      {"200000", "100000 V.", "ohm 9999700"},
  };
  for (const Expected& expected : table) {
    window.type("txttensione", expected.typed);
    EXPECT_EQ(window.text("lbltensione"), expected.voltage);
    EXPECT_EQ(window.text("lblohm"), expected.resistance);
  }
}

TEST_F(frmled, ChoosingEmptiesTheBoxAndHidesTheResults) {
  window.click("Option1_0");
  window.type("txttensione", "12");
  window.click("Option1_0");
  EXPECT_EQ(window.text("txttensione"), "");
  EXPECT_FALSE(window.shows("lbltensione"));
  EXPECT_FALSE(window.shows("lblohm"));
  window.type("txttensione", "1");
  EXPECT_TRUE(window.shows("lbltensione"));
  EXPECT_TRUE(window.shows("lblohm"));
}

TEST_F(frmled, WithoutAColourTheDiodeHasNoVoltage) {
  window.type("txttensione", "5");
  EXPECT_EQ(window.text("lblohm"), "ohm 500");
  window.type("txttensione", "200000");  // ten million: more than the seven digits of a single
  EXPECT_EQ(window.text("lblohm"), "ohm 1E+07");
}

}  // namespace
}  // namespace eterlab
