#include "circuits/lc_filters.h"

#include <gtest/gtest.h>

namespace eterlab::circuits {
namespace {

// All expected values were computed from the formulas in 40 decimal digits, outside this program.

TEST(LcFilters, ThreeElements) {
  struct Expected {
    FilterElements (*compute)(FilterForm, Real, Real);
    FilterForm form;
    double cutoff_mhz;
    double impedance_ohm;
    double inductance_uh;
    float capacitance_pf;
  };
  const Expected table[] = {
      {low_pass, FilterForm::pi, 7, 50, 2.27142857142857, 454.3F},
      {low_pass, FilterForm::tee, 7, 50, 1.13571428571429, 908.6F},
      {high_pass, FilterForm::pi, 7, 50, 1.13571428571429, 227.4F},
      {high_pass, FilterForm::tee, 7, 50, 0.568571428571429, 454.3F},
      {low_pass, FilterForm::tee, 145, 75, 0.0822413793103448, 29.2F},
      {high_pass, FilterForm::pi, 0.05, 300, 954, 5306.7F},
  };
  for (const Expected& expected : table) {
    const FilterElements elements =
        expected.compute(expected.form, expected.cutoff_mhz, expected.impedance_ohm);
    EXPECT_NEAR(elements.inductance_uh.value(), expected.inductance_uh, 1e-12);
    EXPECT_EQ(elements.capacitance_pf.value(), expected.capacitance_pf);
  }
  EXPECT_THROW(low_pass(FilterForm::pi, 0, 50), ArithmeticFault);
}

TEST(LcFilters, TrapLowPass) {
  const TrapLowPass filter = trap_low_pass(7, 50);
  EXPECT_NEAR(filter.trap_inductance_uh.value(), 0.682438580527753, 1e-12);
  EXPECT_NEAR(filter.trap_capacitance_pf.value(), 245.677888989991, 1e-10);
  EXPECT_EQ(filter.shunt_capacitance_pf, 273);  // 272.975
  EXPECT_EQ(trap_low_pass(0.05, 300).shunt_capacitance_pf, 6369.4);
}

TEST(LcFilters, BandPass) {
  struct Expected {
    double impedance_ohm;
    double edges_mhz[2];
    double quality_factor;
    double series_uh;
    double series_pf;
    double shunt_uh;
    double shunt_pf;
  };
  const Expected table[] = {
      {50, {7, 7.3}, 23.8333333333333, 53.1, 9.3, 0.023, 21231.4},
      {50, {3.5, 4}, 7.5, 31.8, 56.9, 0.142, 12738.9},
      {300, {9.5, 10.5}, 10, 95.5, 2.7, 0.239, 1061.6},
      {50, {4, 3.5}, -7.5, -31.8, -56.9, -0.142, -12738.9},
  };
  for (const Expected& expected : table) {
    const BandPass filter =
        band_pass(expected.impedance_ohm, expected.edges_mhz[0], expected.edges_mhz[1]);
    EXPECT_NEAR(filter.quality_factor.value(), expected.quality_factor, 1e-10);
    EXPECT_EQ(filter.series_inductance_uh, expected.series_uh);
    EXPECT_EQ(filter.series_capacitance_pf, expected.series_pf);
    EXPECT_EQ(filter.shunt_inductance_uh, expected.shunt_uh);
    EXPECT_EQ(filter.shunt_capacitance_pf, expected.shunt_pf);
  }
  EXPECT_THROW(band_pass(50, 7, 7), ArithmeticFault);
}

TEST(LcFilters, HalvesComeFromTheRoundedValues) {
  const SplitBandPass halves = split(band_pass(50, 7, 7.3));
  EXPECT_EQ(halves.series_inductance_uh, 26.55);  // unrounded: 26.539
  EXPECT_EQ(halves.series_capacitance_pf, 18.6);  // unrounded: 18.697
  EXPECT_EQ(halves.shunt_inductance_uh, 0.046);   // unrounded: 0.0467
  EXPECT_EQ(halves.shunt_capacitance_pf, 10615.7);
}

}  // namespace
}  // namespace eterlab::circuits
