#include "support/form_test.h"

namespace eterlab {
namespace {

using test::english;
using test::italian;

const test::Box out_of_range = test::error("DATO NON CONGRUO");

class frmlm317 : public test::FormTest {
 protected:
  frmlm317() : FormTest{"mnu317", {"txtvu"}, {"lblr1", "lblr2", "lblvout", "lblvin", "lblvmax"}} {}
};

TEST_F(frmlm317, ComputesAndKeepsTheResultsWhenItRefuses) {
  expect_computed({{english(),
                    {"12"},
                    {"220 Ohm", "1892 Ohm", "12 Volt Out", "15.6 Volt Input",
                     "LA TENSIONE OTTIMALE IN ENTRATA E' 15.6 VOLT   -  "
                     "LA MASSIMA APPLICABILE E' 42 VOLT"}},
                   {italian(),
                    {"5.001"},
                    {"220 Ohm", "660,176 Ohm", "5,001 Volt Out", "6,5013 Volt Input",
                     "LA TENSIONE OTTIMALE IN ENTRATA E' 6,5013 VOLT   -  "
                     "LA MASSIMA APPLICABILE E' 35,001 VOLT"}}});
  compute({"100"});
  expect_refused({{{"1.25"}, out_of_range, "txtvu"},
                  {{"100.5"}, out_of_range, "txtvu"},
                  {{""}, out_of_range, "txtvu"}});
  EXPECT_EQ(results()[3], "130 Volt Input");
}

class frmlm317correntecost : public test::FormTest {
 protected:
  frmlm317correntecost() : FormTest{"mnu317cc", {"txtcorrente"}, {"lblr1", "lblrisultato"}} {}
};

TEST_F(frmlm317correntecost, ComputesAndKeepsTheResultsWhenItRefuses) {
  expect_computed({{italian(),
                    {"0.5"},
                    {"2.500,0 Ohm", "PER OTTENERE 0,5 mA LA RESISTENZA DEVE ESSERE  2.500,0 OHM"}},
                   {english(),
                    {"1000"},
                    {"1.3 Ohm", "PER OTTENERE 1000 mA LA RESISTENZA DEVE ESSERE  1.3 OHM"}}});
  expect_refused({{{"0"}, out_of_range, "txtcorrente"},
                  {{"1001"}, out_of_range, "txtcorrente"},
                  {{"-5"}, out_of_range, "txtcorrente"}});
  EXPECT_EQ(window.text("lblr1"), "1.3 Ohm");
}

}  // namespace
}  // namespace eterlab
