#include "ui/curve.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace eterlab::ui {

namespace {

constexpr double no_value = std::numeric_limits<double>::quiet_NaN();

double value_of(const Curve::Function& function, double x) {
  try {
    return function(x).value();
  } catch (const ArithmeticFault&) {
    return no_value;
  }
}

}  // namespace

Curve::Curve(const Function& function, Interval domain, const Axis& x_axis, const Axis& y_axis,
             Resolution resolution, std::string name)
    : name_{std::move(name)},
      x_scale_{x_axis.scale},
      y_scale_{y_axis.scale},
      steepest_{1.5 / resolution.rows},
      fixed_{y_axis.range} {
  constexpr int samples_per_pixel = 2;
  constexpr int halvings = 5;
  const int count = samples_per_pixel * resolution.columns;
  for (int i = 0; i <= count; ++i) {
    const double x = i == count ? domain.to : value_at(1.0 * i / count, domain, x_scale_);
    samples_.push_back({x, value_of(function, x)});
  }
  shown_ = fixed_.value_or(values().value_or(Interval{}));
  const std::vector<Sample> even = std::exchange(samples_, {});
  for (const Sample& sample : even) {
    if (!samples_.empty()) {
      refine(function, samples_.back(), sample, halvings);
    }
    samples_.push_back(sample);
  }
}

void Curve::refine_at(const Function& function, double x) {
  constexpr int halvings = 12;
  const auto after = std::upper_bound(samples_.begin(), samples_.end(), x,
                                      [](double place, const Sample& s) { return place < s.x; });
  if (after == samples_.begin() || after == samples_.end()) {
    return;
  }
  const Sample from = *(after - 1);
  const Sample to = *after;
  const Sample middle = from.x == x ? from : Sample{x, value_of(function, x)};
  const std::vector<Sample> rest{after, samples_.end()};
  samples_.erase(after, samples_.end());
  if (from.x != x) {
    samples_.push_back(middle);
    shown_ = fixed_.value_or(values().value_or(Interval{}));
    samples_.pop_back();
    refine(function, from, middle, halvings);
    samples_.push_back(middle);
  }
  refine(function, middle, to, halvings);
  samples_.insert(samples_.end(), rest.begin(), rest.end());
}

bool Curve::is_fine(const Sample& from, const Sample& to) const {
  if (std::isnan(from.y) || std::isnan(to.y)) {
    return std::isnan(from.y) && std::isnan(to.y);
  }
  const double start = share_of(from.y, shown_, y_scale_);
  const double end = share_of(to.y, shown_, y_scale_);
  const bool is_beyond = std::max(start, end) < 0 || std::min(start, end) > 1;
  return is_beyond || !(std::abs(end - start) > steepest_);
}

void Curve::refine(const Function& function, Sample from, Sample to, int halvings) {
  if (halvings == 0 || is_fine(from, to)) {
    return;
  }
  const double x = value_at(0.5, {from.x, to.x}, x_scale_);
  if (!(x > from.x && x < to.x)) {
    return;
  }
  const Sample middle{x, value_of(function, x)};
  refine(function, from, middle, halvings - 1);
  samples_.push_back(middle);
  refine(function, middle, to, halvings - 1);
}

std::optional<double> Curve::at(double x) const {
  const auto after = std::lower_bound(samples_.begin(), samples_.end(), x,
                                      [](const Sample& s, double place) { return s.x < place; });
  if (after == samples_.end()) {
    return std::nullopt;
  }
  if (after->x == x || after == samples_.begin()) {
    return after->x == x && !std::isnan(after->y) ? std::optional{after->y} : std::nullopt;
  }
  const Sample& before = *(after - 1);
  const double y = before.y + (after->y - before.y) * (x - before.x) / (after->x - before.x);
  return std::isnan(y) ? std::nullopt : std::optional{y};
}

std::optional<Interval> Curve::values() const {
  std::optional<Interval> values;
  for (const Sample& sample : samples_) {
    const bool has_place = !std::isnan(sample.y) && (y_scale_ == Scale::linear || sample.y > 0);
    if (has_place && !values) {
      values = Interval{sample.y, sample.y};
    } else if (has_place) {
      values->include(sample.y);
    }
  }
  return values;
}

}  // namespace eterlab::ui
