#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmdipoloripiegato : public test::WindowTest {
 protected:
  test::Driven window = choose("mnufoldeddipole");

  void compute(const Texts& d1_d2_s) const {
    window.enter({{"txtd1", d1_d2_s[0]}, {"txtd2", d1_d2_s[1]}, {"txts", d1_d2_s[2]}});
  }
  [[nodiscard]] Texts captions() const { return window.texts({"lbld1", "lbld2", "lbls"}); }
  [[nodiscard]] Texts results() const {
    return window.texts({"lblrapporto", "lbloutputimpedenza", "lblimpedenza"});
  }
};

TEST_F(frmdipoloripiegato, LengthIsPlainTextAndHidesWithoutAPositiveFrequency) {
  // 142.5 / f; the last one has seven digits only.
  const std::pair<const char*, std::string> table[] = {
      {"300", "0,48"}, {"0.1", "1425"}, {"0.0007", "203571,4"}};
  set_regional_settings(test::italian());
  for (const auto& [frequency, length] : table) {
    window.type("txtfrequenza", frequency);
    EXPECT_EQ(window.texts({"lbllung", "lbllunghezza"}),
              (Texts{length + " mt.", "LUNGHEZZA DEL DIPOLO mt : " + length}));
    EXPECT_TRUE(window.shows("lbllung") && window.shows("lbllunghezza"));
    window.type("txtfrequenza", "-3");
    EXPECT_FALSE(window.shows("lbllung") || window.shows("lbllunghezza"));
  }
}

TEST_F(frmdipoloripiegato, ImpedanceInItalian) {
  set_regional_settings(test::italian());
  compute({"2", "10", "40"});
  EXPECT_EQ(results(), (Texts{"RAPPORTO DI TRASFORMAZIONE = 7,7",
                              "IMPEDENZA RISULTANTE OHM : 577,5", "Ohm 577,5"}));
  compute({"3.5", "3.5", "3.5"});  // the spacing may be as small as the upper diameter
  EXPECT_EQ(results(), (Texts{"RAPPORTO DI TRASFORMAZIONE = 4,0", "IMPEDENZA RISULTANTE OHM : 300",
                              "Ohm 300"}));
  EXPECT_EQ(captions(), (Texts{"3,5", "3,5", "3,5"}));
}

TEST_F(frmdipoloripiegato, RefusalsComeAfterTheCaptionsAndKeepTheResults) {
  const test::Box missing{"messaggio di errore", "mancano dati"};
  const test::Box incompatible = test::error("MISURE NON COMPATIBILI");
  const std::pair<Texts, test::Box> table[] = {
      {{"6", "12", "0"}, missing},
      {{"10", "5", "50"}, incompatible},
      {{"6", "12", "11.9"}, incompatible},
      {{"-20", "-30", "50"}, incompatible},
  };
  compute({"6", "12", "50"});
  const Texts before = results();
  for (const auto& [inputs, box] : table) {
    compute(inputs);
    expect_refusal(window, box, "txtd2");
    EXPECT_EQ(captions(), inputs);
    EXPECT_EQ(results(), before);
  }
  compute({"-6", "12", "50"});
  EXPECT_TRUE(boxes().empty());
  EXPECT_EQ(results(), before);
}

TEST_F(frmdipoloripiegato, TwoNegativeDiametersAreNotCaught) {
  compute({"-3", "-2", "50"});
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
