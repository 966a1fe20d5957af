#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <map>
#include <set>

#include "shell/menu_catalogue.h"
#include "support/layout_faults.h"
#include "support/window_test.h"
#include "ui/label.h"
#include "ui/registry.h"
#include "ui/text.h"
#include "ui/text_box.h"
#include "ui/theme.h"

// What must hold for every window, whichever they are.

namespace eterlab {
namespace {

using test::layout_faults;
using test::visible_controls;
using ui::from_qt;
using Faults = std::vector<std::string>;

std::string name_of(const QWidget& widget) { return from_qt(widget.objectName()); }

class AllWindows : public test::WindowTest {
 protected:
  QWidget& open(const std::string& name) {
    desktop().show(name);
    settle();
    return driven(name).window();
  }
};

TEST_F(AllWindows, AreNamedAndTitled) {
  for (const std::string& name : ui::registry::names()) {
    SCOPED_TRACE(name);
    const QWidget& window = open(name);
    EXPECT_EQ(name_of(window), name);
    EXPECT_NE(window.windowTitle(), "");
    std::set<QString> names;
    for (const QWidget* control : visible_controls(window)) {
      EXPECT_TRUE(names.insert(control->objectName()).second) << name_of(*control);
    }
  }
}

TEST_F(AllWindows, OpenUseCloseAndOpenAgain) {
  for (const std::string& name : ui::registry::names()) {
    SCOPED_TRACE(name);
    for (int round = 0; round < 2; ++round) {
      open(name);
      desktop().find(name)->show_example();
      close(name);
      EXPECT_FALSE(is_open(name));
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_TRUE(boxes().empty());
    EXPECT_FALSE(has_ended());
    desktop().show("FRMETERLAB");
  }
}

TEST_F(AllWindows, AreLaidOutSoundlyInEveryFontSize) {
  const QFont usual = QApplication::font();
  for (const double scale : {1.0, 1.5}) {
    SCOPED_TRACE(scale);
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * scale);
    QApplication::setFont(font);
    for (const std::string& name : ui::registry::names()) {
      if (is_open(name)) {
        close(name);
      }
      SCOPED_TRACE(name);
      EXPECT_EQ(layout_faults(open(name)), Faults{});
      desktop().find(name)->show_example();
      settle();
      EXPECT_EQ(layout_faults(driven(name).window()), Faults{});
    }
  }
  QApplication::setFont(usual);
}

TEST_F(AllWindows, GrowForResultsByWholeLinesOnly) {
  const int line = QFontMetrics{QApplication::font()}.height();
  for (const std::string& name : ui::registry::names()) {
    const QWidget& window = open(name);
    const QSize opening = window.size();
    desktop().find(name)->show_example();
    settle();
    EXPECT_EQ(window.width(), opening.width()) << name;
    EXPECT_TRUE(window.height() == opening.height() || window.height() >= opening.height() + line)
        << name << " grew from " << opening.height() << " to " << window.height();
  }
}

TEST_F(AllWindows, BeginInTheirFirstInputAndGoOnInReadingOrder) {
  for (const std::string& name : ui::registry::names()) {
    SCOPED_TRACE(name);
    QWidget& window = open(name);
    std::vector<QWidget*> order;
    for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
      if (at->isVisible() && (at->focusPolicy() & Qt::TabFocus) != 0 &&
          !at->objectName().startsWith("qt_")) {
        order.push_back(at);
      }
    }
    for (std::size_t i = 1; i < order.size(); ++i) {
      const QPoint before = order[i - 1]->mapTo(&window, QPoint{});
      const QPoint after = order[i]->mapTo(&window, QPoint{});
      EXPECT_TRUE(after.y() > before.y() || after.x() > before.x())
          << name_of(*order[i - 1]) << " before " << name_of(*order[i]);
    }
    const auto* first_box = window.findChild<QLineEdit*>();
    if (first_box != nullptr && first_box->isVisible()) {
      // A combo box has the focus in place of its line edit.
      const QWidget* focused = window.focusWidget();
      EXPECT_TRUE(qobject_cast<const QLineEdit*>(focused) != nullptr ||
                  qobject_cast<const QComboBox*>(focused) != nullptr);
    }
  }
}

TEST_F(AllWindows, ComputeByEnterInEveryBoxAndCloseByEscape) {
  for (const std::string& name : ui::registry::names()) {
    SCOPED_TRACE(name);
    QWidget& window = open(name);
    desktop().find(name)->show_example();
    const auto buttons = window.findChildren<QPushButton*>();
    const auto compute = std::ranges::find_if(buttons, &QPushButton::isDefault);
    int computed = 0;
    if (compute != buttons.end()) {
      QObject::connect(*compute, &QPushButton::clicked, &window, [&] { ++computed; });
      for (QWidget* control : visible_controls(window)) {
        if (dynamic_cast<ui::TextBox*>(control) != nullptr) {
          computed = 0;
          QTest::keyClick(control, Qt::Key_Return);
          EXPECT_EQ(computed, 1) << name_of(*control);
        }
      }
    }
    if (name != "FRMETERLAB") {
      driven(name).press(Qt::Key_Escape);
      EXPECT_FALSE(is_open(name));
    }
  }
  EXPECT_TRUE(boxes().empty());
}

TEST_F(AllWindows, NameEveryInputForScreenReaders) {
  for (const std::string& name : ui::registry::names()) {
    SCOPED_TRACE(name);
    for (const QWidget* control : visible_controls(open(name))) {
      if (qobject_cast<const QLineEdit*>(control) != nullptr ||
          qobject_cast<const QComboBox*>(control) != nullptr) {
        EXPECT_NE(control->accessibleName(), "") << name_of(*control);
      }
      if (const auto* button = qobject_cast<const QAbstractButton*>(control); button != nullptr) {
        EXPECT_NE(button->text() + button->accessibleName(), "") << name_of(*control);
      }
    }
  }
}

// The texts announced to screen readers since the last call.
std::vector<std::string> announced;

void note_announcement(QAccessibleEvent* event) {
  if (event->type() == QAccessible::Alert) {
    announced.push_back(from_qt(event->accessibleInterface()->text(QAccessible::Name)));
  }
}

// As if a screen reader ran.
QPlatformAccessibility& accessibility() {
  return *QGuiApplicationPrivate::platformIntegration()->accessibility();
}

bool tells_result(const QWidget& control) {
  const auto* label = dynamic_cast<const ui::Label*>(&control);
  return label != nullptr && !label->text().isEmpty() &&
         (label->role() == ui::Label::Role::result || label->role() == ui::Label::Role::drawing);
}

TEST_F(AllWindows, TellResultsToScreenReaders) {
  accessibility().setActive(true);
  const auto previous = QAccessible::installUpdateHandler(note_announcement);
  for (const std::string& name : ui::registry::names()) {
    SCOPED_TRACE(name);
    const QWidget& window = open(name);
    std::map<const QWidget*, QString> before;
    for (const QWidget* control : visible_controls(window)) {
      if (tells_result(*control)) {
        before[control] = static_cast<const QLabel*>(control)->text();
      }
    }
    announced.clear();
    desktop().find(name)->show_example();
    settle();
    for (QWidget* control : visible_controls(window)) {
      if (!tells_result(*control)) {
        continue;
      }
      const auto& label = static_cast<const QLabel&>(*control);
      const QAccessibleInterface* reader_view = QAccessible::queryAccessibleInterface(control);
      EXPECT_EQ(reader_view->role(), QAccessible::StaticText) << name_of(label);
      EXPECT_EQ(reader_view->text(QAccessible::Name), label.text()) << name_of(label);
      EXPECT_NE(label.textInteractionFlags() & Qt::TextSelectableByMouse, 0) << name_of(label);
      EXPECT_EQ(label.focusPolicy() & Qt::TabFocus, 0) << name_of(label);
      if (before[control] != label.text()) {
        EXPECT_NE(std::ranges::find(announced, from_qt(label.text())), announced.end())
            << name_of(label) << " changed silently to " << from_qt(label.text());
      }
    }
  }
  QAccessible::installUpdateHandler(previous);
  accessibility().setActive(false);
}

TEST_F(AllWindows, MenuEntriesOpenThemInTheirMode) {
  for (const shell::MenuEntry& entry : shell::menu_catalogue()) {
    if (!entry.is_submenu() && ui::registry::contains(entry.window)) {
      const test::Driven window = choose(entry.name);
      EXPECT_TRUE(window.window().isVisible()) << entry.name;
      EXPECT_EQ(window.window().isModal(), entry.showing == ui::Showing::modal) << entry.name;
      close(entry.window);
    }
  }
}

}  // namespace
}  // namespace eterlab
