#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <functional>

#include "shell/dictionary.h"
#include "shell/menu_catalogue.h"
#include "support/window_test.h"
#include "ui/text.h"

namespace eterlab::test {
namespace {

class FRMETERLAB : public WindowTest {
 protected:
  Driven window = main_window();

  /// The text of an entry that keys have gone to.
  static std::string told(const QAction* entry) {
    return entry == nullptr ? "" : ui::from_qt(entry->text());
  }
  [[nodiscard]] QMenuBar& bar() const { return *window.window().findChild<QMenuBar*>(); }
};

TEST_F(FRMETERLAB, StandsInItsPlacesAndEscapeDoesNotCloseIt) {
  EXPECT_EQ(window.control("cdmexit").geometry(), QRect(496, 344, 57, 41));
  EXPECT_EQ(window.control("background").size(), QSize(567, 394));
  EXPECT_EQ(window.control("lbltitolo").font().pointSizeF(), 20.25);
  window.press(Qt::Key_Escape);
  EXPECT_TRUE(is_open("FRMETERLAB"));
}

// A resource that a linker dropped would leave the window without a picture of its own.
TEST_F(FRMETERLAB, CarriesTheProgramsIconInTheSizesOfWindows) {
  const QIcon icon = window.window().windowIcon();
  for (const int size : {16, 22, 24, 32, 48, 64}) {
    EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
  }
}

TEST_F(FRMETERLAB, TitleBlinksUntilItIsClicked) {
  auto& timer = *window.window().findChild<QTimer*>("Timer1");
  EXPECT_EQ(timer.interval(), 1000);
  const auto colour_after_a_second = [&] {
    QTimerEvent second{timer.timerId()};
    QCoreApplication::sendEvent(&timer, &second);
    return window.colour("lbltitolo");
  };
  EXPECT_EQ(window.colour("lbltitolo"), "#ff0000");
  EXPECT_EQ(colour_after_a_second(), "#0000ff");
  EXPECT_EQ(colour_after_a_second(), "#ff0000");
  window.click("lbltitolo");
  EXPECT_FALSE(timer.isActive());
}

TEST_F(FRMETERLAB, MenuBarIsTheCatalogueAndFitsTheWindow) {
  std::vector<std::string> expected;
  for (const shell::MenuEntry& entry : shell::menu_catalogue()) {
    expected.push_back(std::string{entry.name} + "|" + std::string{entry.caption});
  }
  std::vector<std::string> shown;
  const std::function<void(const QWidget&)> walk = [&](const QWidget& menu) {
    for (const QAction* action : menu.actions()) {
      shown.push_back(ui::from_qt(action->objectName() + "|" + action->text()));
      EXPECT_TRUE(action->isEnabled() && action->isVisible() && !action->isCheckable() &&
                  !action->isSeparator() && action->shortcut().isEmpty());
      if (action->menu() != nullptr) {
        walk(*action->menu());
      }
    }
  };
  walk(bar());
  EXPECT_EQ(shown, expected);
  for (QAction* action : bar().actions()) {
    EXPECT_TRUE(bar().rect().contains(bar().actionGeometry(action))) << ui::from_qt(action->text());
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
  QTest::keyClick(&window.window(), Qt::Key_F10);
  QTest::keyClicks(volt->menu(), "volt r");
  QTest::keyClick(volt->menu(), Qt::Key_Return);
  EXPECT_TRUE(is_open("frmvolt"));
}

TEST_F(FRMETERLAB, LettersGoToEntriesThatBeginWithThem) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window.window()));
  QTest::keyClick(&window.window(), Qt::Key_F10);
  QAction* volt = bar().actions().front();
  ASSERT_TRUE(volt->menu()->isVisible());
  const std::pair<const char*, const char*> table[] = {
      {"c", "Corrente alternata"},
      {"d", "Decibel"},
      {"d", "Duplicatori di tensione"},
      {"d", "Decibel"},
      {"x", "Decibel"},
      {"d", "Decibel"},
      {"U", "Duplicatori di tensione"},
      {"v", "Volt-Amp-Ohm-Watt"},
      {"olt r", "Volt R.M.S."},
  };
  for (const auto& [typed, entry] : table) {
    QTest::keyClicks(volt->menu(), typed);
    EXPECT_EQ(told(volt->menu()->activeAction()), entry) << typed;
    EXPECT_TRUE(volt->menu()->isVisible());
  }
  EXPECT_EQ(QApplication::activePopupWidget(), volt->menu()) << "a submenu opened";
  // Typed letters are forgotten with the menu.
  QTest::keyClicks(volt->menu(), "d");
  QTest::keyClick(volt->menu(), Qt::Key_Escape);
  QTest::keyClick(&bar(), Qt::Key_Down);
  QTest::keyClicks(volt->menu(), "u");
  EXPECT_NE(told(volt->menu()->activeAction()), "Duplicatori di tensione");
  QTest::keyClick(volt->menu(), Qt::Key_Escape);
  // The bar by itself.
  QTest::keyClicks(&bar(), "l");
  EXPECT_EQ(told(bar().activeAction()), "Linee");
  QTest::keyClicks(&bar(), "l");
  EXPECT_EQ(told(bar().activeAction()), "Leggimi");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_FALSE(is_open("frmabaut"));
}

