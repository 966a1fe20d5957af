#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "common/arithmetic.h"
#include "ui/axis.h"

namespace eterlab::ui {

/// A function on a plot, sampled once, so finely that its line is true to the pixel.
class Curve {
 public:
  using Function = std::function<Real(Real)>;

  struct Sample {
    double x;
    double y;  ///< not a number where the function has no value: a gap in the line
  };
  /// How finely it is sampled: pixels of the plot in both directions.
  struct Resolution {
    int columns;
    int rows;
  };

  /// Samples are spread as the values of the horizontal axis are; where the function is steep, as
  /// measured by the range of the vertical axis or its own, there are more. The domain is not
  /// empty, and above zero on a logarithmic axis.
  Curve(const Function& function, Interval domain, const Axis& x_axis, const Axis& y_axis,
        Resolution resolution, std::string name);

  /// Samples the function also around this place, for what is too narrow to be met by chance.
  void refine_at(const Function& function, double x);

  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] const std::vector<Sample>& samples() const { return samples_; }
  [[nodiscard]] Interval domain() const { return {samples_.front().x, samples_.back().x}; }
  /// The value at a place, or nothing in a gap or outside.
  [[nodiscard]] std::optional<double> at(double x) const;
  /// Of what has a place on a scale; nothing where there is no value at all.
  [[nodiscard]] std::optional<Interval> values() const;

 private:
  /// Halves the distances of samples where it is steep, and there again.
  void refine(const Function& function, int halvings);
  [[nodiscard]] bool is_steep(const Sample& from, const Sample& to, Interval shown) const;

  std::string name_;
  Scale x_scale_;
  Scale y_scale_;
  double steepest_;  ///< share of the vertical axis between two samples
  std::optional<Interval> fixed_;
  std::vector<Sample> samples_;
};

}  // namespace eterlab::ui
