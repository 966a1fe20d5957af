#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "resistors/pads/handbook_pads.h"
#include "resistors/pads/resistive_pads.h"

// What the windows leave open: digits that they do not show, ties, limits and faults.

namespace eterlab::resistors {
namespace {

TEST(HandbookPads, LeastLossAndTies) {
  EXPECT_EQ(told_in_whole_db(handbook_least_loss_db(1518, 1000)),
            7);  // a two-hundredth carries 6.9961 over
  EXPECT_EQ(told_in_whole_db(handbook_least_loss_db(1517, 1000)), 6);  // 6.9895
  // 2999999.97 between the two nearest single-precision numbers, a quarter apart.
  EXPECT_EQ(handbook_pi_pad(600, 600, 80).series_ohm.value(), 3000000.0F);
  EXPECT_EQ(handbook_minimum_loss_pad(12345, 50).loss_db.value(), 29.94F);
}

/// A ladder of resistors, solved from its load towards its input.
class Ladder {
 public:
  explicit Ladder(double load_ohm) : input_ohm_{load_ohm}, load_ohm_{load_ohm} {}

  Ladder& series(double ohm) {
    voltage_ratio_ *= 1 + ohm / input_ohm_;
    input_ohm_ += ohm;
    return *this;
  }
  Ladder& shunt(double ohm) {
    input_ohm_ = 1 / (1 / input_ohm_ + 1 / ohm);
    return *this;
  }

  [[nodiscard]] double input_ohm() const { return input_ohm_; }
  [[nodiscard]] double loss_db() const {
    return 10 * std::log10(voltage_ratio_ * voltage_ratio_ * load_ohm_ / input_ohm_);
  }

 private:
  double input_ohm_;
  double load_ohm_;
  double voltage_ratio_ = 1;
};

void expect_matched(const Ladder& ladder, double input_ohm, double loss_db) {
  EXPECT_NEAR(ladder.input_ohm() / input_ohm, 1, 1e-12);
  EXPECT_NEAR(ladder.loss_db() / loss_db, 1, 1e-12);
}

double or_open(const std::optional<Real>& ohm) {
  return ohm ? ohm->value() : std::numeric_limits<double>::infinity();
}

TEST(ResistivePads, CellsKeepTheirImpedanceAndLoseWhatIsWanted) {
  for (const double impedance_ohm : {1e-12, 4.0, 600.0, 1e12}) {
    for (const double loss_db : {0.1, 3.0, 20.0, 100.0}) {
      SCOPED_TRACE(loss_db);
      const auto of = [&](Cell cell) { return attenuator_cell(cell, impedance_ohm, loss_db); };
      const auto [t_ohm, t_shunt_ohm] = of(Cell::t);
      expect_matched(Ladder{impedance_ohm}
                         .series(t_ohm.value())
                         .shunt(t_shunt_ohm.value())
                         .series(t_ohm.value()),
                     impedance_ohm, loss_db);
      const auto [pi_ohm, pi_shunt_ohm] = of(Cell::pi);
      expect_matched(Ladder{impedance_ohm}
                         .shunt(pi_shunt_ohm.value())
                         .series(pi_ohm.value())
                         .shunt(pi_shunt_ohm.value()),
                     impedance_ohm, loss_db);
      const auto [l_ohm, l_shunt_ohm] = of(Cell::l);
      expect_matched(Ladder{impedance_ohm}.shunt(l_shunt_ohm.value()).series(l_ohm.value()),
                     impedance_ohm, loss_db);
    }
  }
}

// To the first order the resistors are in proportion to the loss, where no ladder can be solved.
TEST(ResistivePads, CellsKeepTheirDigitsAtTheSmallestLoss) {
  const double neper = 1e-12 * std::log(10) / 20;
  const auto [t_ohm, t_shunt_ohm] = attenuator_cell(Cell::t, 50, 1e-12);
  EXPECT_NEAR(t_ohm.value() / (25 * neper), 1, 1e-12);
  EXPECT_NEAR(t_shunt_ohm.value() / (50 / neper), 1, 1e-12);
  EXPECT_NEAR(dissipated_share(1e-12).value() / (2 * neper), 1, 1e-12);
}

TEST(ResistivePads, BalancedPadsMatchBothEnds) {
  const double table[][3] = {{600, 300, 15},  {600, 300, 7.7}, {300, 300, 0.5}, {1e12, 1e12, 100},
                             {50, 49.99, 40}, {1e9, 1, 100},   {75, 50, 5.73},  {1e-9, 1e-12, 50}};
  for (const auto& [input_ohm, output_ohm, loss_db] : table) {
    SCOPED_TRACE(input_ohm);
    const HPad h = h_pad(input_ohm, output_ohm, loss_db);
    const double in_ohm = 2 * h.series_in_ohm.value();
    const double out_ohm = 2 * h.series_out_ohm.value();
    const double shunt_ohm = h.shunt_ohm.value();
    const OPad o = o_pad(input_ohm, output_ohm, loss_db);
    const double series_ohm = 2 * o.series_ohm.value();
    expect_matched(Ladder{output_ohm}.series(out_ohm).shunt(shunt_ohm).series(in_ohm), input_ohm,
                   loss_db);
    expect_matched(Ladder{input_ohm}.series(in_ohm).shunt(shunt_ohm).series(out_ohm), output_ohm,
                   loss_db);
    expect_matched(Ladder{output_ohm}
                       .shunt(or_open(o.shunt_out_ohm))
                       .series(series_ohm)
                       .shunt(or_open(o.shunt_in_ohm)),
                   input_ohm, loss_db);
    expect_matched(Ladder{input_ohm}
                       .shunt(or_open(o.shunt_in_ohm))
                       .series(series_ohm)
                       .shunt(or_open(o.shunt_out_ohm)),
                   output_ohm, loss_db);
  }
}

// The L of two resistors that has the least loss: R = sqrt(ZI (ZI - ZO)) in series and
// ZI ZO / R across the output.
TEST(ResistivePads, AtTheLeastLossOneResistorIsGone) {
  const double table[][2] = {{600, 300}, {300, 50}, {1e12, 1}, {50.01, 50}, {1e-6, 1e-12}};
  for (const auto& [input_ohm, output_ohm] : table) {
    SCOPED_TRACE(input_ohm);
    const double series_ohm = std::sqrt(input_ohm * (input_ohm - output_ohm));
    const double shunt_ohm = input_ohm * output_ohm / series_ohm;
    const double least_db = least_loss_db(input_ohm, output_ohm).value();
    expect_matched(Ladder{output_ohm}.shunt(shunt_ohm).series(series_ohm), input_ohm, least_db);
    for (const double loss_db : {least_db, least_db - least_loss_slack_db}) {
      const HPad h = h_pad(input_ohm, output_ohm, loss_db);
      EXPECT_EQ(h.series_out_ohm, 0);
      EXPECT_NEAR(h.series_in_ohm.value() / (series_ohm / 2), 1, 1e-7);
      EXPECT_NEAR(h.shunt_ohm.value() / shunt_ohm, 1, 1e-7);
      const OPad o = o_pad(input_ohm, output_ohm, loss_db);
      EXPECT_EQ(o.shunt_in_ohm, std::nullopt);
      ASSERT_TRUE(o.shunt_out_ohm.has_value());
      EXPECT_NEAR(o.shunt_out_ohm->value() / shunt_ohm, 1, 1e-7);
      EXPECT_NEAR(o.series_ohm.value() / (series_ohm / 2), 1, 1e-7);
    }
  }
  EXPECT_EQ(least_loss_db(50, 50), 0);
}

}  // namespace
}  // namespace eterlab::resistors