TEST_F(FRMETERLAB, EnterAndSpaceLeaveTheProgramOpen) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window.window()));
  const auto press_both = [&] {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
      QTest::keyClick(
          QApplication::focusWidget() == nullptr ? &window.window() : QApplication::focusWidget(),
          key);
    }
  };
  press_both();
  ASSERT_TRUE(is_open("FRMETERLAB"));
  choose("mnuohm");
  close("frmleggediohm");
  window.window().activateWindow();
  settle();
  press_both();
  ASSERT_TRUE(is_open("FRMETERLAB"));
  QTest::keyClick(&window.window(), Qt::Key_Tab);
  EXPECT_EQ(window.focus(), "cdmexit");
  press_both();
  EXPECT_FALSE(is_open("FRMETERLAB"));
}

TEST_F(FRMETERLAB, EveryEntryIsReachedByArrowKeys) {
  int reached = 0;
  const std::function<void(QMenu&)> walk = [&](QMenu& menu) {
    for (QAction* entry : menu.actions()) {
      if (menu.activeAction() != entry) {  // the first one of a submenu is active from its opening
        QTest::keyClick(&menu, Qt::Key_Down);
      }
      ASSERT_EQ(menu.activeAction(), entry);
      ++reached;
      if (entry->menu() != nullptr) {
        QTest::keyClick(&menu, Qt::Key_Right);
        ASSERT_TRUE(entry->menu()->isVisible());
        walk(*entry->menu());
        QTest::keyClick(entry->menu(), Qt::Key_Left);
        ASSERT_FALSE(entry->menu()->isVisible());
      }
    }
  };
  bar().setActiveAction(bar().actions().front());
  for (QAction* top : bar().actions()) {
    ASSERT_EQ(bar().activeAction(), top);
    ++reached;
    if (top->menu() != nullptr) {
      QTest::keyClick(&bar(), Qt::Key_Down);
      ASSERT_TRUE(top->menu()->isVisible());
      walk(*top->menu());
      QTest::keyClick(top->menu(), Qt::Key_Escape);
    }
    QTest::keyClick(&bar(), Qt::Key_Right);
  }
  EXPECT_EQ(reached, static_cast<int>(shell::menu_catalogue().size()));
}

TEST_F(FRMETERLAB, ClosingItLeavesTheOthersOpen) {
  choose("mnuvoltwatt");
  window.click("cdmexit");
  EXPECT_FALSE(is_open("FRMETERLAB"));
  EXPECT_TRUE(is_open("frmvoltwatt"));
}

using frmabaut = WindowTest;

TEST_F(frmabaut, TellsNameVersionAndLicenceAsTheMainWindowAndTheProjectDo) {
  const std::string told_by_main_window = main_window().text("lbltitolo LBLVERSIONE");
  const Driven window = choose("mnuinfo");
  EXPECT_EQ(window.text("lbltitolo lblversione"), told_by_main_window);
  const std::string of_program = window.text("lbltesto_5");
  for (const std::string known : {ETERLAB_VERSION, qVersion(), "MIT License"}) {
    EXPECT_NE(of_program.find(known), std::string::npos) << of_program;
  }
  const QSize size = window.window().size();
  window.click("cmdlicenza");
  settle();
  EXPECT_EQ(window.window().size(), size);
  EXPECT_EQ(window.shown("lbltesto_0 lbltasto_0 lbleffetto_5 lbltesto_5 lbllicenza"), "lbllicenza");
  QFile file{ETERLAB_LICENCE};
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(ui::to_qt(window.text("lbllicenza")).simplified(),
            QString::fromUtf8(file.readAll()).simplified());
  window.click("cmdlicenza");
  EXPECT_EQ(window.shown("lbltesto_0 lbltasto_0 lbleffetto_5 lbltesto_5 lbllicenza"),
            "lbltesto_0 lbltasto_0 lbleffetto_5 lbltesto_5");
  window.click("cmdchiudi");
  EXPECT_FALSE(is_open("frmabaut"));
}

using frmavvertenza = WindowTest;

TEST_F(frmavvertenza, IsModalAndOfItsSize) {
  desktop().show("frmavvertenza", ui::Showing::modal);
  const Driven window = driven("frmavvertenza");
  EXPECT_EQ(window.window().size(), QSize(462, 174));
  EXPECT_TRUE(window.window().isModal());
  window.click("cmdchiudi");
  EXPECT_FALSE(is_open("frmavvertenza"));
}

using frmdizionario = WindowTest;

TEST_F(frmdizionario, OpensWithItsDesignTextOverTheWholeListEveryTime) {
  for (int opening = 0; opening < 2; ++opening) {
    const Driven window = choose("mnudizionario");
    const auto& list = dynamic_cast<QComboBox&>(window.control("cbodizionario"));
    EXPECT_EQ(list.mapTo(&window.window(), QPoint{}), QPoint(16, 16));
    EXPECT_GE(list.width(), 329);
    EXPECT_EQ(list.currentText(), "A/D  =  convertitore da analogico a digitale");
    int place = 0;
    for (const std::string_view entry : shell::dictionary()) {
      EXPECT_EQ(ui::from_qt(list.itemText(place++)), entry);
    }
    EXPECT_EQ(list.count(), place);
    window.pick("cbodizionario", list.count() - 1);
    EXPECT_EQ(list.currentText(), "XTAL  = cristallo di quarzo ");
    window.click("cmdesci");
    EXPECT_FALSE(is_open("frmdizionario"));
  }
}

}  // namespace
}  // namespace eterlab::test
