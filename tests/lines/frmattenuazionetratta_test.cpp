#include "support/window_test.h"

namespace eterlab {
namespace {

class frmattenuazionetratta : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuattenuazionetratta");

  std::string attenuation(const char* distance, const char* frequency) {
    window.enter({{"txtdistanza", distance}, {"txtfrequenza", frequency}});
    return window.text("lblattenuazione");
  }
};

TEST_F(frmattenuazionetratta, PlainNumbersOfTheCountry) {
  const std::string one_metre = "L'ATTENUAZIONE ALLA DISTANZA DI 0.001 KM é 25.15 dB";
  EXPECT_EQ(attenuation("", "432"), one_metre);
  window.type("txtdistanza", "20");
  EXPECT_EQ(window.text("lblattenuazione"), one_metre);  // edits keep the result
  set_regional_settings(test::italian());
  EXPECT_EQ(attenuation("1234.5", "145.5"),
            "L'ATTENUAZIONE ALLA DISTANZA DI 1234,5 KM é 137,52 dB");  // 137.52466
}

TEST_F(frmattenuazionetratta, NoFrequencyIsFatal) {
  attenuation("10", "");
  EXPECT_TRUE(has_ended());
}

TEST_F(frmattenuazionetratta, NegativeDistanceIsFatal) {
  attenuation("-1", "145");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
