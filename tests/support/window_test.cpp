#include "support/window_test.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPrinter>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <utility>

#include "shell/menu_catalogue.h"
#include "ui/printing.h"
#include "ui/registry.h"
#include "ui/text.h"

namespace eterlab::test {

using ui::from_qt;
using ui::to_qt;

std::ostream& operator<<(std::ostream& out, const Box& box) {
  return out << (box.is_critical ? "critical \"" : "\"") << box.title << "\": \"" << box.text
             << '"';
}

Box error(std::string_view text) { return {"MESSAGGIO DI ERRORE", std::string{text}}; }
Box notice(std::string_view text) { return {"MESSAGGIO DI AVVISO", std::string{text}}; }

BoxWatcher::BoxWatcher() { qApp->installEventFilter(this); }

bool BoxWatcher::eventFilter(QObject* watched, QEvent* event) {
  auto* box = qobject_cast<QMessageBox*>(watched);
  if (box != nullptr && event->type() == QEvent::Show) {
    boxes.push_back(
        {from_qt(box->windowTitle()), from_qt(box->text()), box->icon() == QMessageBox::Critical});
    QTimer::singleShot(0, box, [box] { box->button(QMessageBox::Ok)->click(); });
  }
  return false;
}

QWidget& Driven::control(std::string_view name) const {
  auto* found = window_->findChild<QWidget*>(to_qt(name));
  if (found == nullptr) {
    throw std::runtime_error{"no control " + std::string{name}};
  }
  return *found;
}

void Driven::type(std::string_view box, std::string_view text) const {
  QWidget& widget = control(box);
  widget.setFocus();
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&widget, Qt::Key_Delete);
  QTest::keyClicks(&widget, to_qt(text));
}

void Driven::enter(std::initializer_list<Input> inputs) const {
  for (const Input& input : inputs) {
    type(input.box, input.text);
  }
  press(Qt::Key_Return);
}

void Driven::press(Qt::Key key) const {
  QWidget* focused = window_->focusWidget();
  QTest::keyClick(focused == nullptr ? window_ : focused, key);
}

void Driven::click(std::string_view name) const {
  QTest::mouseClick(&control(name), Qt::LeftButton);
}

void Driven::pick(std::string_view name, int entry) const {
  auto& box = dynamic_cast<QComboBox&>(control(name));
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Down, Qt::AltModifier);
  const QModelIndex index = box.model()->index(entry, box.modelColumn());
  box.view()->scrollTo(index);
  QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {},
                    box.view()->visualRect(index).center());
}

std::string Driven::text(std::string_view name) const {
  const QWidget& widget = control(name);
  // Every text is the plain text property of its widget; a frame's is its title.
  const auto* frame = qobject_cast<const QGroupBox*>(&widget);
  const auto* combo = qobject_cast<const QComboBox*>(&widget);
  if (frame != nullptr) {
    return from_qt(frame->title());
  }
  if (combo != nullptr) {
    return from_qt(combo->currentText());
  }
  return from_qt(widget.property("text").toString());
}

Texts Driven::texts(std::initializer_list<std::string_view> names) const {
  Texts texts;
  for (const std::string_view name : names) {
    texts.push_back(text(name));
  }
  return texts;
}

std::string Driven::tooltip(std::string_view name) const {
  return from_qt(control(name).toolTip());
}

bool Driven::shows(std::string_view name) const { return control(name).isVisible(); }

std::string Driven::colour(std::string_view name) const {
  const QWidget& widget = control(name);
  return from_qt(widget.palette().color(widget.foregroundRole()).name());
}

std::string Driven::focus() const {
  const QWidget* focused = window_->focusWidget();
  return focused == nullptr ? "" : from_qt(focused->objectName());
}

WindowTest::WindowTest() : desktop_{[this] { has_ended_ = true; }} {
  set_regional_settings(english());
  ui::set_printer_source([] { return std::unique_ptr<QPrinter>{}; });
  desktop_.show("FRMETERLAB");
}

WindowTest::~WindowTest() { set_regional_settings({}); }

Driven WindowTest::choose(std::string_view menu_entry) {
  auto* action = main_window().window().findChild<QAction*>(to_qt(menu_entry));
  if (action == nullptr) {
    throw std::runtime_error{"no menu entry " + std::string{menu_entry}};
  }
  action->trigger();
  settle();
  for (const shell::MenuEntry& entry : shell::menu_catalogue()) {
    if (entry.name == menu_entry) {
      return driven(entry.window);
    }
  }
  throw std::logic_error{"menu bar and catalogue differ"};
}

Driven WindowTest::driven(std::string_view window) {
  ui::Window* found = desktop_.find(window);
  if (found == nullptr) {
    throw std::runtime_error{"not open: " + std::string{window}};
  }
  return Driven{*found};
}

bool WindowTest::is_open(std::string_view window) const {
  const ui::Window* found = desktop_.find(window);
  return found != nullptr && found->isVisible();
}

void WindowTest::settle() {
  for (int pass = 0; pass < 3; ++pass) {
    QApplication::processEvents();
  }
}

void WindowTest::close(std::string_view window) { driven(window).window().close(); }

void WindowTest::expect_companion(std::string_view window, QPoint corner) {
  if (!ui::registry::contains(window)) {
    EXPECT_EQ(boxes(), std::vector{notice("FINESTRA NON ANCORA DISPONIBILE")});
    return;
  }
  ASSERT_TRUE(is_open(window));
  EXPECT_EQ(driven(window).window().pos(), corner);
  EXPECT_FALSE(driven(window).window().isModal());
}

std::vector<Box> WindowTest::boxes() { return std::exchange(watcher_.boxes, {}); }

void WindowTest::expect_refusal(const Driven& window, const Box& box, std::string_view focus) {
  EXPECT_EQ(boxes(), std::vector{box});
  EXPECT_EQ(window.focus(), focus);
}

}  // namespace eterlab::test
