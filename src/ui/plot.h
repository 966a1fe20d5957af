#pragma once

#include <QWidget>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/axis.h"
#include "ui/control.h"
#include "ui/curve.h"
#include "ui/label.h"
#include "ui/shapes.h"

namespace eterlab::ui {

/// Curves over two axes. The value under the pointer is told beside it; with the keyboard, the
/// arrow keys move along a curve and from one to the next, Home and End to its ends. As large as a
/// drawing of so many grid steps.
class Plot final : public QWidget, public Blankable {
 public:
  using Function = Curve::Function;

  Plot(Parent parent, std::string_view name, Axis x_axis, Axis y_axis, int columns = 48,
       int rows = 30, Tooltip tip = {});
  ~Plot() override;

  /// A function over a domain, which is not empty and on a logarithmic axis above zero. It is asked
  /// for its values now; a fault leaves a gap. Those with a name are told apart by a legend.
  Plot& curve(const Function& function, Real from, Real to, std::string_view name = {});
  /// A dot with a text on the curve drawn last, which must be at hand still. Nothing where that has
  /// no value.
  Plot& marker(Real x, std::string_view text);
  /// A dot with a text anywhere.
  Plot& marker(Real x, Real y, std::string_view text);
  /// Other axes, for what is drawn next.
  Plot& axes(Axis x_axis, Axis y_axis);

  /// Takes away all curves and markers.
  void clear();
  void blank() override { clear(); }

  /// What is told of the place under the pointer: "14,2 MHz ; 1,35"; empty when none is.
  [[nodiscard]] std::string readout() const { return readout_.content(); }
  /// Where a point stands, in pixels.
  [[nodiscard]] QPointF place_of(Real x, Real y) const;
  /// The room between the axes, in pixels.
  [[nodiscard]] QRectF frame() const { return picture().frame; }
  /// All that is written: titles, ticks, names of curves, markers.
  [[nodiscard]] const std::vector<Letters>& letters() const { return picture().letters; }

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Marker {
    double x;
    double y;
    QString text;
  };
  /// All of it at its place, made when it is first needed after a change.
  struct Picture {
    Ruler x;
    Ruler y;
    QRectF frame = {};
    Shapes ground = {};               ///< frame, grid and the lines of markers
    std::vector<QRectF> blanks = {};  ///< under the texts of markers
    Shapes curves = {};               ///< cut off at the frame
    Shapes dots = {};                 ///< of markers, and the legend
    std::vector<Letters> letters = {};
    std::vector<QPointF> on_curves = {};

    [[nodiscard]] double x_at(double value) const;
    [[nodiscard]] double y_at(double value) const;
    [[nodiscard]] QPointF at(double x_value, double y_value) const {
      return {x_at(x_value), y_at(y_value)};
    }
    /// Where texts may stand.
    [[nodiscard]] QRectF inside() const { return frame.adjusted(2, 2, -2, -2); }
    /// Of the room beside a place that others leave free the nearest.
    [[nodiscard]] std::optional<QRectF> free_room(QPointF place, QSizeF size,
                                                  const std::vector<Letters>& taken) const;
    [[nodiscard]] bool is_crossed(const QRectF& room) const;
  };
  struct Pointed {
    std::size_t curve;
    double x;
    double y;
  };

  void changed();
  [[nodiscard]] bool is_empty() const { return curves_.empty() && markers_.empty(); }
  [[nodiscard]] Ruler x_ruler() const;
  [[nodiscard]] Ruler y_ruler() const;
  [[nodiscard]] const Picture& picture() const;
  [[nodiscard]] Picture drawn() const;
  void add_header(Picture& picture) const;
  void add_ticks(Picture& picture) const;
  void add_curves(Picture& picture) const;
  void add_markers(Picture& picture) const;
  void tell_screen_readers();

  /// Shows the cross at a place, or takes it away.
  void point_at(const std::optional<Pointed>& place);
  [[nodiscard]] QPointF readout_room(QPointF cross, QSizeF size) const;
  [[nodiscard]] std::optional<Pointed> on_curve(std::size_t curve, double x) const;
  [[nodiscard]] std::optional<Pointed> nearest(QPointF pixel) const;
  void point_at_start();
  void step(bool to_the_right);

  Axis x_axis_;
  Axis y_axis_;
  int columns_;
  int rows_;
  std::vector<Curve> curves_;
  Function last_function_;
  std::vector<Marker> markers_;
  mutable std::optional<Picture> picture_;
  std::optional<Pointed> pointed_;
  Label readout_;
};

}  // namespace eterlab::ui
