#include "support/form_test.h"

namespace eterlab {
namespace {

using test::english;

class frmreszener : public test::FormTest {
 protected:
  frmreszener()
      : FormTest{"mnureszener",
                 {"txtvcc", "txtvz", "txtma"},
                 {"lblvcc", "lblohm", "lblvz", "lblohmlunga", "lblwatt"}} {}
};

// 10 V across the resistor and 20 mA of load: 10 V / (20 mA + Iz), (20 mA + Iz) x 10 V.
TEST_F(frmreszener, TheClassSetsTheStandingCurrent) {
  const char* const table[][2] = {{"500", "0.2"}, {"250", "0.4"}, {"200", "0.5"}, {"167", "0.6"}};
  int option = -1;  // none at first
  for (const auto& [ohm, watt] : table) {
    if (option >= 0) {
      window.click("Option1_" + std::to_string(option));
    }
    ++option;
    expect_computed({{english(),
                      {"15", "5", "20"},
                      {"15 V", std::string{ohm} + " ohm", "5 V",
                       std::string{"Valore della resistenza = Ohm "} + ohm,
                       std::string{"Dissipazione in Watt = "} + watt}}});
  }
  window.click("Option1_0");
  expect_computed({{test::italian(),
                    {"12", "5.1", "20"},
                    {"12 V", "173 ohm", "5,1 V", "Valore della resistenza = Ohm 173",
                     "Dissipazione in Watt = 0,276"}}});
  compute({"12", "-5", "-20"});  // currents that cancel
  EXPECT_TRUE(has_ended());
}

TEST_F(frmreszener, RefusesInItsOrder) {
  expect_refused({{{"5", "6", ""}, test::error("VALORI DI TENSIONE ERRATI"), "txtvcc"},
                  {{"12", "5.1", ""}, test::error("MANCANO DATI"), "txtvcc"}});
  const test::Texts nothing = results();
  // A negative product does nothing at all.
  expect_computed({{english(), {"12", "5.1", "-20"}, nothing}});
  EXPECT_EQ(nothing[3], "");
  compute({"12", "12", "20"});
  EXPECT_EQ(window.text("lblohm"), "0 ohm");
  compute({"40000", "1", "1"});  // beyond the range of a resistor
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
