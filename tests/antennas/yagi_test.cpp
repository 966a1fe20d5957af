#include "antennas/yagi.h"

#include <gtest/gtest.h>

namespace eterlab::antennas {
namespace {

struct Expected {
  double length_cm;
  double spacing_cm;
};

template <std::size_t N>
void expect(const std::array<YagiElement, N>& elements, const Expected (&expected)[N]) {
  for (std::size_t i = 0; i < N; ++i) {
    EXPECT_EQ(elements[i].length_cm, expected[i].length_cm) << i;
    EXPECT_EQ(elements[i].spacing_cm, expected[i].spacing_cm) << i;
  }
}

// Length constants and fractions of 30000 over the frequency, rounded by hand.
TEST(Yagi, ThreeElements) {
  expect(three_element_yagi(28.5), {{521, 0}, {495, 211}, {470, 105}});
  expect(three_element_yagi(1000), {{15, 0}, {14, 6}, {13, 3}});
  expect(three_element_yagi(0.5), {{29700, 0}, {28200, 12000}, {26800, 6000}});
}

TEST(Yagi, FiveElements) {
  expect(five_element_yagi(28.5), {{526, 0}, {498, 211}, {467, 105}, {460, 158}, {453, 211}});
  expect(five_element_yagi(144.5), {{104, 0}, {98, 42}, {92, 21}, {91, 31}, {89, 42}});
  // 4.5 cm of spacing are rounded away from zero.
  expect(five_element_yagi(1000), {{15, 0}, {14, 6}, {13, 3}, {13, 5}, {13, 6}});
}

}  // namespace
}  // namespace eterlab::antennas
