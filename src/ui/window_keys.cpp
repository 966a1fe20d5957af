#include "ui/window_keys.h"

#include <QApplication>
#include <QClipboard>
#include <QKeySequence>
#include <QShortcut>
#include <algorithm>
#include <functional>
#include <vector>

#include "ui/desktop.h"
#include "ui/label.h"
#include "ui/text.h"
#include "ui/window.h"
#include "ui/window_text.h"

namespace eterlab::ui {

namespace {

void add_key(Window& window, const QKeySequence& keys, const std::function<void()>& handler) {
  auto* shortcut = new QShortcut{keys, &window};
  shortcut->setAutoRepeat(false);
  QObject::connect(shortcut, &QShortcut::activated, &window,
                   [handler] { Desktop::instance().run(handler); });
}

/// The result that stands behind the one with the focus, after the last one the first.
void go_to_next_result(Window& window) {
  const std::vector<Label*> results = results_in_reading_order(window);
  if (results.empty()) {
    return;
  }
  const auto* focused = dynamic_cast<Label*>(window.focusWidget());
  const auto here = std::find(results.begin(), results.end(), focused);
  const bool is_last = here == results.end() || here + 1 == results.end();
  Label& next = is_last ? *results.front() : **(here + 1);
  next.setFocus(Qt::OtherFocusReason);
  next.select_all();
}

}  // namespace

void add_keys_of_every_window(Window& window) {
  const auto find = [] { Desktop::instance().show_in_reach("frmcerca"); };
  add_key(window, {Qt::CTRL | Qt::Key_F}, find);
  add_key(window, {Qt::Key_F3}, find);
  add_key(window, {Qt::Key_F1}, [&window] {
    const std::string subject = from_qt(window.objectName());
    Desktop::instance().show_in_reach("frmguida");
    Desktop::instance().load("frmguida").turn_to(subject);
  });
  add_key(window, {Qt::Key_F6}, [&window] { go_to_next_result(window); });
  add_key(window, {Qt::CTRL | Qt::SHIFT | Qt::Key_C},
          [&window] { QApplication::clipboard()->setText(to_qt(window_text(window))); });
  add_key(window, {Qt::CTRL | Qt::Key_P}, [&window] { window.print(); });
}

}  // namespace eterlab::ui
