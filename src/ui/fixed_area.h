#pragma once

#include <QWidget>
#include <functional>

#include "ui/control.h"
#include "ui/layout.h"
#include "ui/twips.h"

class QPainter;

namespace eterlab::ui {

/// Where controls stand at the very places that the design gives, instead of in a layout. It may
/// have a picture behind them.
///
/// What it holds is as large as its contents ask for, also when they change later. Texts that wrap
/// do so at the right edge. Places are those of the usual font and move apart with a larger one;
/// the area grows where its contents need more than the design gave them.
class FixedArea final : public QWidget {
 public:
  /// Draws into a rectangle of this size at the origin.
  using Picture = std::function<void(QPainter& painter, QSize size)>;

  FixedArea(Parent parent, std::string_view name, TwipsSize size, Picture picture = {});
  ~FixedArea() override;

  /// Puts a control at its place, or moves it there from its previous one. It gets the size given,
  /// if that is larger than what it needs. Tab order is the order of the first placing.
  void place(QWidget& control, TwipsPoint corner, TwipsSize size = {});
  /// Controls already laid out, for good.
  void place(const Item& item, TwipsPoint corner, TwipsSize size = {});

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  class Places;

  Places* places_;
  Picture picture_;
};

}  // namespace eterlab::ui
