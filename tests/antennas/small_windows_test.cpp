#include "support/window_test.h"

// The antenna windows of one or two inputs: frmantenna58, frmdipoli, frmlungharmonica and
// frmondadiretta.

namespace eterlab {
namespace {

using test::Texts;

class SmallAntennaWindows : public test::WindowTest {};

// The drawing and the list of parts tell the same.
TEST_F(SmallAntennaWindows, EachBandOfTheFiveEighthsReplacesEveryText) {
  const test::Driven window = choose("mnuantenna58");
  const std::pair<const char*, Texts> bands[] = {
      {"Option1_0", {"340", "143", "9"}},
      {"Option1_1", {"120", "50", "5"}},
      {"Option1_2", {"42", "17", "2"}},
  };
  for (const auto& [option, sizes] : bands) {
    EXPECT_FALSE(window.control(option).property("checked").toBool());
    window.click(option);
    EXPECT_EQ(window.texts({"lblaltezza", "lblradiale", "lblcarico"}),
              (Texts{sizes[0] + " cm.", sizes[1] + " cm.", sizes[2] + " sp."}));
    EXPECT_TRUE(window.text("lblradiatore").starts_with("RADIATORE cm. " + sizes[0] + " "));
    EXPECT_TRUE(window.text("lblradiali").starts_with("N. 4 RADIALI cm. " + sizes[1] + " "));
    EXPECT_TRUE(window.text("lblbobina").starts_with("BOBINA n." + sizes[2] + " spire"));
  }
}

TEST_F(SmallAntennaWindows, DipolesOfAPositiveFrequency) {
  const test::Driven window = choose("mnudipoli");
  const std::tuple<const char*, std::string, std::string> table[] = {
      {"7.1", "10,04", "10,00"},
      // In double precision the arms would be 101.857,14 and 101.428,57.
      {"0.0007", "101.857,15", "101.428,60"},
  };
  set_regional_settings(test::italian());
  for (const auto& [frequency, arm, inverted_v] : table) {
    window.type("txtfrequenza", frequency);
    EXPECT_EQ(window.texts({"lbllunghezza", "lblbraccio", "lbllunghezzavert"}),
              (Texts{arm + " mt.", "LUNGHEZZA DEL BRACCIO in mt.: " + arm, inverted_v}));
  }
  for (const std::string frequency : {"0", "14.2", "-3", "14.2", "", "14.2", ",5"}) {
    window.type("txtfrequenza", frequency);
    for (const char* label : {"lbllunghezza", "lblbraccio", "lbllunghezzavert"}) {
      EXPECT_EQ(window.shows(label), frequency == "14.2") << label;
    }
  }
  window.type("txtfrequenza", "1E39");  // beyond single precision
  EXPECT_TRUE(has_ended());
}

TEST_F(SmallAntennaWindows, HarmonicWiresOfAPositiveProduct) {
  const test::Driven window = choose("mnulungharmonica");
  // 150 (N - 0.05) / f by hand; only the product of the inputs is checked.
  const std::tuple<const char*, const char*, std::string> table[] = {
      {"1000", "0.1", "1.499.925,00"},
      {"0.03", "1", "-3,00"},
      {"-1", "-7.5", "21,00"},
      {"1", "", "21,00"},
      {"-1", "7", "21,00"},
      {"1", "-7", "21,00"},
  };
  set_regional_settings(test::italian());
  for (const auto& [half_waves, frequency, length] : table) {
    window.enter({{"txtn", half_waves}, {"txtf", frequency}});
    EXPECT_EQ(window.text("lbllunghezza"), "L'ANTENNA E' LUNGA  " + length + " METRI");
  }
  EXPECT_EQ(boxes(), std::vector(3, test::error("MANCANO DATI")));
  EXPECT_EQ(window.focus(), "txtf");
}

TEST_F(SmallAntennaWindows, DirectWaveKeepsTheLastDistanceWithoutAHeightInRange) {
  const test::Driven window = choose("mnuondadiretta");
  const std::tuple<const char*, const char*, std::vector<test::Box>> table[] = {
      {"9", "12", {}},
      {"", "12", {}},
      {"abc", "12", {}},
      {"5000", "292", {}},
      {"5000.1", "292", {test::error("ALTEZZA ECCESSIVA")}},
      {"-25", "292", std::vector(2, test::error("MANCA DATO"))},  // "-2" and "-25"
  };
  for (const auto& [height, km, refusals] : table) {
    window.type("txtaltezza", height);
    EXPECT_EQ(window.text("lbldistanza"), std::string{"LA POSSIBILE DISTANZA E' DI KM: "} + km);
    EXPECT_EQ(boxes(), refusals);
    EXPECT_EQ(window.focus(), "txtaltezza");
  }
}

}  // namespace
}  // namespace eterlab
