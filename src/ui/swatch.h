#pragma once

#include <QColor>
#include <QWidget>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace eterlab::ui {

/// A patch of the colours of a marking, side by side, as large as a word of the user's font. It
/// stands beside their names: alone it would tell nothing to screen readers or in print.
class Swatch final : public QWidget {
 public:
  /// Colours of the code of IEC 60062 by their Italian names, with " + " between: "ROSSO + VIOLA".
  Swatch(Parent parent, std::string_view name, std::string_view colours);
  ~Swatch() override;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<QColor> bands_;
};

}  // namespace eterlab::ui
