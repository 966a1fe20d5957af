#include "support/window_test.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QPrinter>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <stdexcept>
#include <utility>

#include "common/regional_settings.h"
#include "shell/menu_catalogue.h"
#include "ui/printing.h"
#include "ui/registry.h"
#include "ui/text.h"

namespace eterlab::test {

using ui::from_qt;
using ui::to_qt;

BoxWatcher::BoxWatcher() : answer{[](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); }} {
  qApp->installEventFilter(this);
}

bool BoxWatcher::eventFilter(QObject* watched, QEvent* event) {
  auto* box = qobject_cast<QMessageBox*>(watched);
  if (box != nullptr && event->type() == QEvent::Show) {
    const char* mark = box->icon() == QMessageBox::Critical ? "! " : "";
    boxes.push_back(from_qt(mark + box->windowTitle() + ": " + box->text()));
    QTimer::singleShot(0, box, [this, box] { answer(*box); });
  }
  return false;
}

std::string name_of(const QWidget& widget) { return from_qt(widget.objectName()); }

const Texts& windows() {
  static const Texts names = ui::registry::names();
  return names;
}

QWidget& Driven::control(std::string_view name) const {
  auto* found = window_->findChild<QWidget*>(to_qt(name));
  if (found == nullptr) {
    throw std::runtime_error{"no control " + std::string{name}};
  }
  return *found;
}

void Driven::type(std::string_view controls, std::string_view texts) const {
  const QStringList names = to_qt(controls).split(' ');
  const QStringList contents = to_qt(texts).split('|');
  if (names.size() != contents.size()) {
    throw std::logic_error{"not a text for each control: " + std::string{texts}};
  }
  for (qsizetype i = 0; i < names.size(); ++i) {
    const std::string name = from_qt(names[i]);
    if (window_->findChild<QWidget*>(names[i]) == nullptr) {
      click(name + '_' + from_qt(contents[i]));  // of an array of options
    } else if (auto* list = qobject_cast<QComboBox*>(&control(name));
               list != nullptr && !list->isEditable()) {
      pick(name, list->findText(contents[i]));
    } else {
      type_into(control(name), contents[i]);
    }
  }
}

void Driven::type_into(QWidget& box, const QString& text) {
  if (!box.isVisible() && text.isEmpty()) {
    return;
  }
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&box, Qt::Key_Delete);
  QTest::keyClicks(&box, text);
}

void Driven::press(Qt::Key key) const {
  QWidget* focused = window_->focusWidget();
  QTest::keyClick(focused == nullptr ? window_ : focused, key);
}

void Driven::click(std::string_view name) const {
  QTest::mouseClick(&control(name), Qt::LeftButton);
}

void Driven::pick(std::string_view combo_box, int entry) const {
  auto& box = dynamic_cast<QComboBox&>(control(combo_box));
  if (entry < 0) {
    throw std::runtime_error{"no such entry of " + std::string{combo_box}};
  }
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Down, Qt::AltModifier);
  const QModelIndex index = box.model()->index(entry, box.modelColumn());
  box.view()->scrollTo(index);
  QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {},
                    box.view()->visualRect(index).center());
}

std::string Driven::text(std::string_view names) const {
  QStringList contents;
  for (const QString& name : to_qt(names).split(' ')) {
    const QWidget& widget = control(from_qt(name));
    const bool is_list = qobject_cast<const QComboBox*>(&widget) != nullptr;
    const QVariant content = widget.property(is_list ? "currentText" : "text");
    contents.append(widget.isVisible() ? content.toString() : "");
  }
  return from_qt(contents.join('|'));
}

std::string Driven::shown(std::string_view names) const {
  QStringList visible = to_qt(names).split(' ');
  visible.removeIf([this](const QString& name) { return !shows(from_qt(name)); });
  return from_qt(visible.join(' '));
}

std::string Driven::colour(std::string_view name) const {
  const QWidget& widget = control(name);
  return from_qt(widget.palette().color(widget.foregroundRole()).name());
}

std::string Driven::focus() const {
  const QWidget* focused = window_->focusWidget();
  return focused == nullptr ? "" : name_of(*focused);
}

WindowTest::WindowTest() {
  windows();  // before the test adds its own
  set_regional_settings({",", ".", 3, 3, 2});
  ui::set_printer_source([] { return std::unique_ptr<QPrinter>{}; });
  start_anew();
}

WindowTest::~WindowTest() { set_regional_settings({}); }

void WindowTest::start_anew() {
  has_ended_ = false;
  desktop_.emplace([this] { has_ended_ = true; });
  desktop_->show("FRMETERLAB");
}

ui::Window& WindowTest::open(std::string_view window) {
  desktop_->show(window);
  settle();
  return dynamic_cast<ui::Window&>(driven(window).window());
}

void WindowTest::for_each_window(const std::function<void(ui::Window&)>& check) {
  for (const std::string& name : windows()) {
    SCOPED_TRACE(name);
    start_anew();
    check(open(name));
  }
}

Driven WindowTest::choose(std::string_view menu_entry) {
  const auto entries = shell::menu_catalogue();
  const auto entry = std::ranges::find(entries, menu_entry, &shell::MenuEntry::name);
  auto* action = main_window().window().findChild<QAction*>(to_qt(menu_entry));
  if (entry == entries.end() || action == nullptr) {
    throw std::runtime_error{"no menu entry " + std::string{menu_entry}};
  }
  action->trigger();
  settle();
  return driven(entry->window);
}

Driven WindowTest::driven(std::string_view window) {
  ui::Window* found = desktop_->find(window);
  if (found == nullptr) {
    throw std::runtime_error{"not open: " + std::string{window}};
  }
  return Driven{*found};
}

bool WindowTest::is_open(std::string_view window) const {
  const ui::Window* found = desktop_->find(window);
  return found != nullptr && found->isVisible();
}

void WindowTest::settle() {
  for (int pass = 0; pass < 3; ++pass) {
    QApplication::processEvents();
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WindowTest::close(std::string_view window) { driven(window).window().close(); }

Boxes WindowTest::boxes() { return std::exchange(watcher_.boxes, {}); }

}  // namespace eterlab::test
