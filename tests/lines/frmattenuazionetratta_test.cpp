#include "support/window_test.h"

namespace eterlab {
namespace {

class frmattenuazionetratta : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuattenuazionetratta");

  std::string attenuation(const char* distance, const char* frequency) {
    window.type("txtdistanza", distance);
    window.type("txtfrequenza", frequency);
    window.press(Qt::Key_Return);
    return window.text("lblattenuazione");
  }
};

TEST_F(frmattenuazionetratta, PlainNumbersOfTheCountry) {
  EXPECT_EQ(attenuation("10", "145"), "L'ATTENUAZIONE ALLA DISTANZA DI 10 KM é 95.66 dB");
  EXPECT_EQ(attenuation("", "432"), "L'ATTENUAZIONE ALLA DISTANZA DI 0.001 KM é 25.15 dB");
  set_regional_settings(test::italian());
  EXPECT_EQ(attenuation("", "432"), "L'ATTENUAZIONE ALLA DISTANZA DI 0,001 KM é 25,15 dB");
  EXPECT_EQ(attenuation("1234.5", "145.5"),
            "L'ATTENUAZIONE ALLA DISTANZA DI 1234,5 KM é 137,52 dB");
}

TEST_F(frmattenuazionetratta, EditsKeepTheResult) {
  const std::string result = attenuation("10", "145");
  window.type("txtdistanza", "20");
  EXPECT_EQ(window.text("lblattenuazione"), result);
}

TEST_F(frmattenuazionetratta, NoFrequencyIsFatal) {
  attenuation("10", "");
  EXPECT_TRUE(has_ended());
  EXPECT_EQ(boxes().size(), 1U);
}

TEST_F(frmattenuazionetratta, NegativeDistanceIsFatal) {
  attenuation("-1", "145");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
