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

bool is_before(const Curve::Sample& sample, double x) { return sample.x < x; }

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
  refine(function, halvings);
}

void Curve::refine_at(const Function& function, double x) {
  constexpr int halvings = 12;
  const auto after = std::lower_bound(samples_.begin(), samples_.end(), x, is_before);
  if (after == samples_.begin() || after == samples_.end()) {
    return;
  }
  if (after->x != x) {
    samples_.insert(after, {x, value_of(function, x)});
  }
  refine(function, halvings);
}

void Curve::refine(const Function& function, int halvings) {
  constexpr std::size_t most = 20000;  // of a function that is nothing but steep
  for (; halvings > 0 && samples_.size() < most; --halvings) {
    const Interval shown = fixed_.value_or(values().value_or(Interval{}));
    std::vector<bool> is_steep_until(samples_.size() + 1);
    for (std::size_t i = 1; i < samples_.size(); ++i) {
      is_steep_until[i] = is_steep(samples_[i - 1], samples_[i], shown);
    }
    // Also what is beside a steep stretch: a peak may stand between two samples of one height.
    std::vector<Sample> finer{samples_.front()};
    for (std::size_t i = 1; i < samples_.size(); ++i) {
      const Interval between{samples_[i - 1].x, samples_[i].x};
      const double x = value_at(0.5, between, x_scale_);
      if ((is_steep_until[i - 1] || is_steep_until[i] || is_steep_until[i + 1]) &&
          x > between.from && x < between.to) {
        finer.push_back({x, value_of(function, x)});
      }
      finer.push_back(samples_[i]);
    }
    samples_ = std::move(finer);
  }
}

bool Curve::is_steep(const Sample& from, const Sample& to, Interval shown) const {
  if (std::isnan(from.y) || std::isnan(to.y)) {
    return std::isnan(from.y) != std::isnan(to.y);
  }
  const double start = share_of(from.y, shown, y_scale_);
  const double end = share_of(to.y, shown, y_scale_);
  const bool is_beyond = std::max(start, end) < 0 || std::min(start, end) > 1;
  return !is_beyond && std::abs(end - start) > steepest_;
}

std::optional<double> Curve::at(double x) const {
  const auto after = std::lower_bound(samples_.begin(), samples_.end(), x, is_before);
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
