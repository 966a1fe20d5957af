#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmgammamatch : public test::WindowTest {
 protected:
  test::Driven window = choose("mnugammamatch");

  Texts compute(const char* frequency_mhz) const {
    window.type("txtfrequenza", frequency_mhz);
    window.click("cmdcalcola");
    return window.texts(
        {"lbllunghezza", "lbldistanza", "lbllambda", "lblpf", "lblcavo", "lbldiametri", "lblc"});
  }
};

// 299.793, 6.25 x 299.793, 0.7 x 299.793 and 2100 over the frequency, by Python's decimal.
TEST_F(frmgammamatch, ComputesWithoutGrouping) {
  EXPECT_EQ(compute("5000")[1], "spaziatura cm 0.");
  EXPECT_EQ(compute("50")[2], "VALORE DI LAMBDA = mt. 6.");
  set_regional_settings(test::italian());
  EXPECT_EQ(compute("0.3"),
            (Texts{"cm. 6245,7", "spaziatura cm 699,5", "VALORE DI LAMBDA = mt. 999,3",
                   "CONDENSATORE = pF  7000",
                   "USANDO L'RG 8/213 COME CONDENSATORE LA LUNGHEZZA E' cm. 7217",
                   "IL DIAMETRO DEL RADIATORE E' 2 - 4 VOLTE IL DIAMETRO DELLO STUB", "7000 pF"}));
}

TEST_F(frmgammamatch, WantsAPositiveFrequencyThatIsNotTooLow) {
  for (const char* text : {"", "-14", "abc"}) {
    EXPECT_EQ(compute(text), (Texts{"STUB", "", "", "", "", "", ""}));
    expect_refusal(window, test::error("MANCA INPUT"), "txtfrequenza");
  }
  const Texts before = compute("0.0641");
  EXPECT_EQ(compute(""), before);  // results stand until the next computation
  EXPECT_FALSE(has_ended());
  compute("0.064");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
