#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <map>
#include <set>

#include "shell/menu_catalogue.h"
#include "support/layout_faults.h"
#include "support/window_test.h"
#include "ui/label.h"
#include "ui/text.h"
#include "ui/text_box.h"

// What must hold for every window, whichever they are.

namespace eterlab::test {
namespace {

using AllWindows = WindowTest;

TEST_F(AllWindows, AreNamedAndTitled) {
  for_each_window([this](ui::Window& window) {
    EXPECT_EQ(desktop().find(name_of(window)), &window);
    EXPECT_NE(window.windowTitle(), "");
    window.show_example();  // some show their results then
    std::set<QString> names;
    for (const QWidget* control : visible_controls(window)) {
      EXPECT_TRUE(names.insert(control->objectName()).second) << name_of(*control);
    }
  });
}

/// Looks at a window in every option of its choices, as it comes and with results.
class AllLayouts : public WindowTest {
 protected:
  void look_at(ui::Window& window) {
    EXPECT_EQ(layout_faults(window), Texts{});
    window.show_example();
    settle();
    EXPECT_EQ(layout_faults(window), Texts{});
    for (QRadioButton* option : visible<QRadioButton>(window)) {
      SCOPED_TRACE(name_of(*option));
      option->click();
      settle();
      EXPECT_EQ(layout_faults(window), Texts{});
      compute(window);
      if (has_ended()) {
        return start_anew();
      }
      EXPECT_EQ(layout_faults(window), Texts{});
    }
  }

 private:
  /// With any numbers where the option has emptied the boxes; some are refused.
  void compute(ui::Window& window) {
    int number = 20;
    for (ui::TextBox* box : visible<ui::TextBox>(window)) {
      if (box->content().empty() && !box->isReadOnly()) {
        *box = std::to_string(number--);
      }
    }
    Driven{window}.press(Qt::Key_Return);
    settle();
    boxes();
  }
};

TEST_F(AllLayouts, AreSoundInEveryFontSize) {
  const QFont usual = QApplication::font();
  for (const double scale : {1.0, 1.5}) {
    SCOPED_TRACE(scale);
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * scale);
    QApplication::setFont(font);
    for_each_window([this](ui::Window& window) { look_at(window); });
  }
  QApplication::setFont(usual);
}

TEST_F(AllWindows, GrowForResultsByWholeLinesOnly) {
  const int line = QFontMetrics{QApplication::font()}.height();
  for_each_window([line](ui::Window& window) {
    const QSize opening = window.size();
    window.show_example();
    settle();
    EXPECT_EQ(window.width(), opening.width());
    const int growth = window.height() - opening.height();
    EXPECT_TRUE(growth == 0 || growth >= line) << growth;
  });
}

TEST_F(AllWindows, BeginInTheirFirstInputAndGoOnInReadingOrder) {
  for_each_window([](ui::Window& window) {
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
      const auto* box = qobject_cast<const QLineEdit*>(window.focusWidget());
      // A combo box has the focus in place of its line edit.
      if (const auto* list = qobject_cast<const QComboBox*>(window.focusWidget())) {
        box = list->lineEdit();
      }
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->selectedText(), box->text());
    }
  });
}

TEST_F(AllWindows, ComputeByEnterInEveryBoxAndCloseByEscape) {
  for_each_window([this](ui::Window& window) {
    window.show_example();
    int computed = 0;
    for (const QPushButton* button : window.findChildren<QPushButton*>()) {
      if (button->isDefault()) {
        QObject::connect(button, &QPushButton::clicked, &window, [&] { ++computed; });
        for (ui::TextBox* box : visible<ui::TextBox>(window)) {
          computed = 0;
          QTest::keyClick(box, Qt::Key_Return);
          EXPECT_EQ(computed, 1) << name_of(*box);
        }
      }
    }
    EXPECT_EQ(boxes(), Boxes{});
    const std::string name = name_of(window);
    Driven{window}.press(Qt::Key_Escape);
    EXPECT_EQ(is_open(name), name == "FRMETERLAB");
    EXPECT_FALSE(has_ended());
  });
}

TEST_F(AllWindows, NameEveryInputForScreenReaders) {
  for_each_window([](const ui::Window& window) {
    for (const QWidget* control : visible_controls(window)) {
      const auto* button = qobject_cast<const QAbstractButton*>(control);
      if (button != nullptr || qobject_cast<const QLineEdit*>(control) != nullptr ||
          qobject_cast<const QComboBox*>(control) != nullptr) {
        const QString text = button == nullptr ? "" : button->text();
        EXPECT_NE(text + control->accessibleName(), "") << name_of(*control);
      }
    }
  });
}

// The texts announced to screen readers since the last call.
std::set<QString> announced;

void note_announcement(QAccessibleEvent* event) {
  if (event->type() == QAccessible::Alert) {
    announced.insert(event->accessibleInterface()->text(QAccessible::Name));
  }
}

/// The results that a window shows, and their texts.
std::map<ui::Label*, QString> results_on(const ui::Window& window) {
  std::map<ui::Label*, QString> results;
  for (ui::Label* label : visible<ui::Label>(window)) {
    const bool is_result =
        label->role() == ui::Label::Role::result || label->role() == ui::Label::Role::drawing;
    if (is_result && !label->text().isEmpty()) {
      results[label] = label->text();
    }
  }
  return results;
}

TEST_F(AllWindows, TellResultsToScreenReaders) {
  // As if a screen reader ran.
  auto& accessibility = *QGuiApplicationPrivate::platformIntegration()->accessibility();
  accessibility.setActive(true);
  const auto previous = QAccessible::installUpdateHandler(note_announcement);
  for_each_window([](ui::Window& window) {
    auto before = results_on(window);
    announced.clear();
    window.show_example();
    settle();
    for (const auto& [label, text] : results_on(window)) {
      SCOPED_TRACE(name_of(*label));
      const QAccessibleInterface* reader_view = QAccessible::queryAccessibleInterface(label);
      EXPECT_EQ(reader_view->role(), QAccessible::StaticText);
      EXPECT_EQ(reader_view->text(QAccessible::Name), text);
      EXPECT_TRUE(dynamic_cast<const ui::Label&>(*label).can_be_copied());
      EXPECT_EQ(label->focusPolicy() & Qt::TabFocus, 0);
      EXPECT_TRUE(before[label] == text || announced.contains(text)) << ui::from_qt(text);
    }
  });
  QAccessible::installUpdateHandler(previous);
  accessibility.setActive(false);
}

TEST_F(AllWindows, MenuEntriesOpenThemInTheirMode) {
  for (const shell::MenuEntry& entry : shell::menu_catalogue()) {
    if (!entry.is_submenu()) {
      const Driven window = choose(entry.name);
      EXPECT_TRUE(window.window().isVisible()) << entry.name;
      EXPECT_EQ(window.window().isModal(), entry.showing == ui::Showing::modal) << entry.name;
      close(entry.window);
    }
  }
}

}  // namespace
}  // namespace eterlab::test
