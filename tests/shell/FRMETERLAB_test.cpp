#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <functional>

#include "shell/menu_catalogue.h"
#include "support/window_test.h"
#include "ui/text.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

constexpr const char* red = "#ff0000";
constexpr const char* blue = "#0000ff";

class FRMETERLAB : public WindowTest {
 protected:
  test::Driven window = main_window();

  [[nodiscard]] QTimer& timer() const { return *window.window().findChild<QTimer*>("Timer1"); }
  [[nodiscard]] QMenuBar& bar() const { return *window.window().findChild<QMenuBar*>(); }
};

TEST_F(FRMETERLAB, TextsAndPlaces) {
  EXPECT_EQ(window.window().windowTitle(), "ETERLAB    -   IL PRONTUARIO");
  EXPECT_EQ(window.text("lbltitolo"), "ETERLAB");
  EXPECT_EQ(window.tooltip("lbltitolo"), "clicca per fermare");
  EXPECT_EQ(window.text("LBLVERSIONE"), " vers. 2.13");
  EXPECT_EQ(window.tooltip("LBLVERSIONE"), "maggio 2002");
  EXPECT_EQ(window.text("lblrisoluzione"), "RISOLUZIONE 1280 x 1024");
  EXPECT_EQ(window.text("cmdexit"), "");
  EXPECT_EQ(window.tooltip("cmdexit"), "CHIUDI TUTTO");
  EXPECT_EQ(window.control("cmdexit").geometry(), QRect(496, 344, 57, 41));
  EXPECT_EQ(window.control("background").size(), QSize(567, 394));
  EXPECT_EQ(window.control("lbltitolo").font().pointSizeF(), 20.25);
  EXPECT_TRUE(window.control("lbltitolo").font().bold());
}

// A resource that a linker dropped would leave the window without a picture of its own.
TEST_F(FRMETERLAB, CarriesTheProgramsIconInTheSizesOfADesktop) {
  const QIcon icon = window.window().windowIcon();
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
  }
}

TEST_F(FRMETERLAB, TitleBlinksUntilItIsClicked) {
  EXPECT_EQ(timer().interval(), 1000);
  EXPECT_EQ(window.colour("lbltitolo"), red);
  timer().setInterval(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.colour("lbltitolo") == blue; }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.colour("lbltitolo") == red; }));
  window.click("lbltitolo");
  const std::string frozen = window.colour("lbltitolo");
  QTest::qWait(10);
  EXPECT_EQ(window.colour("lbltitolo"), frozen);
  EXPECT_FALSE(timer().isActive());
}

TEST_F(FRMETERLAB, MenuBarIsTheCatalogue) {
  const auto catalogue = shell::menu_catalogue();
  std::vector<std::string> expected;
  for (const shell::MenuEntry& entry : catalogue) {
    expected.push_back(std::string{entry.name} + "|" + std::string{entry.caption});
  }
  std::vector<std::string> shown;
  const std::function<void(const QWidget&)> walk = [&](const QWidget& menu) {
    for (const QAction* action : menu.actions()) {
      shown.push_back(ui::from_qt(action->objectName() + "|" + action->text()));
      EXPECT_TRUE(action->isEnabled() && action->isVisible() && !action->isCheckable() &&
                  !action->isSeparator() && action->shortcut().isEmpty());
      if (action->menu() != nullptr) {
        EXPECT_EQ(action->menu()->objectName(), action->objectName());
        walk(*action->menu());
      }
    }
  };
  walk(bar());
  EXPECT_EQ(shown, expected);
}

TEST_F(FRMETERLAB, AllTenMenusFitTheWindow) {
  for (const QAction* action : bar().actions()) {
    EXPECT_TRUE(bar().rect().contains(bar().actionGeometry(const_cast<QAction*>(action))))
        << ui::from_qt(action->text());
  }
}

TEST_F(FRMETERLAB, MenusOpenWithTheMouseAndTheKeyboard) {
  QAction* volt = bar().actions().front();
  QTest::mouseClick(&bar(), Qt::LeftButton, {}, bar().actionGeometry(volt).center());
  ASSERT_TRUE(volt->menu()->isVisible());
  QTest::mouseClick(volt->menu(), Qt::LeftButton, {},
                    volt->menu()->actionGeometry(volt->menu()->actions().front()).center());
  EXPECT_TRUE(is_open("frmleggediohm"));
  close("frmleggediohm");

  bar().setActiveAction(volt);
  for (int entry = 0; entry < 3; ++entry) {  // the third one of the menu
    QTest::keyClick(volt->menu(), Qt::Key_Down);
  }
  QTest::keyClick(volt->menu(), Qt::Key_Return);
  EXPECT_TRUE(is_open("frmvolt"));
}

TEST_F(FRMETERLAB, AnEntryWithoutAWindowSaysSo) {
  window.window().findChild<QAction*>("mnuinfo")->trigger();
  EXPECT_EQ(boxes(), Boxes{test::notice("FINESTRA NON ANCORA DISPONIBILE")});
}

TEST_F(FRMETERLAB, EscapeDoesNotCloseIt) {
  window.press(Qt::Key_Escape);
  EXPECT_TRUE(is_open("FRMETERLAB"));
}

TEST_F(FRMETERLAB, ClosingItLeavesTheOthersOpen) {
  choose("mnuvoltwatt");
  window.click("cmdexit");
  EXPECT_FALSE(is_open("FRMETERLAB"));
  EXPECT_TRUE(is_open("frmvoltwatt"));
}

}  // namespace
}  // namespace eterlab
