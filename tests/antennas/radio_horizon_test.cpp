#include "antennas/radio_horizon.h"

#include <gtest/gtest.h>

namespace eterlab::antennas {
namespace {

TEST(RadioHorizon, IsRoundedToWholeKilometres) {
  EXPECT_EQ(radio_horizon_km(100), 41);
  EXPECT_EQ(radio_horizon_km(5000), 292);
  EXPECT_EQ(radio_horizon_km(1234.5), 145);  // 144.899
  EXPECT_EQ(radio_horizon_km(0.01), 0);      // 0.412
}

// Heights whose distance is exactly 2.5 and 3.5 km, found by searching the doubles around
// (2.5 / 4.124)^2 and (3.5 / 4.124)^2.
TEST(RadioHorizon, TiesGoToTheEvenKilometre) {
  EXPECT_EQ(radio_horizon_km(0.36748761243357003), 2);
  EXPECT_EQ(radio_horizon_km(0.7202757203697973), 4);
}

}  // namespace
}  // namespace eterlab::antennas
