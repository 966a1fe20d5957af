#include "circuits/lc_filters.h"

#include <gtest/gtest.h>

namespace eterlab::circuits {
namespace {

// All expected values were computed from the formulas in 40 decimal digits, outside this program.

void expect(const FilterElements& elements, double inductance_uh, float capacitance_pf) {
  EXPECT_NEAR(elements.inductance_uh.value(), inductance_uh, 1e-12);
  EXPECT_EQ(elements.capacitance_pf.value(), capacitance_pf);
}

TEST(LcFilters, ThreeElements) {
  expect(low_pass(FilterForm::pi, 7, 50), 2.27142857142857, 454.3F);
  expect(low_pass(FilterForm::tee, 145, 75), 0.0822413793103448, 29.2F);
  expect(high_pass(FilterForm::pi, 0.05, 300), 954, 5306.7F);
  expect(high_pass(FilterForm::tee, 7, 50), 0.568571428571429, 454.3F);
}

TEST(LcFilters, TrapLowPass) {
  const TrapLowPass filter = trap_low_pass(7, 50);
  EXPECT_NEAR(filter.trap_inductance_uh.value(), 0.682438580527753, 1e-12);
  EXPECT_NEAR(filter.trap_capacitance_pf.value(), 245.677888989991, 1e-10);
  EXPECT_EQ(filter.shunt_capacitance_pf, 273);  // 272.975
}

TEST(LcFilters, HalvesOfABandPassComeFromItsRoundedValues) {
  const BandPass filter = band_pass(50, 7, 7.3);
  EXPECT_NEAR(filter.quality_factor.value(), 23.8333333333333, 1e-10);
  const SplitBandPass halves = split(filter);
  EXPECT_EQ(halves.series_inductance_uh, 26.55);  // unrounded: 26.539
  EXPECT_EQ(halves.series_capacitance_pf, 18.6);  // unrounded: 18.697
  EXPECT_EQ(halves.shunt_inductance_uh, 0.046);   // unrounded: 0.0467
  EXPECT_EQ(halves.shunt_capacitance_pf, 10615.7);
}

}  // namespace
}  // namespace eterlab::circuits
