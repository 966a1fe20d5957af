#pragma once

#include <QGroupBox>
#include <string_view>

#include "ui/control.h"
#include "ui/layout.h"

namespace eterlab::ui {

/// A border around controls that belong together, with or without a title. It must be declared
/// before the controls that stand in it.
class Frame final : public QGroupBox {
 public:
  Frame(Parent parent, std::string_view name, std::string_view title = {}, Tooltip tip = {});
  ~Frame() override;

  /// Lays out what stands inside; the frame itself is then an item for its window's layout.
  Frame& arrange(const Item& contents);

 protected:
  bool event(QEvent* event) override;
};

}  // namespace eterlab::ui
