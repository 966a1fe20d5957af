#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;

class frmdipoli : public WindowTest {
 protected:
  test::Driven window = choose("mnudipoli");
};

TEST_F(frmdipoli, ComputesAsTheUserTypes) {
  window.type("txtfrequenza", "7");
  EXPECT_EQ(window.text("lbllunghezza"), "10.19 mt.");
  window.type("txtfrequenza", "7.1");
  EXPECT_EQ(window.text("lbllunghezza"), "10.04 mt.");
  EXPECT_EQ(window.text("lblbraccio"), "LUNGHEZZA DEL BRACCIO in mt.: 10.04");
  EXPECT_EQ(window.text("lbllunghezzavert"), "10.00");
}

TEST_F(frmdipoli, SinglePrecisionShowsInLongArms) {
  // In double precision the arms would be 101,857.14 and 101,428.57.
  window.type("txtfrequenza", "0.0007");
  EXPECT_EQ(window.text("lbllunghezza"), "101,857.15 mt.");
  EXPECT_EQ(window.text("lbllunghezzavert"), "101,428.60");
}

TEST_F(frmdipoli, ItalianResults) {
  set_regional_settings(test::italian());
  window.type("txtfrequenza", "0.05");
  EXPECT_EQ(window.text("lblbraccio"), "LUNGHEZZA DEL BRACCIO in mt.: 1.426,00");
  EXPECT_EQ(window.text("lbllunghezzavert"), "1.420,00");
}

TEST_F(frmdipoli, ResultsHideWithoutAPositiveFrequency) {
  for (const char* text : {"0", "-3", "", "abc", ",5"}) {
    SCOPED_TRACE(text);
    window.type("txtfrequenza", "14.2");
    for (const char* label : {"lbllunghezza", "lblbraccio", "lbllunghezzavert"}) {
      EXPECT_TRUE(window.shows(label)) << label;
    }
    window.type("txtfrequenza", text);
    for (const char* label : {"lbllunghezza", "lblbraccio", "lbllunghezzavert"}) {
      EXPECT_FALSE(window.shows(label)) << label;
    }
  }
  EXPECT_TRUE(boxes().empty());
}

TEST_F(frmdipoli, FrequencyBeyondSinglePrecisionEndsTheProgram) {
  window.type("txtfrequenza", "1E39");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
