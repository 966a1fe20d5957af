#include "common/number_text.h"

#include <gtest/gtest.h>

#include "common/regional_settings.h"

namespace eterlab {
namespace {

class NumberText : public ::testing::Test {
 protected:
  NumberText() { set_regional_settings({",", ".", 3, 3, 2}); }
  ~NumberText() override { set_regional_settings({}); }
};

TEST_F(NumberText, FixedRoundsHalfAwayFromZeroOnDecimalDigits) {
  EXPECT_EQ(fixed(1234.56, 1), "1.234,6");
  EXPECT_EQ(fixed(1.25, 1), "1,3");
  EXPECT_EQ(fixed(-1.25, 1), "-1,3");
  EXPECT_EQ(fixed(1.005, 2), "1,01");  // the double is a little less
  EXPECT_EQ(fixed(2.675, 2), "2,68");
  EXPECT_EQ(fixed(172.50000000000003, 0), "173");
  EXPECT_EQ(fixed(0.5, 0), "1");
  EXPECT_EQ(fixed(0.49, 0), "0");
  EXPECT_EQ(fixed(0.05, 1), "0,1");
  EXPECT_EQ(fixed(999.95, 1), "1.000,0");
  EXPECT_EQ(fixed(0, 3), "0,000");
}

TEST_F(NumberText, FixedShowsNoMinusForWhatRoundsToZero) {
  EXPECT_EQ(fixed(-0.04, 1), "0,0");
  EXPECT_EQ(fixed(-0.05, 1), "-0,1");
  EXPECT_EQ(fixed(-0.0, 2), "0,00");
}

TEST_F(NumberText, FixedGroupsTheWholeNumber) {
  EXPECT_EQ(fixed(1234567, 0), "1.234.567");
  EXPECT_EQ(fixed(123456, 2), "123.456,00");
  EXPECT_EQ(fixed(123, 1), "123,0");
  EXPECT_EQ(fixed(-1234, 1), "-1.234,0");
  EXPECT_EQ(fixed(1e15, 0), "1.000.000.000.000.000");
}

TEST_F(NumberText, FixedWithoutDecimalsTakesTheRegionalDefault) {
  EXPECT_EQ(fixed(1.005), "1,01");
  set_regional_settings({".", ",", 3, 3, 3});
  EXPECT_EQ(fixed(1.005), "1.005");
}

TEST_F(NumberText, PatternKeepsTheSeparatorWithoutDecimals) {
  EXPECT_EQ(pattern(12, "#,##0.##"), "12,");
  EXPECT_EQ(pattern(1234.5, "#,##0.###"), "1.234,5");
  EXPECT_EQ(pattern(1234.5, "#0.##"), "1234,5");
  EXPECT_EQ(pattern(0.004, "#,##0.##"), "0,");
  EXPECT_EQ(pattern(-0.004, "#,##0.##"), "0,");
  EXPECT_EQ(pattern(131.9556, "##0.#"), "132,");
  EXPECT_EQ(pattern(0.5, "#.##"), ",5");
  EXPECT_EQ(pattern(7, "00.0#"), "07,0");
  EXPECT_EQ(pattern(7, "0##.#0"), "007,00");  // a "#" between digits always written is one too
  EXPECT_EQ(pattern(1234.5, "#,##0"), "1.235");
}

TEST_F(NumberText, PlainIsTheShortestText) {
  EXPECT_EQ(plain(1234.56), "1234,56");
  EXPECT_EQ(plain(0.5), "0,5");
  EXPECT_EQ(plain(-12), "-12");
  EXPECT_EQ(plain(0), "0");
  EXPECT_EQ(plain(0.1 + 0.2), "0,3");
  EXPECT_EQ(plain(1.0 / 3), "0,333333333333333");
  EXPECT_EQ(plain(0.0001), "0,0001");
  EXPECT_EQ(plain(0.00002), "2E-05");
  EXPECT_EQ(plain(123456789012345.0), "123456789012345");
  EXPECT_EQ(plain(999999999999999.9), "1E+15");
  EXPECT_EQ(plain(1.5e16), "1,5E+16");
  EXPECT_EQ(plain(-1.5e-100), "-1,5E-100");
}

TEST_F(NumberText, SinglesHaveSevenDigits) {
  EXPECT_EQ(plain(Single{0.1}), "0,1");
  EXPECT_EQ(plain(Single{1.0 / 3}), "0,3333333");
  EXPECT_EQ(plain(Single{1234567}), "1234567");
  EXPECT_EQ(plain(Single{12345678}), "1,234568E+07");
  EXPECT_EQ(fixed(Single{12345678}, 1), "12.345.680,0");
  EXPECT_EQ(pattern(Single{0.1}, "#0.##"), "0,1");
}

TEST_F(NumberText, OtherSeparatorsAndGroups) {
  set_regional_settings({".", "\u2019", 3, 3, 2});
  EXPECT_EQ(fixed(1234567.5, 1), "1\u2019234\u2019567.5");
  set_regional_settings({".", ",", 3, 2, 2});
  EXPECT_EQ(fixed(123456789, 0), "12,34,56,789");
  set_regional_settings({",", "", 3, 3, 2});
  EXPECT_EQ(fixed(1234567, 0), "1234567");
}

TEST(Rounded, IsTheValueThatFixedShows) {
  EXPECT_EQ(rounded(1.005, 2), 1.01);
  EXPECT_EQ(rounded(14.144, 2), 14.14);
  EXPECT_EQ(rounded(-0.04, 1), 0);
  EXPECT_EQ(rounded(99.96, 1), 100);
  EXPECT_EQ(rounded(1.145), 1.15);
  EXPECT_EQ(rounded(Single{5.1351}, 2), 5.14);
  EXPECT_EQ(rounded(1e300, 2), 1e300);
  EXPECT_THROW(rounded(1.7976931348623157e308, 2), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab
