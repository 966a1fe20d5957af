#include "ui/window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <vector>

#include "ui/desktop.h"
#include "ui/fixed_area.h"
#include "ui/label.h"
#include "ui/message_box.h"
#include "ui/printing.h"
#include "ui/text.h"
#include "ui/text_box.h"
#include "ui/theme.h"
#include "ui/window_keys.h"

namespace eterlab::ui {

namespace {

/// A cell of a table that no input changes.
bool stays(const Label& label) {
  return label.role() == Label::Role::cell && dynamic_cast<const Blankable*>(&label) == nullptr;
}

}  // namespace

Window::Window(std::string_view name, std::string_view title) {
  setObjectName(to_qt(name));
  setWindowTitle(to_qt(title));
  add_keys_of_every_window(*this);
}

Window::~Window() = default;

void Window::bring_forward() {
  if (isMinimized()) {
    showNormal();
  }
  show();
  raise();
  activateWindow();
}

void Window::arrange(const Item& contents, int width_in_characters) {
  contents.fill(*this, theme::margin());
  layout()->setSizeConstraint(QLayout::SetNoConstraint);
  set_tab_order(*this);
  least_width_ =
      std::max(theme::characters(width_in_characters), theme::title_width(windowTitle()));
  least_ = {least_width_, 0};
  fit();
}

void Window::arrange(FixedArea& area) {
  Item{area}.fill(*this, 0);
  set_tab_order(*this);
  fit();
}

void Window::set_client_area(TwipsSize size) {
  const QWidget* menu_bar = layout()->menuBar();
  const int above = menu_bar == nullptr ? 0 : menu_bar->sizeHint().height();
  least_ = (size.pixels() + QSize{0, above}).expandedTo({least_width_, 0});
  fit();
}

void Window::fit() {
  const int width = std::max(least_.width(), layout()->totalMinimumSize().width());
  resize(width, height());  // texts are wrapped for this width at once
  layout()->activate();
  const int height = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                   : layout()->totalSizeHint().height();
  least_ = {width, std::max(least_.height(), height)};  // it never shrinks under the user's eyes
  setFixedSize(least_);
  if (can_be_resized_) {
    setMinimumSize(layout()->totalMinimumSize());
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  }
}

void Window::allow_resizing() {
  can_be_resized_ = true;
  fit();
}

void Window::print() { print_with_dialog(*this); }

void Window::turn_to(std::string_view /*window*/) {}

void Window::refuse(QWidget& focus, std::string_view text, std::string_view title) {
  message_box(this, Icon::exclamation, title, text);
  focus.setFocus(Qt::TabFocusReason);
  if (auto* box = qobject_cast<QLineEdit*>(&focus); box != nullptr) {
    box->selectAll();
  }
}

void Window::open(std::string_view window, Showing showing) {
  Desktop::instance().show(window, showing);
}

void Window::open_companion(std::string_view companion, TwipsPoint caller_corner,
                            TwipsPoint companion_corner) {
  Desktop& desktop = Desktop::instance();
  move_to(caller_corner);
  desktop.place(companion, companion_corner);
  desktop.show(companion);
}

void Window::place(std::string_view window, TwipsPoint corner) {
  Desktop::instance().place(window, corner);
}

void Window::centre_across_screen(int top_twips) {
  const QRect whole = screen()->geometry();
  move(whole.left() + (whole.width() - frameGeometry().width()) / 2, pixels_from_twips(top_twips));
}

void Window::centre_on_screen() {
  QRect frame = frameGeometry();
  frame.moveCenter(screen()->geometry().center());
  move(frame.topLeft());
}

void Window::blank_results() const {
  for (QWidget* widget : findChildren<QWidget*>()) {
    if (auto* result = dynamic_cast<Blankable*>(widget); result != nullptr) {
      result->blank();
    }
  }
}

void Window::outdate_results() {
  std::vector<QPointer<Label>> outdated;
  for (QWidget* widget : findChildren<QWidget*>()) {
    auto* label = dynamic_cast<Label*>(widget);
    if (label != nullptr && label->is_fresh_result() && !stays(*label)) {
      label->outdate();
      outdated.emplace_back(label);
    }
  }
  if (!outdated.empty()) {
    // What the change itself computes is not to flicker.
    QTimer::singleShot(0, this, [outdated = std::move(outdated)] {
      for (const QPointer<Label>& label : outdated) {
        if (label != nullptr) {
          label->dim_if_outdated();
        }
      }
    });
  }
}

void outdate_results(const QWidget& control) {
  if (auto* window = dynamic_cast<Window*>(control.window()); window != nullptr) {
    window->outdate_results();
  }
}

void Window::blank_on_change(std::initializer_list<TextBox*> boxes,
                             std::initializer_list<Label*> results) {
  for (TextBox* box : boxes) {
    box->on_change([labels = std::vector<Label*>{results}] {
      for (Label* label : labels) {
        *label = "";
      }
    });
  }
}

bool Window::event(QEvent* event) {
  // A text has become longer than the room that its window was opened with.
  if (event->type() == QEvent::LayoutRequest && layout() != nullptr && !can_be_resized_) {
    const bool handled = QWidget::event(event);
    fit();
    return handled;
  }
  return QWidget::event(event);
}

void Window::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && escape_closes_) {
    close();
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (QPushButton* button = button_for_enter(); button != nullptr) {
      button->click();
      return;
    }
  }
  QWidget::keyPressEvent(event);
}

QPushButton* Window::button_for_enter() const {
  if (auto* focused = qobject_cast<QPushButton*>(focusWidget()); focused != nullptr) {
    return focused;
  }
  for (QPushButton* button : findChildren<QPushButton*>()) {
    if (button->isDefault() && button->isVisible()) {
      return button;
    }
  }
  return nullptr;
}

void Window::closeEvent(QCloseEvent* event) {
  event->accept();
  Desktop::instance().forget(*this);
}

void Window::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!was_shown_) {
    was_shown_ = true;
    focus_first_input();
  }
}

void Window::focus_first_input() {
  for (QWidget* at = nextInFocusChain(); at != this; at = at->nextInFocusChain()) {
    auto* box = qobject_cast<QLineEdit*>(at);
    if (box != nullptr && !box->isReadOnly() && box->isVisibleTo(this)) {
      box->setFocus();
      box->selectAll();
      return;
    }
  }
}

}  // namespace eterlab::ui
