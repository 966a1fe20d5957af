#include "support/window_test.h"

namespace eterlab {
namespace {

using Boxes = std::vector<test::Box>;
using Texts = std::vector<std::string>;

constexpr int t50_2 = 77;  // A_L 49

class frmsintoniatoro : public test::WindowTest {
 protected:
  test::Driven window = choose("mnusintoniatoro");

  void compute(int option, const char* first, const char* second) {
    window.click("Option1_" + std::to_string(option));
    window.type("txtinput1", first);
    window.type("txtinput2", second);
    window.press(Qt::Key_Return);
  }
  [[nodiscard]] Texts results() const {
    return {window.text("lblinput_3"), window.text("lblspire")};
  }
};

TEST_F(frmsintoniatoro, OptionsNameTheQuantities) {
  const Texts expected[] = {
      {"INDUTTANZA :", " microH", "CAPACITA' :", " pF", "FREQUENZA :", " MHz",
       "CALCOLA LA FREQUENZA E LE SPIRE"},
      {"FREQUENZA :", " MHz", "INDUTTANZA :", " microH", "CAPACITA' :", " pF",
       "CALCOLA LA CAPACITA' E LE SPIRE"},
      {"FREQUENZA :", " MHz", "CAPACITA' :", " pF", "INDUTTANZA :", " microH",
       "CALCOLA L'INDUTTANZA E LE SPIRE"},
  };
  window.pick("cmbnucleo", t50_2);
  int option = 0;
  for (const Texts& texts : expected) {
    window.click("Option1_" + std::to_string(option++));
    EXPECT_EQ(
        (Texts{window.text("lblinput_0"), window.text("lblumisura_0"), window.text("lblinput_1"),
               window.text("lblumisura_1"), window.text("lblinput_2"), window.text("lblumisura_2"),
               window.text("cmdcalcola")}),
        texts);
  }
}

TEST_F(frmsintoniatoro, ControlsAppearStepByStep) {
  EXPECT_FALSE(window.shows("Frame2"));
  window.pick("cmbnucleo", t50_2);
  EXPECT_TRUE(window.shows("Frame2"));
  for (const bool is_chosen : {false, true}) {
    for (const char* control : {"txtinput1", "txtinput2", "cmdcalcola", "lblhelp2", "lblpunto"}) {
      EXPECT_EQ(window.shows(control), is_chosen) << control;
    }
    window.click("Option1_1");
  }
}

// 159 / sqrt(1000) = 5.02802, 25300 / 490 = 51.63265, 25300 / (51.633 x 49) = 9.99993; 10 uH are
// 100 sqrt(10 / 49) = 45.175 turns.
TEST_F(frmsintoniatoro, TenMicrohenryByEveryOption) {
  window.pick("cmbnucleo", t50_2);
  compute(0, "10", "100");
  EXPECT_EQ(results(), (Texts{"5.028", "OCCORRONO 45.2 SPIRE"}));
  compute(1, "7", "10");
  EXPECT_EQ(results(), (Texts{"51.633", "OCCORRONO 45.2 SPIRE"}));
  compute(2, "7", "51.633");
  EXPECT_EQ(results(), (Texts{"10.000", "OCCORRONO 45.2 SPIRE"}));
  compute(2, "-7", "51.633");  // squared
  EXPECT_EQ(results(), (Texts{"10.000", "OCCORRONO 45.2 SPIRE"}));
}

// 25300 / (2 x 0.01) = 1265000 pF; 100 sqrt(2 / 49) = 20.2 turns.
TEST_F(frmsintoniatoro, ItalianResults) {
  set_regional_settings(test::italian());
  window.pick("cmbnucleo", t50_2);
  compute(1, "0.1", "2");
  EXPECT_EQ(results(), (Texts{"1.265.000,000", "OCCORRONO 20,2 SPIRE"}));
}

TEST_F(frmsintoniatoro, CoreAndOptionClearTheResults) {
  window.pick("cmbnucleo", t50_2);
  compute(0, "10", "100");
  window.type("txtinput1", "11");  // an edit does not
  EXPECT_EQ(results(), (Texts{"5.028", "OCCORRONO 45.2 SPIRE"}));
  window.click("Option1_0");
  EXPECT_EQ(results(), (Texts{"", ""}));
  compute(0, "10", "100");
  window.pick("cmbnucleo", t50_2);
  EXPECT_EQ(results(), (Texts{"", ""}));
}

TEST_F(frmsintoniatoro, MissingDataKeepTheResults) {
  window.pick("cmbnucleo", t50_2);
  compute(0, "10", "100");
  window.type("txtinput2", "0");
  window.click("cmdcalcola");
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtinput1");
  EXPECT_EQ(results(), (Texts{"5.028", "OCCORRONO 45.2 SPIRE"}));
}

class frmsintoniatoro_option : public frmsintoniatoro, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Options, frmsintoniatoro_option, testing::Values(0, 1, 2));

// A frequency, or turns, out of a negative root.
TEST_P(frmsintoniatoro_option, NegativeInductanceOrCapacitanceIsFatal) {
  window.pick("cmbnucleo", t50_2);
  compute(GetParam(), "10", "-10");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
