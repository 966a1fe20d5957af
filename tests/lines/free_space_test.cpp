#include "lines/free_space.h"

#include <gtest/gtest.h>

namespace eterlab::lines {
namespace {

// Computed with forty decimal digits from 20 (log10(1000 d) + 1.099 - log10(300 / f)).
TEST(FreeSpace, Attenuation) {
  EXPECT_EQ(free_space_path(432, 1).attenuation_db, 85.15);          // 85.14725
  EXPECT_EQ(free_space_path(432, 2).attenuation_db, 91.17);          // 91.16785, 6.02 more
  EXPECT_EQ(free_space_path(300, 0.001).attenuation_db, 21.98);      // one wavelength
  EXPECT_EQ(free_space_path(10000, 384400).attenuation_db, 224.13);  // to the moon
  EXPECT_EQ(free_space_path(0.001, 0.001).attenuation_db, -87.56);   // -87.56243
  EXPECT_EQ(free_space_path(432, 0).distance_km, 0.001);             // not none: one metre
  EXPECT_EQ(free_space_path(432, 0).attenuation_db, 25.15);          // 25.14725
}

}  // namespace
}  // namespace eterlab::lines
