#include "lines/free_space.h"

#include <gtest/gtest.h>

namespace eterlab::lines {
namespace {

// Computed with forty decimal digits from 20 (log10(1000 d) + 1.099 - log10(300 / f)).
TEST(FreeSpace, Attenuation) {
  struct Expected {
    double frequency_mhz;
    double distance_km;
    double attenuation_db;
  };
  const Expected table[] = {
      {145, 10, 95.66},         // 95.66494
      {432, 1, 85.15},          // 85.14725
      {432, 2, 91.17},          // 91.16785, 6.02 more
      {300, 0.001, 21.98},      // one wavelength
      {2400, 0.1, 80.04},       // 80.04180
      {145.5, 1234.5, 137.52},  // 137.52466
      {10000, 384400, 224.13},  // to the moon
      {0.001, 0.001, -87.56},   // -87.56243: nearer than the formula means anything
  };
  for (const Expected& expected : table) {
    const FreeSpacePath path = free_space_path(expected.frequency_mhz, expected.distance_km);
    EXPECT_EQ(path.attenuation_db, expected.attenuation_db) << expected.frequency_mhz;
    EXPECT_EQ(path.distance_km, expected.distance_km);
  }
}

TEST(FreeSpace, NoDistanceIsOneMetre) {
  EXPECT_EQ(free_space_path(432, 0).distance_km, 0.001);
  EXPECT_EQ(free_space_path(432, 0).attenuation_db, 25.15);  // 25.14725
}

}  // namespace
}  // namespace eterlab::lines
