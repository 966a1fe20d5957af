#include "ui/desktop.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <cstdlib>

#include "support/window_test.h"
#include "ui/registry.h"
#include "ui/ui.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

// A window that does at each event what the windows of the program may do.
class frmprova final : public ui::Window {
  ui::TextBox txtprova{this, "txtprova"};
  ui::Result lblprova{this, "lblprova"};
  ui::Button cmdcompagna{this, "cmdcompagna", "COMPAGNA"};
  ui::Button cmdmanca{this, "cmdmanca", "MANCA"};
  ui::Button cmdcentro{this, "cmdcentro", "CENTRO"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmprova() : Window{"frmprova", "PROVA"} {
    arrange(ui::column(txtprova, lblprova,
                       ui::buttons(cmdcompagna, cmdmanca, cmdcentro, cmdcalcola, cmdesci)));
    txtprova.on_change([this] { lblprova = std::to_string((1 / txtprova.number()).value()); });
    cmdcompagna.on_click([this] { open_companion("frmvoltwatt", {180, 300}, {4100, 2800}); });
    cmdmanca.on_click([this] { open_companion("frmnessuna", {180, 300}, {4100, 2800}); });
    cmdcentro.on_click([this] { centre_on_screen(); });
    cmdcalcola.on_click([this] { txtprova = "0"; });
  }
  void load() override { lblprova = "caricata"; }
};

class Desktop : public WindowTest {
 protected:
  Desktop() {
    if (!ui::registry::contains("frmprova")) {
      const ui::Registration<frmprova> registration{"frmprova"};
    }
  }

  test::Driven open() {
    desktop().show("frmprova");
    return driven("frmprova");
  }
};

TEST_F(Desktop, OneInstanceThatStartsAnewAfterClosing) {
  const test::Driven window = open();
  EXPECT_EQ(window.text("lblprova"), "caricata");
  window.type("txtprova", "4");
  EXPECT_EQ(open().text("txtprova"), "4");
  EXPECT_EQ(&open().window(), &window.window());
  const QPointer<QWidget> closed = &window.window();
  window.press(Qt::Key_Escape);
  EXPECT_FALSE(is_open("frmprova"));
  EXPECT_EQ(open().text("txtprova"), "");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(closed.isNull());
}

TEST_F(Desktop, LoadsWithoutShowing) {
  desktop().place("frmprova", {4100, 3000});
  ASSERT_NE(desktop().find("frmprova"), nullptr);
  EXPECT_FALSE(is_open("frmprova"));
  EXPECT_EQ(open().window().pos(), QPoint(273, 200));
}

TEST_F(Desktop, CompanionsStandAtTheirPlaces) {
  const test::Driven window = open();
  window.click("cmdcompagna");
  EXPECT_EQ(window.window().pos(), QPoint(12, 20));
  expect_companion("frmvoltwatt", {273, 187});
  EXPECT_EQ(boxes(), Boxes{});

  window.click("cmdmanca");
  EXPECT_EQ(boxes(), Boxes{test::notice("FINESTRA NON ANCORA DISPONIBILE")});
}

TEST_F(Desktop, CentresAWindow) {
  const test::Driven window = open();
  window.click("cmdcentro");
  const QPoint off =
      window.window().frameGeometry().center() - window.window().screen()->geometry().center();
  EXPECT_LE(std::abs(off.x()), 1);
  EXPECT_LE(std::abs(off.y()), 1);
}

TEST_F(Desktop, EnterComputesAndPressesAFocusedButton) {
  const test::Driven window = open();
  window.type("txtprova", "4");
  window.control("cmdesci").setFocus();
  window.press(Qt::Key_Return);
  EXPECT_FALSE(is_open("frmprova"));
}

TEST_F(Desktop, AFaultInAHandlerEndsTheProgram) {
  open().type("txtprova", "0");
  EXPECT_EQ(boxes(),
            (Boxes{{"ERRORE DI CALCOLO", "DIVISIONE PER ZERO. IL PROGRAMMA VIENE CHIUSO.", true}}));
  EXPECT_TRUE(has_ended());
  EXPECT_FALSE(is_open("frmprova"));
  EXPECT_FALSE(is_open("FRMETERLAB"));
}

TEST_F(Desktop, ANumberBeyondTheRangeIsAFaultToo) {
  open().control("txtprova").setProperty("text", "1e400");
  EXPECT_EQ(
      boxes(),
      (Boxes{{"ERRORE DI CALCOLO", "NUMERO TROPPO GRANDE. IL PROGRAMMA VIENE CHIUSO.", true}}));
}

TEST_F(Desktop, AFaultInsideAHandlerOfAnotherEndsItOnce) {
  const test::Driven window = open();
  window.type("txtprova", "4");
  window.click("cmdcalcola");  // its handler edits the box, whose handler divides by zero
  EXPECT_EQ(boxes().size(), 1U);
  EXPECT_TRUE(desktop().is_ending());
}

}  // namespace
}  // namespace eterlab
