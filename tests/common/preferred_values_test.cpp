#include "common/preferred_values.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "common/leading_number.h"
#include "support/kind_of_fault.h"

namespace eterlab {
namespace {

using Kind = ArithmeticFault::Kind;
using test::kind_of_fault;

constexpr Series e6 = Series::e6;
constexpr Series e12 = Series::e12;
constexpr Series e24 = Series::e24;

// The tables of IEC 60063.
const std::pair<Series, std::vector<const char*>> published[] = {
    {e6, {"1.0", "1.5", "2.2", "3.3", "4.7", "6.8"}},
    {e12, {"1.0", "1.2", "1.5", "1.8", "2.2", "2.7", "3.3", "3.9", "4.7", "5.6", "6.8", "8.2"}},
    {e24, {"1.0", "1.1", "1.2", "1.3", "1.5", "1.6", "1.8", "2.0", "2.2", "2.4", "2.7", "3.0",
           "3.3", "3.6", "3.9", "4.3", "4.7", "5.1", "5.6", "6.2", "6.8", "7.5", "8.2", "9.1"}},
};

TEST(PreferredValues, AreThoseOfTheStandardInEveryDecade) {
  for (const auto& [series, mantissas] : published) {
    Real previous = 0;
    for (int decade = -307; decade <= 307; ++decade) {
      for (const char* mantissa : mantissas) {
        const std::string text = mantissa + ("e" + std::to_string(decade));
        const Real value = leading_number(text);
        ASSERT_EQ(nearest_preferred(value, series), value) << text;
        ASSERT_EQ(next_preferred_up(value, series), value) << text;
        ASSERT_EQ(next_preferred_down(value, series), value) << text;
        if (previous > 0) {  // and no other between two neighbours
          const Real between = sqrt(previous) * sqrt(value);
          ASSERT_EQ(next_preferred_up(between, series), value) << text;
          ASSERT_EQ(next_preferred_down(between, series), previous) << text;
          ASSERT_EQ(nearest_preferred(between * (1 + 1e-12), series), value) << text;
          ASSERT_EQ(nearest_preferred(between * (1 - 1e-12), series), previous) << text;
        }
        previous = value;
      }
    }
  }
}

// By hand: the limit between 3.3 and 4.7 is the root of their product, 3.938; their mean is 4.
TEST(PreferredValues, AreFoundByRatioAndWithLittleSlack) {
  EXPECT_EQ(nearest_preferred(3.95e-6, e6), 4.7e-6);
  EXPECT_EQ(nearest_preferred(3.93e-6, e6), 3.3e-6);
  EXPECT_EQ(nearest_preferred(8.3, e6), 10);
  EXPECT_EQ(nearest_preferred(8.2, e6), 6.8);
  EXPECT_EQ(nearest_preferred(999999999999999.9, e24), 1e15);
  EXPECT_EQ(next_preferred_up(470 * (1 + 0.9e-9), e12), 470);
  EXPECT_EQ(next_preferred_up(470 * (1 + 1.1e-9), e12), 560);
  EXPECT_EQ(next_preferred_up(91.1, e24), 100);
  EXPECT_EQ(next_preferred_up(1000 * (1 + 0.9e-9), e24), 1000);
  EXPECT_EQ(next_preferred_down(470 * (1 - 0.9e-9), e12), 470);
  EXPECT_EQ(next_preferred_down(470 * (1 - 1.1e-9), e12), 390);
  EXPECT_EQ(next_preferred_down(1000 * (1 - 0.9e-9), e24), 1000);
  EXPECT_EQ(next_preferred_down(1000 * (1 - 1.1e-9), e24), 910);
}

TEST(PreferredValues, ArePositiveAndWithinTheRange) {
  for (const auto& find : {nearest_preferred, next_preferred_up, next_preferred_down}) {
    EXPECT_EQ(kind_of_fault([&] { find(0, e12); }), Kind::invalid_argument);
    EXPECT_EQ(kind_of_fault([&] { find(-4.7, e12); }), Kind::invalid_argument);
  }
  EXPECT_EQ(next_preferred_down(1.7976931348623157e308, e24), 1.6e308);
  EXPECT_EQ(kind_of_fault([] { next_preferred_up(1.7e308, e24); }), Kind::overflow);
}

}  // namespace
}  // namespace eterlab
