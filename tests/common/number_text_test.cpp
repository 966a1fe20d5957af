#include "common/number_text.h"

#include <gtest/gtest.h>

#include "common/regional_settings.h"

// By hand, one number for each rule; tests/fuzz goes through all others.

namespace eterlab {
namespace {

class NumberText : public ::testing::Test {
 protected:
  void SetUp() override { set_regional_settings({",", ".", 3, 3, 2}); }
  void TearDown() override { set_regional_settings({}); }
};

TEST_F(NumberText, FixedGroupsAndRoundsHalfAwayFromZeroOnDecimalDigits) {
  const std::tuple<double, int, const char*> table[] = {
      {1234.56, 1, "1.234,6"},
      {1.005, 2, "1,01"},  // the double is a little less
      {172.50000000000003, 0, "173"},
      {999.95, 1, "1.000,0"},
      {0, 3, "0,000"},
      {123, 0, "123"},
      {-0.04, 1, "0,0"},
      {-0.05, 1, "-0,1"},
      {1e15, 0, "1.000.000.000.000.000"},
  };
  for (const auto& [number, decimals, text] : table) {
    EXPECT_EQ(fixed(number, decimals), text);
  }
}

TEST_F(NumberText, PatternKeepsTheSeparatorWithoutDecimals) {
  const std::tuple<double, const char*, const char*> table[] = {
      {12, "#,##0.##", "12,"},     {1234.5, "#,##0.###", "1.234,5"},
      {1234.5, "#0.##", "1234,5"}, {-0.004, "#,##0.##", "0,"},
      {0.5, "#.##", ",5"},         {1234.5, "#,##0", "1.235"},
      {7, "0##.#0", "007,00"},  // a "#" between digits always written is one too
  };
  for (const auto& [number, mask, text] : table) {
    EXPECT_EQ(pattern(number, mask), text);
  }
}

TEST_F(NumberText, PlainIsTheShortestText) {
  const std::pair<double, const char*> table[] = {
      {1234.56, "1234,56"},         {-12, "-12"},        {0, "0"},
      {0.1 + 0.2, "0,3"},           {0.0001, "0,0001"},  {0.00002, "2E-05"},
      {999999999999999.9, "1E+15"}, {1.5e16, "1,5E+16"}, {-1.5e-100, "-1,5E-100"},
  };
  for (const auto& [number, text] : table) {
    EXPECT_EQ(plain(number), text);
  }
}

TEST_F(NumberText, SinglesHaveSevenDigits) {
  EXPECT_EQ(plain(Single{0.1}), "0,1");
  EXPECT_EQ(plain(Single{12345678}), "1,234568E+07");
  EXPECT_EQ(fixed(Single{12345678}, 1), "12.345.680,0");
  EXPECT_EQ(pattern(Single{0.1}, "#0.##"), "0,1");
}

TEST(Rounded, IsTheValueThatFixedShows) {
  EXPECT_EQ(rounded(1.005, 2), 1.01);
  EXPECT_EQ(rounded(-0.04, 1), 0);
  EXPECT_EQ(rounded(1.145), 1.15);
  EXPECT_EQ(rounded(Single{5.1351}, 2), 5.14);
  EXPECT_THROW(rounded(1.7976931348623157e308, 2), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab
