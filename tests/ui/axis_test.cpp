#include "ui/axis.h"

#include <gtest/gtest.h>

#include <cmath>

#include "common/regional_settings.h"
#include "ui/curve.h"

// By hand.

namespace eterlab {
namespace {

using ui::Axis;
using ui::Interval;
using ui::Ruler;
using ui::Scale;

class PlotAxis : public ::testing::Test {
 protected:
  void SetUp() override { set_regional_settings({",", ".", 3, 3, 2}); }
  void TearDown() override { set_regional_settings({}); }
};

/// The texts of its ticks, "." for one without.
std::string ticks(const Ruler& ruler, int texts) {
  std::string all;
  for (const ui::Tick& tick : ruler.ticks(texts)) {
    all += (all.empty() ? "" : " ") + (tick.text.empty() ? "." : tick.text);
  }
  return all;
}

TEST_F(PlotAxis, TicksStandAtRoundValues) {
  const Axis linear{"", "MHz"};
  const Axis logarithmic{"", "MHz", Scale::logarithmic};
  const std::tuple<Axis, Interval, int, const char*> table[] = {
      {linear, {0, 10}, 5, "0 2 4 6 8 10"},
      {linear, {0, 10}, 4, "0 5 10"},
      {linear, {-1, 1}, 4, "-1 -0,5 0 0,5 1"},
      {linear, {0.1, 0.7}, 6, "0,1 0,2 0,3 0,4 0,5 0,6 0,7"},
      {linear, {13.93, 14.41}, 5, "14 14,1 14,2 14,3 14,4"},
      {linear, {1e6, 1e6 + 3}, 3, "1000000 1000001 1000002 1000003"},
      {logarithmic, {1, 100}, 2, "1 . . . . . . . . 10 . . . . . . . . 100"},
      {logarithmic, {1, 20}, 6, "1 2 . . 5 . . . . 10 20"},
      {logarithmic, {0.3, 4}, 2, ". . . . . . . 1 . . ."},
      {logarithmic, {1e-3, 1e6}, 5, "0,01 1 100 10000 1000000"},
      {logarithmic, {7, 7.3}, 3, "7 7,1 7,2 7,3"},
      {{"", "Hz", Scale::logarithmic},
       {1e4, 1e7},
       4,
       "10 k . . . . . . . . 100 k . . . . . . . . 1 M . . . . . . . . 10 M"},
      {{"", "F"}, {0, 1e-10}, 2, "0 50 p 100 p"},
      {{"", ""}, {0, 0.002}, 2, "0 0,001 0,002"},
      {{.title = "", .unit = "dB", .step = 3}, {-10, 0}, 2, "-9 -6 -3 0"},
  };
  for (const auto& [axis, range, texts, expected] : table) {
    EXPECT_EQ(ticks(Ruler{axis, range}, texts), expected);
  }
}

TEST_F(PlotAxis, ValuesStandByScaleAndDirection) {
  const std::tuple<Scale, bool, double, double> table[] = {
      {Scale::linear, false, 25.75, 0.25},
      {Scale::linear, true, 25.75, 0.75},
      {Scale::logarithmic, false, 10, 0.5},
      {Scale::logarithmic, true, 1, 1},
  };
  for (const auto& [scale, is_reversed, value, share] : table) {
    const Ruler ruler{{"", "", scale, {}, is_reversed}, {1, 100}};
    EXPECT_NEAR(ruler.share(value), share, 1e-12) << value;
    EXPECT_NEAR(ruler.value(share), value, 1e-12) << value;
  }
  EXPECT_TRUE(std::isnan(ui::share_of(0, {1, 100}, Scale::logarithmic)));
}

TEST_F(PlotAxis, RangesGrowToRoundValues) {
  const std::tuple<Interval, Scale, Interval> table[] = {
      {{0.3, 9.7}, Scale::linear, {0, 10}},       {{-43, 1.2}, Scale::linear, {-50, 10}},
      {{0, 10}, Scale::linear, {0, 10}},          {{50, 50}, Scale::linear, {0, 100}},
      {{0, 0}, Scale::linear, {-1, 1}},           {{-8, -8}, Scale::linear, {-20, 0}},
      {{0.3, 40}, Scale::logarithmic, {0.2, 50}}, {{2, 1000}, Scale::logarithmic, {2, 1000}},
      {{5, 5}, Scale::logarithmic, {0.5, 50}},
  };
  for (const auto& [range, scale, expected] : table) {
    const Interval rounded = ui::rounded_out(range, scale);
    EXPECT_DOUBLE_EQ(rounded.from, expected.from) << range.from << ' ' << range.to;
    EXPECT_DOUBLE_EQ(rounded.to, expected.to) << range.from << ' ' << range.to;
  }
}

TEST_F(PlotAxis, NoRangeIsTooStrange) {
  const double huge = 1.7e308;
  for (const Interval range :
       {Interval{-huge, huge}, Interval{1e17, 1e17 + 16}, Interval{0, 1e-320}, Interval{0, 0},
        Interval{5, -5}, Interval{1e-300, huge}}) {
    for (const Scale scale : {Scale::linear, Scale::logarithmic}) {
      const Ruler ruler{{"", "Hz", scale}, range};
      EXPECT_LT(ruler.ticks(10).size(), 6000U) << range.from << ' ' << range.to;
      EXPECT_GT(ruler.ticks(10).size(), 1U) << range.from << ' ' << range.to;
      EXPECT_TRUE(std::isfinite(ruler.share(1e3))) << range.from << ' ' << range.to;
    }
  }
}

TEST_F(PlotAxis, TellsValuesToFourDigits) {
  const std::tuple<const char*, double, const char*> table[] = {
      {"MHz", 14.2467, "14,25 MHz"},
      {"Hz", 14246700, "14,25 MHz"},
      {"", 1.23456, "1,235"},
      {"dB", -0.00012346, "-0,0001235 dB"},
  };
  for (const auto& [unit, value, text] : table) {
    EXPECT_EQ((Ruler{{"", unit}, {0, 1}}.told(value)), text);
  }
}

constexpr ui::Curve::Resolution resolution{400, 200};

TEST_F(PlotAxis, ACurveIsFineWhereItIsSteep) {
  const auto peak_at = [](double place, double half_width) {
    return [=](Real x) { return 1 / (1 + pow((x - place) / half_width, 2)); };
  };
  // A quarter of a pixel wide, in the middle between two samples.
  ui::Curve curve{peak_at(5.01875, 0.003), {0, 10}, {}, {}, resolution, ""};
  EXPECT_GT(curve.values()->to, 0.98);
  // Far narrower, and named by a marker.
  const auto needle = peak_at(5.0329, 1e-6);
  ui::Curve resonance{needle, {0, 10}, {}, {}, resolution, ""};
  EXPECT_LT(resonance.values()->to, 0.5);
  resonance.refine_at(needle, 5.0329);
  EXPECT_EQ(resonance.values()->to, 1);
  EXPECT_LT(*resonance.at(5.0329 + 1e-4), 0.1);
}

TEST_F(PlotAxis, AFaultIsAGap) {
  const ui::Curve root{[](Real x) { return sqrt(x - 5); }, {0, 10}, {}, {}, resolution, ""};
  EXPECT_FALSE(root.at(4.99));
  EXPECT_NEAR(*root.at(5.01), 0.1, 0.01);  // the end of the line is found, not guessed
  EXPECT_NEAR(*root.at(9), 2, 1e-5);
  EXPECT_FALSE(root.at(10.1));
  const ui::Curve nowhere{[](Real x) { return x / 0; }, {0, 10}, {}, {}, resolution, ""};
  EXPECT_FALSE(nowhere.values());
}

}  // namespace
}  // namespace eterlab
