#include "support/form_test.h"

namespace eterlab {
namespace {

using test::italian;

class frmled : public test::FormTest {
 protected:
  frmled() : FormTest{"mnuled", {"txttensione"}, {"lbltensione", "lblohm"}} {}
};

TEST_F(frmled, EveryColourAtTwelveVolt) {
  const char* const table[][3] = {{"ROSSI", "1,8", "1020"},  {"VERDI", "2", "1000"},
                                  {"GIALLI", "1,9", "1010"}, {"ARANCIO", "2", "1000"},
                                  {"BLU", "3", "900"},       {"BIANCHI", "3", "900"}};
  int index = 0;
  for (const auto& [diodes, volt, ohm] : table) {
    window.click("Option1_" + std::to_string(index++));
    EXPECT_EQ(window.text("txttensione"), "");
    EXPECT_EQ(results(), (test::Texts{"", ""}));
    EXPECT_EQ(window.text("lblled"), std::string{"LA TENSIONE DA APPLICARE AI DIODI "} + diodes +
                                         " E' " + volt + " VOLT.");
    EXPECT_EQ(window.text("lblvoltled"), std::string{"ALIMENTAZIONE MINIMA "} + volt + " VOLT ");
    expect_computed({{test::english(), {"12"}, {"12 V.", std::string{"ohm "} + ohm}}});
  }
}

// (V - 3) x 100 by hand, to a hundredth, of which seven digits are shown.
TEST_F(frmled, ResultsAsTyped) {
  // Ten million without a colour: more than the seven digits of a single.
  expect_computed({{italian(), {"200000"}, {"100000 V.", "ohm 1E+07"}}});
  window.click("Option1_5");
  expect_computed({{italian(), {"-"}, {"0 V.", "ohm -300"}},
                   {italian(), {"5.12345"}, {"5,12345 V.", "ohm 212,35"}},
                   {italian(), {"12345.6789"}, {"12345,6789 V.", "ohm 1234268"}},
                   {italian(), {"200000"}, {"100000 V.", "ohm 9999700"}}});
}

}  // namespace
}  // namespace eterlab
