#include "circuits/resistive_pads.h"

#include <gtest/gtest.h>

// Expected values: the formulas evaluated with 50 decimal digits (Python's decimal), single
// precision with its struct module.

namespace eterlab::circuits {
namespace {

TEST(MinimumLossPad, ResistorsAndLoss) {
  struct Expected {
    double higher;
    double lower;
    double series;
    double shunt;
    float loss;
  };
  const Expected table[] = {
      {75, 50, 43.30127, 86.60254, 5.72F},        {300, 50, 273.86128, 54.77226, 13.42F},
      {1000, 50, 974.67943, 51.29892, 18.92F},    {50, 49.9, 2.23607, 1115.79792, 0.39F},
      {12345, 50, 12319.97463, 50.10156, 29.94F},
  };
  for (const Expected& expected : table) {
    const MinimumLossPad pad = minimum_loss_pad(expected.higher, expected.lower);
    EXPECT_NEAR(pad.series_ohm.value(), expected.series, 6e-6);
    EXPECT_NEAR(pad.shunt_ohm.value(), expected.shunt, 6e-6);
    EXPECT_EQ(pad.loss_db.value(), expected.loss);
  }
}

TEST(MinimumLossPad, TwoNegativeImpedancesAreAFault) {
  EXPECT_THROW(minimum_loss_pad(-50, -75), ArithmeticFault);
}

TEST(Attenuator, TAndPi) {
  struct Expected {
    double input, output, loss;
    double t_in, t_out, t_shunt;
    double pi_in, pi_out;
    float pi_series;
  };
  const Expected table[] = {
      {75, 50, 10, 48.63, 18.08, 43.03, 207.43, 77.11, 87.14F},
      {50, 50, 6, 16.61, 16.61, 66.93, 150.48, 150.48, 37.35F},
      {300, 75, 20, 275.76, 46.21, 30.3, 486.89, 81.59, 742.5F},
      {600, 50, 60, 599.65, 49.65, 0.35, 604.18, 50.03, 86602.45F},
      // 2999999.97 between the two nearest single-precision numbers, a quarter apart.
      {600, 600, 80, 599.88, 599.88, 0.12, 600.12, 600.12, 3000000.0F},
  };
  for (const Expected& expected : table) {
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

TEST(Attenuator, LeastLossAndHowItIsTold) {
  struct Expected {
    double input;
    double output;
    double loss;
    double told;
  };
  const Expected table[] = {
      {50, 50, 0, 0},
      {75, 50, 6.876467, 6},
      {300, 75, 15.166201, 15},
      {1518, 1000, 6.996123, 7},  // the two-hundredth carries it over
      {1517, 1000, 6.989541, 6},
  };
  for (const Expected& expected : table) {
    const Real loss_db = least_loss_db(expected.input, expected.output);
    EXPECT_NEAR(loss_db.value(), expected.loss, 1e-6);
    EXPECT_EQ(told_in_whole_db(loss_db), expected.told);
  }
}

TEST(Attenuator, FaultsThatAreNotGuarded) {
  EXPECT_THROW(least_loss_db(-50, -75), ArithmeticFault);  // a ratio below 1
  EXPECT_THROW(t_pad(50, 50, 1e-16), ArithmeticFault);     // K is 1
  EXPECT_THROW(t_pad(50, 50, 4000), ArithmeticFault);      // K leaves the range
}

TEST(BridgedT, VoltageRatioIsOfSinglePrecision) {
  struct Expected {
    double impedance;
    double loss;
    double shunt;
    double bridge;
  };
  const Expected table[] = {
      {50, 6, 50.238, 49.7631},
      {600, 20, 66.6667, 5400},
      {-50, -6, 100.238, 24.9406},
      {600, 60.5, 0.567, 634952.2705},  // in double precision 634952.2351
  };
  for (const Expected& expected : table) {
    const BridgedTPad pad = bridged_t_pad(expected.impedance, expected.loss);
    EXPECT_EQ(pad.series_ohm, expected.impedance);
    EXPECT_NEAR(pad.shunt_ohm.value(), expected.shunt, 1e-4);
    EXPECT_NEAR(pad.bridge_ohm.value(), expected.bridge, 1e-4);
  }
  EXPECT_THROW(bridged_t_pad(50, 1e-7), ArithmeticFault);  // K is 1 in single precision
  EXPECT_THROW(bridged_t_pad(50, 800), ArithmeticFault);   // beyond single precision
}

}  // namespace
}  // namespace eterlab::circuits
