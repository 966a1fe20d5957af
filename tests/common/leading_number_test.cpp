#include "common/leading_number.h"

#include <gtest/gtest.h>

#include <string>

namespace eterlab {
namespace {

void expect_number(double value, std::initializer_list<const char*> texts) {
  for (const char* text : texts) {
    EXPECT_EQ(leading_number(text), Real{value}) << text;
  }
}

TEST(LeadingNumber, ReadsWhatATextBeginsWith) {
  expect_number(12, {"12", "12abc", "12e", "12e+", "12ex", "+12", "12."});
  expect_number(-12, {"\t- 1\n2", "-12", "-.12e2"});
  expect_number(1.2, {"1.2.3", "1 . 2"});
  expect_number(1, {"1..2", "1,2"});
  expect_number(100, {"1E+2", "1D2", "1 e 2", "1e2.5"});
  expect_number(0.1, {".1", "0.1", "1d-1"});
  expect_number(0, {"1e-400", "1e-99999999999999999999", "0e99999999999999999999"});
  for (const char* text :
       {"", " ", "abc", ",5", "-", "+", ".", "-.", ".e5", "e5", "--1", "\u00a05"}) {
    EXPECT_EQ(leading_number(text), 0) << text;
    EXPECT_FALSE(leading_number_if_any(text)) << text;
  }
  EXPECT_TRUE(leading_number_if_any("-0"));
}

TEST(LeadingNumber, JudgesTheRangeByTheWholeNumber) {
  const std::string zeros(400, '0');
  EXPECT_EQ(leading_number("0." + zeros + "1e401"), 1);
  EXPECT_EQ(leading_number("1" + zeros + "e-400"), 1);
  EXPECT_EQ(leading_number("0." + zeros + "1e50"), 0);
  for (const std::string& text : {std::string{"1e309"}, std::string{"-1e400"}, "1" + zeros,
                                  "1" + zeros + "e-10", std::string{"1e99999999999999999999"}}) {
    EXPECT_THROW(leading_number(text), ArithmeticFault) << text;
  }
}

}  // namespace
}  // namespace eterlab
