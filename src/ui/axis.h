#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The axes of a plot: what they tell, where values stand along them, and their ticks.

namespace eterlab::ui {

enum class Scale : std::uint8_t { linear, logarithmic };

struct Interval {
  double from = 0;
  double to = 0;

  void include(double value);
};

/// How far along a range a value stands: 0 at its start, 1 at its end. Not a number where it stands
/// nowhere: at zero or below on a logarithmic scale.
double share_of(double value, Interval range, Scale scale);
/// The value that stands there.
double value_at(double share, Interval range, Scale scale);

/// What an axis of a plot tells. Values in a unit without a prefix, such as "Hz", are written with
/// the prefix that suits them: "7 M".
struct Axis {
  std::string title;
  std::string unit = {};
  Scale scale = Scale::linear;
  /// What it shows; without one, all that there is on the plot.
  std::optional<Interval> range = {};
  /// Grows to the left, or downwards.
  bool is_reversed = false;
  /// Between ticks on a linear scale, where the range is known to have room for all of them.
  std::optional<double> step = {};
};

struct Tick {
  double value;
  std::string text;  ///< empty for those between
};

/// An axis with the range that it shows.
class Ruler {
 public:
  /// A range that is none, or too narrow or too wide for a plot, becomes one around it.
  Ruler(Axis axis, Interval range);

  [[nodiscard]] const Interval& range() const { return range_; }
  /// As share_of and value_at, counted from the left or lower end of the axis.
  [[nodiscard]] double share(double value) const;
  [[nodiscard]] double value(double share) const;

  /// At round values: multiples of 1, 2 or 5 times a power of ten. On a logarithmic axis of some
  /// length decades, and the 2 to 9 of each. About so many have texts.
  [[nodiscard]] std::vector<Tick> ticks(int texts) const;
  /// "FREQUENZA in MHz"
  [[nodiscard]] std::string title() const;
  /// A value with its unit: "14,25 MHz".
  [[nodiscard]] std::string told(double value, int digits = 4) const;

 private:
  [[nodiscard]] std::string tick_text(double value) const;
  [[nodiscard]] std::vector<Tick> even_ticks(int texts) const;
  [[nodiscard]] std::vector<Tick> decade_ticks(int texts) const;

  Axis axis_;
  Interval range_;
};

/// The range grown to round values, such as a ruler has ticks at.
Interval rounded_out(Interval range, Scale scale);

/// The multiple of the largest round step not above `coarseness` that is nearest to a value.
double rounded_to(double value, double coarseness);

}  // namespace eterlab::ui
