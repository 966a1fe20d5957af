#include "support/form_test.h"

namespace eterlab {
namespace {

using test::english;
using test::error;
using test::italian;
using test::Texts;

constexpr const char* no_data = "MANCANO DATI";

class frmdimcirclc : public test::FormTest {
 protected:
  frmdimcirclc() : FormTest{"mnudimcirclc", {"txtfrequenza"}, {"lblcapacita", "lblinduttanza"}} {}
};

// C = 400 / f and L = 63.325 / f, which is 25330 / (f f C), by hand.
TEST_F(frmdimcirclc, ComputesAsTheUserTypes) {
  const std::string capacitance = "LA CAPACITA' OTTIMALE E'  CIRCA pF ";
  const std::string inductance = "L'INDUTTANZA IN QUESTO CASO E' µH ";
  expect_computed({{italian(), {"0.2"}, {capacitance + "2.000,0", inductance + "316,6"}},
                   {italian(), {"0"}, {"", ""}},
                   {english(), {"-7"}, {capacitance + "-57.1", inductance + "-9.0"}},
                   {english(), {"abc"}, {"", ""}}});
  window.type("txtfrequenza", "1e-200");  // its square is nothing
  EXPECT_TRUE(has_ended());
}

class frmriduzcondensatori : public test::FormTest {
 protected:
  frmriduzcondensatori() : FormTest{"mnuriduzcondensatori", {"txtc1", "txtc2"}, {"lblriduzione"}} {}
};

// 1 / (1 / wanted - 1 / given), by hand.
TEST_F(frmriduzcondensatori, NanofaradFromAThousandAndOnePicofarad) {
  const std::string in_series = "CAPACITA' DA APPLICARE IN SERIE =  ";
  expect_computed({{italian(), {"1000.99", "500.495"}, {in_series + "1.001,0  picoF"}},
                   {italian(), {"1001", "500.5"}, {in_series + "1,0  nanoF"}},
                   {english(), {"470", "150"}, {in_series + "220.3  picoF"}},
                   {english(), {"-50", "-100"}, {in_series + "100.0  picoF"}}});
}

TEST_F(frmriduzcondensatori, RefusesAndKeepsTheResult) {
  const test::Box not_larger{"STAI ATTENTO", "IL PRIMO COND.RE HA SEMPRE LA CAPACITA' MAGGIORE"};
  compute({"100", "50"});
  expect_refused({{{"", "50"}, error(no_data), "txtc1"},
                  {{"100", "-50"}, error(no_data), "txtc1"},
                  {{"100", "100"}, not_larger, "txtc1"},
                  {{"-100", "-50"}, not_larger, "txtc1"}});
  EXPECT_EQ(results(), Texts{"CAPACITA' DA APPLICARE IN SERIE =  100.0  picoF"});
}

class frminduttanzafilodiritto : public test::FormTest {
 protected:
  frminduttanzafilodiritto()
      : FormTest{"mnuinduttanzafilodiritto", {"txtdiametro", "txtlunghezza"}, {"lblinduttanza"}} {}
};

TEST_F(frminduttanzafilodiritto, MicrohenryFromOneOn) {
  expect_computed({{italian(), {"1", "0.7"}, {"L'INDUTTANZA DEL FILO E' microHenry 1,006"}},
                   {english(), {"1", "0.69"}, {"L'INDUTTANZA DEL FILO E' nanoHenry 989.872"}},
                   {italian(), {"-1", "-1"}, {"L'INDUTTANZA DEL FILO E' nanoHenry -1.508,810"}}});
}

TEST_F(frminduttanzafilodiritto, HintStandsInThePlaceOfTheResult) {
  const Texts hint{"SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO"};
  EXPECT_EQ(results(), hint);
  expect_edits_leave(hint, {"1", "1"});
  expect_refused(
      {{{"1", ""}, error(no_data), "txtlunghezza"}, {{"1", "-1"}, error(no_data), "txtlunghezza"}});
  EXPECT_EQ(results(), hint);
}

class frmlunghezzafilo : public test::FormTest {
 protected:
  frmlunghezzafilo()
      : FormTest{"mnulunghezzafilo",
                 {"txtd", "txtgrammi"},
                 {"lblsezione", "lbllunghezza", "lblimax", "lblrtot"}} {}
};

TEST_F(frmlunghezzafilo, FourResults) {
  expect_computed(
      {{italian(),
        {"0.5", "100"},
        {"LA SEZIONE DEL FILO E'  0,196 mmq", "LA LUNGHEZZA DEL CONDUTTORE E'  57,29 metri",
         "LA CORRENTE MASSIMA AMMESSA E'  0,4909 Amp",
         " LA RESISTENZA TOTALE DEL CONDUTTORE E'  5,13525 OHM"}}});
  const struct {
    Texts typed;
    std::size_t place;
    const char* result;
  } table[] = {
      {{"0.1", "1000"}, 1, "LA LUNGHEZZA DEL CONDUTTORE E'  14.322,15 metri"},
      {{"0.1", "1000"}, 3, " LA RESISTENZA TOTALE DEL CONDUTTORE E'  32094,53 OHM"},
      {{"3", "0.5"}, 3, " LA RESISTENZA TOTALE DEL CONDUTTORE E'  2,5E-05 OHM"},  // 0.0000249
      {{"0.7136", "50"}, 2, "LA CORRENTE MASSIMA AMMESSA E'  0,9999 Amp"},        // 0.99986
      {{"0.714", "50"}, 2, "LA CORRENTE MASSIMA AMMESSA E'  1,00 Amp"},           // 1.00098
      {{"-1", "-100"}, 1, "LA LUNGHEZZA DEL CONDUTTORE E'  -14,32 metri"},
  };
  for (const auto& row : table) {
    compute(row.typed);
    EXPECT_EQ(results()[row.place], row.result);
  }
}

TEST_F(frmlunghezzafilo, EditsAndRefusalsHideTheResults) {
  const Texts hidden{"", "", "", ""};
  EXPECT_EQ(results(), hidden);
  expect_edits_leave(hidden, {"1", "100"});
  expect_refused({{{"1", ""}, error(no_data), "txtd"}, {{"-1", "100"}, error(no_data), "txtd"}});
  EXPECT_EQ(results(), hidden);
}

}  // namespace
}  // namespace eterlab
