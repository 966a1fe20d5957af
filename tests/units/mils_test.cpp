#include "units/mils.h"

#include <gtest/gtest.h>

namespace eterlab::units {
namespace {

TEST(Mils, FactorsAreNotQuiteReciprocal) {
  EXPECT_EQ(mils_from_mm(1), 39.3700787);
  EXPECT_DOUBLE_EQ(mils_from_mm(3).value(), 118.1102361);
  EXPECT_DOUBLE_EQ(metric_from_mils(39.3700787).mm.value(), 0.99999999898);
}

TEST(Mils, MetricLength) {
  const MetricLength metric = metric_from_mils(62.5);
  EXPECT_DOUBLE_EQ(metric.mm.value(), 1.5875);
  EXPECT_DOUBLE_EQ(metric.micrometres.value(), 1587.5);
}

}  // namespace
}  // namespace eterlab::units
