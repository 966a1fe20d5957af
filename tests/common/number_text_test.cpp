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

TEST_F(NumberText, FixedGroupsAndRoundsHalfAwayFromZeroOnDecimalDigits) {
  const std::tuple<double, int, const char*> table[] = {
      {1234.56, 1, "1.234,6"},   {1.25, 1, "1,3"},       {-1.25, 1, "-1,3"},
      {2.675, 2, "2,68"},        {0.5, 0, "1"},          {0.49, 0, "0"},
      {0.05, 1, "0,1"},          {999.95, 1, "1.000,0"}, {0, 3, "0,000"},
      {1234567, 0, "1.234.567"}, {123, 1, "123,0"},      {-1234, 1, "-1.234,0"},
      {-0.04, 1, "0,0"},         {-0.05, 1, "-0,1"},     {-0.0, 2, "0,00"}};
  for (const auto& [number, decimals, text] : table) {
    EXPECT_EQ(fixed(number, decimals), text) << number;
  }
  EXPECT_EQ(fixed(1.005, 2), "1,01");  // the double is a little less
  EXPECT_EQ(fixed(172.50000000000003, 0), "173");
  EXPECT_EQ(fixed(1e15, 0), "1.000.000.000.000.000");
}

TEST_F(NumberText, PatternKeepsTheSeparatorWithoutDecimals) {
  const std::tuple<double, const char*, const char*> table[] = {
      {12, "#,##0.##", "12,"},     {1234.5, "#,##0.###", "1.234,5"},
      {1234.5, "#0.##", "1234,5"}, {0.004, "#,##0.##", "0,"},
      {-0.004, "#,##0.##", "0,"},  {131.9556, "##0.#", "132,"},
      {0.5, "#.##", ",5"},         {7, "00.0#", "07,0"},
      {1234.5, "#,##0", "1.235"}};
  for (const auto& [number, mask, text] : table) {
    EXPECT_EQ(pattern(number, mask), text) << number;
  }
  EXPECT_EQ(pattern(7, "0##.#0"), "007,00");  // a "#" between digits always written is one too
}

TEST_F(NumberText, PlainIsTheShortestText) {
  const std::pair<double, const char*> table[] = {
      {1234.56, "1234,56"},    {0.5, "0,5"},       {-12, "-12"},       {0, "0"},
      {0.1 + 0.2, "0,3"},      {0.0001, "0,0001"}, {0.00002, "2E-05"}, {1.5e16, "1,5E+16"},
      {-1.5e-100, "-1,5E-100"}};
  for (const auto& [number, text] : table) {
    EXPECT_EQ(plain(number), text);
  }
  EXPECT_EQ(plain(1.0 / 3), "0,333333333333333");
  EXPECT_EQ(plain(123456789012345.0), "123456789012345");
  EXPECT_EQ(plain(999999999999999.9), "1E+15");
}

TEST_F(NumberText, SinglesHaveSevenDigits) {
  const std::pair<double, const char*> table[] = {
      {0.1, "0,1"}, {1.0 / 3, "0,3333333"}, {1234567, "1234567"}, {12345678, "1,234568E+07"}};
  for (const auto& [number, text] : table) {
    EXPECT_EQ(plain(Single{number}), text);
  }
  EXPECT_EQ(fixed(Single{12345678}, 1), "12.345.680,0");
  EXPECT_EQ(pattern(Single{0.1}, "#0.##"), "0,1");
}

TEST_F(NumberText, OfOtherRegions) {
  EXPECT_EQ(fixed(1.005), "1,01");
  set_regional_settings({".", ",", 3, 3, 3});
  EXPECT_EQ(fixed(1.005), "1.005");
  set_regional_settings({".", "\u2019", 3, 3, 2});
  EXPECT_EQ(fixed(1234567.5, 1), "1\u2019234\u2019567.5");
  set_regional_settings({".", ",", 3, 2, 2});
  EXPECT_EQ(fixed(123456789, 0), "12,34,56,789");
  set_regional_settings({",", "", 3, 3, 2});
  EXPECT_EQ(fixed(1234567, 0), "1234567");
}

TEST(Rounded, IsTheValueThatFixedShows) {
  const std::tuple<double, int, double> table[] = {
      {1.005, 2, 1.01}, {14.144, 2, 14.14}, {-0.04, 1, 0}, {99.96, 1, 100}, {1e300, 2, 1e300}};
  for (const auto& [number, decimals, value] : table) {
    EXPECT_EQ(rounded(number, decimals), value);
  }
  EXPECT_EQ(rounded(1.145), 1.15);
  EXPECT_EQ(rounded(Single{5.1351}, 2), 5.14);
  EXPECT_THROW(rounded(1.7976931348623157e308, 2), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab
