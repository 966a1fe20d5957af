#include "circuits/resistive_pads.h"

#include <gtest/gtest.h>

// Expected values: the formulas evaluated with 50 decimal digits (Python's decimal), single
// precision with its struct module.

namespace eterlab::circuits {
namespace {

TEST(ResistivePads, MinimumLoss) {
  const MinimumLossPad pad = minimum_loss_pad(50, 49.9);
  EXPECT_NEAR(pad.series_ohm.value(), 2.23607, 6e-6);
  EXPECT_NEAR(pad.shunt_ohm.value(), 1115.79792, 6e-6);
  EXPECT_EQ(pad.loss_db.value(), 0.39F);
  EXPECT_EQ(minimum_loss_pad(12345, 50).loss_db.value(), 29.94F);
}

TEST(ResistivePads, TAndPi) {
  struct Expected {
    double input, output, loss, t_in, t_out, t_shunt, pi_in, pi_out;
    float pi_series;
  };
  for (const Expected& expected : {
           Expected{75, 50, 10, 48.63, 18.08, 43.03, 207.43, 77.11, 87.14F},
           // 2999999.97 between the two nearest single-precision numbers, a quarter apart.
           Expected{600, 600, 80, 599.88, 599.88, 0.12, 600.12, 600.12, 3000000.0F},
       }) {
    const TPad t = t_pad(expected.input, expected.output, expected.loss);
    EXPECT_EQ(t.series_in_ohm, expected.t_in);
    EXPECT_EQ(t.series_out_ohm, expected.t_out);
    EXPECT_EQ(t.shunt_ohm, expected.t_shunt);
    const PiPad pi = pi_pad(expected.input, expected.output, expected.loss);
    EXPECT_EQ(pi.shunt_in_ohm, expected.pi_in);
    EXPECT_EQ(pi.shunt_out_ohm, expected.pi_out);
    EXPECT_EQ(pi.series_ohm.value(), expected.pi_series);
  }
}

TEST(ResistivePads, LeastLossAndHowItIsTold) {
  EXPECT_NEAR(least_loss_db(75, 50).value(), 6.876467, 1e-6);
  EXPECT_EQ(told_in_whole_db(least_loss_db(1518, 1000)), 7);  // a two-hundredth carries 6.9961 over
  EXPECT_EQ(told_in_whole_db(least_loss_db(1517, 1000)), 6);  // 6.9895
  EXPECT_THROW(least_loss_db(-50, -75), ArithmeticFault);     // a ratio below 1
}

TEST(ResistivePads, BridgedTHasItsVoltageRatioInSinglePrecision) {
  const BridgedTPad pad = bridged_t_pad(600, 60.5);
  EXPECT_NEAR(pad.shunt_ohm.value(), 0.567, 1e-4);
  EXPECT_NEAR(pad.bridge_ohm.value(), 634952.2705, 1e-4);  // in double precision 634952.2351
  EXPECT_NEAR(bridged_t_pad(-50, -6).shunt_ohm.value(), 100.238, 1e-4);
  EXPECT_THROW(bridged_t_pad(50, 800), ArithmeticFault);  // beyond single precision
}

}  // namespace
}  // namespace eterlab::circuits
