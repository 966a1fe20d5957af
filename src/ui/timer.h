#pragma once

#include <QTimer>
#include <string_view>

#include "ui/control.h"

namespace eterlab::ui {

class Timer final : public QTimer {
 public:
  Timer(QObject* parent, std::string_view name);

  void on_tick(const Handler& handler);
};

}  // namespace eterlab::ui
