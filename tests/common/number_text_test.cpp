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

TEST_F(NumberText, SigKeepsSignificantDigits) {
  const std::tuple<double, int, const char*> table[] = {
      {0.00012346, 4, "0,0001235"},
      {1234567, 4, "1235000"},
      {-2.5, 1, "-3"},
      {1.005, 3, "1,01"},  // the double is a little less
      {0.1 + 0.2, 15, "0,3"},
      {0.1 + 0.2, 17, "0,3"},
      {1.2, 4, "1,2"},
      {999.96, 4, "1000"},
      {9.9996e-5, 4, "0,0001"},
      {9.9994e-5, 4, "9,999E-05"},
      {999999999999996, 14, "1E+15"},
      {123456789e300, 2, "1,2E+308"},
      {1.7976931348623157e308, 3, "1,8E+308"},  // which no double holds
      {0, 3, "0"},
  };
  for (const auto& [number, digits, text] : table) {
    EXPECT_EQ(sig(number, digits), text);
  }
}

TEST_F(NumberText, EngTakesThePrefixOfTheUnit) {
  const std::tuple<double, const char*, int, const char*> table[] = {
      {2500, "Ohm", 4, "2,5 kOhm"},
      {33.2149e-6, "F", 4, "33,21 \u00b5F"},
      {70.710678, "V", 4, "70,71 V"},
      {-0.00333333, "A", 3, "-3,33 mA"},
      {0, "Ohm", 4, "0 Ohm"},
      {-0.0, "F", 4, "0 F"},
      {0.1 + 0.2, "W", 15, "300 mW"},
      {1.1e-12 + 2.2e-12, "H", 15, "3,3 pH"},  // 3.3000000000000003E-12
      {47e-9, "F", 2, "47 nF"},
      {999.94, "V", 4, "999,9 V"},
      {999.96, "V", 4, "1 kV"},
      {0.99996, "V", 4, "1 V"},
      {0.99994, "V", 4, "999,9 mV"},
      {123456, "Hz", 2, "120 kHz"},
      {14.2e6, "Hz", 4, "14,2 MHz"},
      {2.4e9, "Hz", 4, "2,4 GHz"},
      {3e12, "Hz", 4, "3000 GHz"},
      {1e30, "Hz", 4, "1E+21 GHz"},
      {1.5e-15, "F", 4, "1,5 fF"},
      {1.5e-16, "F", 4, "0,15 fF"},
      {1.5e-20, "F", 4, "1,5E-05 fF"},
      {999.6e-6, "F", 4, "999,6 \u00b5F"},
      {999.6e-6, "F", 3, "1000 \u00b5F"},
      {4700e-6, "F", 4, "4700 \u00b5F"},
      {0.47, "F", 4, "470000 \u00b5F"},
      {0.999996, "F", 4, "1 F"},
      {1500, "F", 4, "1500 F"},
      {4700e-6, "H", 4, "4,7 mH"},
      {0.0015, "s", 4, "1,5 ms"},
      {1500, "s", 4, "1500 s"},
      {384.4e6, "m", 4, "384400 km"},
      {2e6, "g", 4, "2000 kg"},
      {2.5e-3, "m", 4, "2,5 mm"},
  };
  for (const auto& [number, unit, digits, text] : table) {
    EXPECT_EQ(eng(number, unit, digits), text);
  }
  EXPECT_EQ(eng(1 / Real{3}, "V"), "333,3 mV");
}

TEST_F(NumberText, AsTypedHasAPointAndNoGroups) {
  EXPECT_EQ(as_typed(1.0006), "1.0006");
  EXPECT_EQ(as_typed(-1234567.5), "-1234567.5");
  EXPECT_EQ(as_typed(1.5e-12), "1.5E-12");
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
