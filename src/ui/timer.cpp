#include "ui/timer.h"

#include "ui/desktop.h"
#include "ui/text.h"

namespace eterlab::ui {

Timer::Timer(QObject* parent, std::string_view name) : QTimer{parent} {
  setObjectName(to_qt(name));
}

void Timer::on_tick(const Handler& handler) {
  connect(this, &QTimer::timeout, this, [handler] { Desktop::instance().run(handler); });
}

}  // namespace eterlab::ui
