#include "support/form_test.h"

namespace eterlab {
namespace {

using test::english;
using test::italian;

class frm78xx : public test::FormTest {
 protected:
  frm78xx() : FormTest{"mnu78xx", {"txtvu"}, {"lblr1", "lblr2", "lblvin", "Label7"}} {}
  const std::string note = window.text("Label7");  // shown with the first results
};

TEST_F(frm78xx, EveryTypeAtTwentyFiveVolt) {
  const char* const table[][3] = {{"7805", "200 Ohm", "800 Ohm"}, {"7808", "320 Ohm", "680 Ohm"},
                                  {"7812", "480 Ohm", "520 Ohm"}, {"7815", "600 Ohm", "400 Ohm"},
                                  {"7818", "720 Ohm", "280 Ohm"}, {"7824", "960 Ohm", "40 Ohm"}};
  int index = 0;
  for (const auto& [type, r1, r2] : table) {
    window.click("Option1_" + std::to_string(index++));
    EXPECT_EQ(window.text("lbl78xx"), type);
    EXPECT_EQ(window.text("lblr1") + window.text("lblr2") + window.text("txtvu"), "R1R2");
    expect_computed({{english(), {"25"}, {r1, r2, "35 Volt Input", note}}});
    EXPECT_EQ(window.text("lblvout"), "25 Volt Out");
  }
}

TEST_F(frm78xx, RefusesWhatTheTypeCannotGive) {
  const test::Box out_of_range = test::error("DATO NON CONGRUO");
  window.click("Option1_2");
  expect_refused({{{"12"}, out_of_range, "txtvu"},
                  {{"36"}, out_of_range, "txtvu"},
                  {{""}, out_of_range, "txtvu"}});
  EXPECT_EQ(results(), (test::Texts{"R1", "R2", "", ""}));
  window.click("Option1_0");
  expect_computed({{italian(), {"9"}, {"200 Ohm", "160 Ohm", "12,6 Volt Input", note}},
                   {italian(), {"35"}, {"200 Ohm", "1200 Ohm", "49 Volt Input", note}}});
}

TEST_F(frm78xx, WithoutATypeTheNominalVoltageIsZero) {
  expect_computed({{english(), {"9"}, {"0 Ohm", "360 Ohm", "12.6 Volt Input", note}}});
}

}  // namespace
}  // namespace eterlab
