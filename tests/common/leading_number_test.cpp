#include "common/leading_number.h"

#include <gtest/gtest.h>

#include <string>

namespace eterlab {
namespace {

struct Reading {
  const char* text;
  double value;
};

TEST(LeadingNumber, ReadsWhatATextBeginsWith) {
  const Reading readings[] = {
      {"12", 12},
      {"-1.5", -1.5},
      {"+7", 7},
      {".5", 0.5},
      {"5.", 5},
      {"-.5e1", -5},
      {"3,5", 3},
      {"1.2.3", 1.2},
      {"1..2", 1},
      {"12abc", 12},
      {"1 5", 15},
      {"2 . 5", 2.5},
      {"\t- 1\n2", -12},
      {"1e3", 1000},
      {"1E+2", 100},
      {"1d-2", 0.01},
      {"1D2", 100},
      {"1 e 2", 100},
      {"12e", 12},
      {"12e+", 12},
      {"12ex", 12},
      {"1e2.5", 100},
      {"0.1", 0.1},
      {"1e-400", 0},
      {"1e-99999999999999999999", 0},
      {"0e99999999999999999999", 0},
  };
  for (const Reading& reading : readings) {
    EXPECT_EQ(leading_number(reading.text), Real{reading.value}) << reading.text;
  }
}

TEST(LeadingNumber, IsZeroWithoutANumber) {
  for (const char* text :
       {"", " ", "abc", ",5", "-", "+", ".", "-.", ".e5", "e5", "--1", "\u00a05"}) {
    EXPECT_EQ(leading_number(text), 0) << text;
  }
}

TEST(LeadingNumber, JudgesTheRangeByTheWholeNumber) {
  const std::string zeros(400, '0');
  EXPECT_EQ(leading_number("0." + zeros + "1e401"), 1);
  EXPECT_EQ(leading_number("1" + zeros + "e-400"), 1);
  EXPECT_EQ(leading_number("0." + zeros + "1e50"), 0);
  const std::string beyond[] = {"1e309", "-1e400", "1" + zeros, "1" + zeros + "e-10",
                                "1e99999999999999999999"};
  for (const std::string& text : beyond) {
    EXPECT_THROW(leading_number(text), ArithmeticFault) << text;
  }
}

}  // namespace
}  // namespace eterlab
