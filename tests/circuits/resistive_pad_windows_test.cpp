#include "support/window_test.h"

// The windows of all resistive pads.

namespace eterlab {
namespace {

using test::Texts;

struct Pad {
  const char* entry;
  Texts inputs, results;
};
const Pad l{"mnuretel", {"txtRH", "txtRL"}, {"lblR1", "lblR2", "lblperdita"}};
const Pad balanced{"mnuLbilanciata", l.inputs, {"lblR1", "lblR1a", "lblR2", "lblperdita"}};
const Pad t_and_pi{"mnureteaT",
                   {"txtZI", "txtZO", "txtLD"},
                   {"lblR1T", "lblR2T", "lblR3T", "lblR1P", "lblR2P", "lblR3P", "lblperdita"}};
const Pad bridged{
    "mnureteTponte", {"txtR0", "txtattenuazione"}, {"lblR1", "lblR1a", "lblR2", "lblR3"}};

class ResistivePads : public test::WindowTest {
 protected:
  test::Driven enter(const Pad& pad, const Texts& typed) {
    const test::Driven window = choose(pad.entry);
    for (std::size_t i = 0; i < typed.size(); ++i) {
      window.type(pad.inputs[i], typed[i]);
    }
    window.press(Qt::Key_Return);
    return window;
  }
  void expect(const Pad& pad, const Texts& typed, const Texts& results) {
    const test::Driven window = enter(pad, typed);
    for (std::size_t i = 0; i < results.size(); ++i) {
      EXPECT_EQ(window.text(pad.results[i]), results[i]);
    }
  }
};

// The formulas with 50 decimal digits (Python's decimal), single precision with its struct module.
TEST_F(ResistivePads, Compute) {
  expect(l, {"55", "50"}, {"16.6", "165.8", "L'ATTENUAZIONE E' 2.7 dB"});  // 2.7029
  // 866025.39512 to more digits than single precision has.
  expect(t_and_pi, {"600", "50", "80"},
         {"599.97", "49.97", "0.03", "600.42", "50", "866025.4", "PERDITA D'INSERZIONE 23 dB"});
  set_regional_settings(test::italian());
  expect(l, {"75", "50"}, {"43,3", "86,6", "L'ATTENUAZIONE E' 5,72 dB"});
  driven("frmretiadL").type("txtRH", "100");
  EXPECT_EQ(driven("frmretiadL").text("lblR1"), "43,3");  // stays until the next computation
  // Half of 273.861, not of 273.9.
  expect(balanced, {"300", "50"}, {"136,9", "136,9", "54,8", "L'ATTENUAZIONE E' 13,42 dB"});
  expect(t_and_pi, {"300", "75", "20"},
         {"275,76", "46,21", "30,3", "486,89", "81,59", "742,5", "PERDITA D'INSERZIONE 15 dB"});
  // .3 with K in single precision, .2 in double.
  expect(bridged, {"600", "60.5"}, {"600,0", "600,0", "0,6", "634.952,3"});
}

TEST_F(ResistivePads, Refuse) {
  struct Refused {
    const Pad& pad;
    Texts typed;
    test::Box box;
    const char* focus;
  };
  const test::Box missing = test::error("MANCANO DATI");
  const auto told = [](const char* text) { return test::Box{"messaggio di errore", text}; };
  const test::Box not_higher = told("L'impedenza IN deve essere maggiore dell'impedenza OUT");
  const Refused table[] = {
      {l, {"75", "-50"}, missing, "txtRH"},
      {l, {"50", "50"}, not_higher, "txtRH"},
      {l, {"-75", "-50"}, not_higher, "txtRH"},
      {balanced, {"50", "50"}, not_higher, "txtRH"},
      {t_and_pi, {"75", "50", ""}, missing, "txtZI"},
      {t_and_pi, {"-75", "50", "10"}, missing, "txtZI"},
      {t_and_pi, {"50", "75", "10"}, told("IMPEDENZA IN < IMPEDENZA OUT"), "txtZI"},
      {t_and_pi, {"75", "50", "6.8764"}, told("DATI NON CONGRUI"), "txtLD"},
      {bridged, {"50", ""}, missing, "txtR0"},
  };
  for (const Refused& refused : table) {
    SCOPED_TRACE(refused.box.text);
    const test::Driven window = enter(refused.pad, refused.typed);
    expect_refusal(window, refused.box, refused.focus);
    EXPECT_EQ(window.text(refused.pad.results[0]), "");
  }
  EXPECT_NE(enter(t_and_pi, {"75", "50", "6.8765"}).text("lblR1T"), "");
}

TEST_F(ResistivePads, TwoNegativeImpedancesEndTheProgram) {
  enter(l, {"-50", "-75"});
  EXPECT_TRUE(has_ended());
}

TEST_F(ResistivePads, LossThatChangesNothingEndsTheProgram) {
  enter(t_and_pi, {"50", "50", "1e-16"});
  EXPECT_TRUE(has_ended());
}

TEST_F(ResistivePads, LossThatSinglePrecisionCannotTellEndsTheProgram) {
  enter(bridged, {"50", "0.0000001"});
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
