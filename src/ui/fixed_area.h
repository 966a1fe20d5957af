#pragma once

#include <QWidget>
#include <functional>

#include "ui/control.h"
#include "ui/twips.h"

class QPainter;

namespace eterlab::ui {

/// Where controls stand at the very places that the design gives, instead of in a layout. It may
/// have a picture behind them.
class FixedArea final : public QWidget {
 public:
  /// Draws into a rectangle of this size at the origin.
  using Picture = std::function<void(QPainter& painter, QSize size)>;

  FixedArea(Parent parent, std::string_view name, TwipsSize size, Picture picture = {});

  /// A control as large as its contents ask for, or of the given size.
  void place(QWidget& control, TwipsPoint corner);
  void place(QWidget& control, TwipsPoint corner, TwipsSize size);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Picture picture_;
};

}  // namespace eterlab::ui
