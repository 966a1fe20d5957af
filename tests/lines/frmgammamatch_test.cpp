#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmgammamatch : public WindowTest {
 protected:
  test::Driven window = choose("mnugammamatch");

  [[nodiscard]] std::vector<std::string> results() const {
    std::vector<std::string> texts;
    for (const char* label :
         {"lbllunghezza", "lbldistanza", "lbllambda", "lblpf", "lblcavo", "lbldiametri", "lblc"}) {
      texts.push_back(window.text(label));
    }
    return texts;
  }
  static std::vector<std::string> expected(const std::string& rod, const std::string& spacing,
                                           const std::string& wavelength, const std::string& pf,
                                           const std::string& cable) {
    return {"cm. " + rod,
            "spaziatura cm " + spacing,
            "VALORE DI LAMBDA = mt. " + wavelength,
            "CONDENSATORE = pF  " + pf,
            "USANDO L'RG 8/213 COME CONDENSATORE LA LUNGHEZZA E' cm. " + cable,
            "IL DIAMETRO DEL RADIATORE E' 2 - 4 VOLTE IL DIAMETRO DELLO STUB",
            pf + " pF"};
  }
  void compute(const char* frequency_mhz) const {
    window.type("txtfrequenza", frequency_mhz);
    window.click("cmdcalcola");
  }
};

// 299.793, 6.25 x 299.793, 0.7 x 299.793 and 2100 over the frequency, by Python's decimal.
TEST_F(frmgammamatch, Computes) {
  compute("7.05");
  EXPECT_EQ(results(), expected("265.8", "29.8", "42.5", "298", "308"));
  compute("14.2");
  EXPECT_EQ(results(), expected("132.", "14.8", "21.1", "148", "154"));
  compute("28.5");
  EXPECT_EQ(results(), expected("65.7", "7.4", "10.5", "74", "77"));
  compute("50");
  EXPECT_EQ(results(), expected("37.5", "4.2", "6.", "42", "44"));
  compute("5000");
  EXPECT_EQ(results(), expected("0.4", "0.", "0.1", "0", "1"));
}

TEST_F(frmgammamatch, ItalianResultsAreNotGrouped) {
  set_regional_settings(test::italian());
  compute("0.3");
  EXPECT_EQ(results(), expected("6245,7", "699,5", "999,3", "7000", "7217"));
  compute("14.2");
  EXPECT_EQ(results(), expected("132,", "14,8", "21,1", "148", "154"));
}

TEST_F(frmgammamatch, WantsAPositiveFrequency) {
  const std::vector<std::string> at_first = {"STUB", "", "", "", "", "", ""};
  for (const char* text : {"", "0", "-14", "abc"}) {
    SCOPED_TRACE(text);
    compute(text);
    EXPECT_EQ(boxes(), Boxes{test::error("MANCA INPUT")});
    EXPECT_EQ(window.focus(), "txtfrequenza");
    EXPECT_EQ(results(), at_first);
  }
}

TEST_F(frmgammamatch, ResultsStandUntilTheNextComputation) {
  compute("14.2");
  const std::vector<std::string> before = results();
  window.type("txtfrequenza", "");
  window.press(Qt::Key_Return);
  EXPECT_EQ(boxes(), Boxes{test::error("MANCA INPUT")});
  EXPECT_EQ(results(), before);
}

TEST_F(frmgammamatch, AVeryLowFrequencyEndsTheProgram) {
  compute("0.0641");
  EXPECT_FALSE(has_ended());
  compute("0.064");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
