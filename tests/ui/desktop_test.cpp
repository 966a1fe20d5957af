#include "ui/desktop.h"

#include <QPointer>

#include "support/window_test.h"
#include "ui/registry.h"
#include "ui/ui.h"

namespace eterlab::test {
namespace {

// A window that does at each event what the windows of the program may do.
class frmprova final : public ui::Window {
  ui::TextBox txtprova{this, "txtprova"};
  ui::Result lblprova{this, "lblprova"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmprova() : Window{"frmprova", "PROVA"} {
    arrange(ui::column(txtprova, lblprova, ui::buttons(cmdcalcola, cmdesci)));
    txtprova.on_change([this] { lblprova = std::to_string((1 / txtprova.number()).value()); });
    cmdcalcola.on_click([this] { txtprova = "0"; });
  }
  void load() override { lblprova = "caricata"; }
};

class Desktop : public WindowTest {
 protected:
  const ui::Registration<frmprova> registration{"frmprova"};

  Driven open() {
    desktop().show("frmprova");
    return driven("frmprova");
  }
  void expect_fault(const char* text) {
    EXPECT_EQ(boxes(), Boxes{std::string{"! ERRORE DI CALCOLO: "} + text});
    EXPECT_TRUE(has_ended());
    EXPECT_TRUE(desktop().is_ending());
    EXPECT_FALSE(is_open("frmprova"));
    EXPECT_FALSE(is_open("FRMETERLAB"));
  }
};

TEST_F(Desktop, OneInstanceThatStartsAnewAfterClosing) {
  const Driven window = open();
  EXPECT_EQ(window.text("lblprova"), "caricata");
  window.type("txtprova", "4");
  EXPECT_EQ(open().text("txtprova"), "4");
  EXPECT_EQ(&open().window(), &window.window());
  const QPointer<QWidget> closed = &window.window();
  window.press(Qt::Key_Escape);
  EXPECT_FALSE(is_open("frmprova"));
  EXPECT_EQ(open().text("txtprova"), "");
  settle();
  EXPECT_TRUE(closed.isNull());
}

TEST_F(Desktop, LoadsWithoutShowing) {
  desktop().place("frmprova", {4100, 3000});
  ASSERT_NE(desktop().find("frmprova"), nullptr);
  EXPECT_FALSE(is_open("frmprova"));
  EXPECT_EQ(open().window().pos(), QPoint(273, 200));
}

TEST_F(Desktop, EnterPressesAFocusedButton) {
  const Driven window = open();
  window.control("cmdesci").setFocus();
  window.press(Qt::Key_Return);
  EXPECT_FALSE(is_open("frmprova"));
}

TEST_F(Desktop, AFaultInAHandlerEndsTheProgramOnce) {
  const Driven window = open();
  window.type("txtprova", "4");
  window.click("cmdcalcola");    // its handler edits the box, whose handler divides by zero
  window.type("txtprova", "0");  // handled no more
  expect_fault("DIVISIONE PER ZERO. IL PROGRAMMA VIENE CHIUSO.");
  start_anew();
  open().control("txtprova").setProperty("text", "1e400");
  expect_fault("NUMERO TROPPO GRANDE. IL PROGRAMMA VIENE CHIUSO.");
}

}  // namespace
}  // namespace eterlab::test
