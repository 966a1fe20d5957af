#include "ui/axis.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "common/number_text.h"

namespace eterlab::ui {

namespace {

constexpr double rounding_error = 1e-9;  // of a step or value

/// The power of ten of the first digit of a positive value.
int decade_of(double value) {
  return static_cast<int>(std::floor(std::log10(value * (1 + rounding_error))));
}

/// To the last digit: powers of ten below 1 are not exact.
double times_power_of_ten(double value, int exponent) {
  return exponent < 0 ? value / std::pow(10.0, -exponent) : value * std::pow(10.0, exponent);
}

/// 1, 2 or 5 times a power of ten.
class RoundStep {
 public:
  /// The smallest one that is not below a positive value.
  static RoundStep above(double value) {
    const int decade = decade_of(value);
    for (const int digit : {1, 2, 5}) {
      const RoundStep step{digit, decade};
      if (step.value() >= value * (1 - rounding_error)) {
        return step;
      }
    }
    return {1, decade + 1};
  }
  /// The largest one that is not above.
  static RoundStep below(double value) {
    const int decade = decade_of(value);
    for (const int digit : {5, 2}) {
      const RoundStep step{digit, decade};
      if (step.value() <= value * (1 + rounding_error)) {
        return step;
      }
    }
    return {1, decade};
  }

  [[nodiscard]] double value() const { return times(1); }
  [[nodiscard]] double times(double count) const {
    return times_power_of_ten(count * digit_, exponent_);
  }

 private:
  RoundStep(int digit, int exponent) : digit_{digit}, exponent_{exponent} {}

  int digit_;
  int exponent_;
};

bool takes_prefix(std::string_view unit) {
  constexpr std::array<std::string_view, 10> units{"Hz", "V", "A",   "W",      "F",
                                                   "H",  "s", "Ohm", "\u03a9", "m"};
  return std::find(units.begin(), units.end(), unit) != units.end();
}

/// What can be drawn and counted with the digits of a double.
Interval drawable(Interval range, Scale scale) {
  constexpr double largest = 1e300;
  constexpr double narrowest = 1e-9;  // relative to the values
  range.from = std::clamp(range.from, -largest, largest);
  range.to = std::clamp(range.to, -largest, largest);
  if (scale == Scale::logarithmic) {
    if (!(range.to > 0)) {
      return {1, 10};
    }
    range.from = std::max(range.from, 1 / largest);
    range.to = std::max(range.to, 1 / largest);
    const bool is_wide = range.from < range.to * (1 - narrowest);
    return is_wide ? range : Interval{range.to / 10, range.to * 10};
  }
  constexpr double smallest = 1e-290;
  const double magnitude = std::max(std::abs(range.from), std::abs(range.to));
  if (magnitude < smallest) {
    return {-1, 1};
  }
  // One value alone stands in the middle.
  return range.to - range.from > magnitude * narrowest
             ? range
             : Interval{range.to - magnitude, range.to + magnitude};
}

}  // namespace

void Interval::include(double value) {
  from = std::min(from, value);
  to = std::max(to, value);
}

double share_of(double value, Interval range, Scale scale) {
  // In halves and by differences of logarithms: no range is too wide for that.
  if (scale == Scale::linear) {
    return (value / 2 - range.from / 2) / (range.to / 2 - range.from / 2);
  }
  return value > 0 ? (std::log(value) - std::log(range.from)) /
                         (std::log(range.to) - std::log(range.from))
                   : std::numeric_limits<double>::quiet_NaN();
}

double value_at(double share, Interval range, Scale scale) {
  const auto between = [share](double from, double to) { return from * (1 - share) + to * share; };
  return scale == Scale::linear ? between(range.from, range.to)
                                : std::exp(between(std::log(range.from), std::log(range.to)));
}

Ruler::Ruler(Axis axis, Interval range)
    : axis_{std::move(axis)}, range_{drawable(range, axis_.scale)} {}

double Ruler::share(double value) const {
  const double share = share_of(value, range_, axis_.scale);
  return axis_.is_reversed ? 1 - share : share;
}

double Ruler::value(double share) const {
  return value_at(axis_.is_reversed ? 1 - share : share, range_, axis_.scale);
}

std::vector<Tick> Ruler::ticks(int texts) const {
  constexpr double fewest_decades = 0.85;
  const bool shows_decades =
      axis_.scale == Scale::logarithmic && std::log10(range_.to / range_.from) >= fewest_decades;
  return shows_decades ? decade_ticks(texts) : even_ticks(texts);
}

std::vector<Tick> Ruler::even_ticks(int texts) const {
  const auto round_step = RoundStep::above((range_.to - range_.from) / texts);
  const auto at = [&](double count) {
    return axis_.step ? count * *axis_.step : round_step.times(count);
  };
  const double step = at(1);
  const double first = std::ceil(range_.from / step - rounding_error);
  const double last = std::floor(range_.to / step + rounding_error);
  std::vector<Tick> ticks;
  for (int i = 0; i <= static_cast<int>(last - first); ++i) {
    const double value = at(first + i);
    ticks.push_back({value, tick_text(value)});
  }
  return ticks;
}

std::vector<Tick> Ruler::decade_ticks(int texts) const {
  const double decades = std::log10(range_.to / range_.from);
  const bool has_2_and_5 = texts >= 3 * decades;
  const int decades_per_text = std::max(1, static_cast<int>(std::ceil(decades / texts)));
  std::vector<Tick> ticks;
  for (int decade = decade_of(range_.from); decade <= decade_of(range_.to); ++decade) {
    for (int digit = 1; digit < 10; ++digit) {
      const double value = times_power_of_ten(digit, decade);
      const bool has_text =
          digit == 1 ? decade % decades_per_text == 0 : has_2_and_5 && (digit == 2 || digit == 5);
      const bool is_inside =
          value >= range_.from * (1 - rounding_error) && value <= range_.to * (1 + rounding_error);
      if (is_inside && (has_text || decades_per_text == 1)) {
        ticks.push_back({value, has_text ? tick_text(value) : std::string{}});
      }
    }
  }
  return ticks;
}

std::string Ruler::tick_text(double value) const {
  constexpr int digits = 12;
  if (!takes_prefix(axis_.unit)) {
    return sig(value, digits);
  }
  std::string text = eng(value, axis_.unit, digits);
  text.erase(text.size() - axis_.unit.size());
  if (text.back() == ' ') {
    text.pop_back();
  }
  return text;
}

std::string Ruler::title() const {
  const std::string& unit = axis_.unit;
  return axis_.title.empty() || unit.empty() ? axis_.title + unit : axis_.title + " in " + unit;
}

std::string Ruler::told(double value, int digits) const {
  if (takes_prefix(axis_.unit)) {
    return eng(value, axis_.unit, digits);
  }
  return axis_.unit.empty() ? sig(value, digits) : sig(value, digits) + ' ' + axis_.unit;
}

Interval rounded_out(Interval range, Scale scale) {
  range = drawable(range, scale);
  if (scale == Scale::logarithmic) {
    return {RoundStep::below(range.from).value(), RoundStep::above(range.to).value()};
  }
  constexpr int steps = 5;
  const auto step = RoundStep::above((range.to - range.from) / steps);
  return {step.times(std::floor(range.from / step.value() + rounding_error)),
          step.times(std::ceil(range.to / step.value() - rounding_error))};
}

double rounded_to(double value, double coarseness) {
  const auto step = RoundStep::below(coarseness);
  return step.times(std::round(value / step.value()));
}

}  // namespace eterlab::ui
