#include <gtest/gtest.h>

#include "resistors/pads/handbook_pads.h"

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

}  // namespace
}  // namespace eterlab::resistors
