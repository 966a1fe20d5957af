#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <set>

#include "shell/menu_catalogue.h"
#include "support/window_test.h"
#include "ui/registry.h"
#include "ui/text.h"
#include "ui/theme.h"

// What must hold for every window, whichever they are.

namespace eterlab {
namespace {

using ui::from_qt;

std::string name_of(const QWidget& widget) { return from_qt(widget.objectName()); }

/// The controls of a window that the user sees: those that the design names.
QList<QWidget*> visible_controls(const QWidget& window) {
  QList<QWidget*> controls;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool is_internal = widget->objectName().isEmpty() ||
                             widget->objectName().startsWith("qt_") ||
                             qobject_cast<QMenu*>(widget) != nullptr;
    if (!is_internal && widget->isVisible()) {
      controls.append(widget);
    }
  }
  return controls;
}

/// Why a control does not show its whole text; empty when it does.
std::string clipping(const QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  const QSize needed = label != nullptr && label->wordWrap()
                           ? QSize{0, label->heightForWidth(label->width())}
                           : control.minimumSizeHint();
  if (control.width() >= needed.width() && control.height() >= needed.height()) {
    return {};
  }
  return name_of(control) + " has " + std::to_string(control.width()) + "x" +
         std::to_string(control.height()) + " and needs " + std::to_string(needed.width()) + "x" +
         std::to_string(needed.height());
}

/// The room that a control's contents take of it: an empty label takes none.
QRect ink(const QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  return label != nullptr && label->text().isEmpty() ? QRect{} : control.geometry();
}

void expect_sound_layout(const QWidget& window) {
  SCOPED_TRACE(name_of(window));
  EXPECT_LE(window.width(), 1280);
  EXPECT_LE(window.height(), 1024);
  const QList<QWidget*> controls = visible_controls(window);
  for (const QWidget* control : controls) {
    EXPECT_EQ(clipping(*control), "");
    EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry()))
        << name_of(*control) << " leaves its parent";
    for (const QWidget* other : controls) {
      if (other != control && other->parentWidget() == control->parentWidget()) {
        EXPECT_FALSE(ink(*control).intersects(ink(*other)))
            << name_of(*control) << " overlaps " << name_of(*other);
      }
    }
  }
}

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
      expect_sound_layout(open(name));
      desktop().find(name)->show_example();
      settle();
      expect_sound_layout(driven(name).window());
    }
  }
  QApplication::setFont(usual);
}

TEST_F(AllWindows, BeginInTheirFirstInputAndGoOnInReadingOrder) {
  for (const std::string& name : ui::registry::names()) {
    SCOPED_TRACE(name);
    QWidget& window = open(name);
    std::vector<QWidget*> order;
    for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
      if (at->isVisible() && at->focusPolicy() & Qt::TabFocus &&
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
      EXPECT_NE(qobject_cast<QLineEdit*>(window.focusWidget()), nullptr);
    }
  }
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
