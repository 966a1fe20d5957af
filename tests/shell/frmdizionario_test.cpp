#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "shell/dictionary.h"
#include "support/window_test.h"
#include "ui/text.h"

namespace eterlab {
namespace {

const std::string design_text = "A/D  =  convertitore da analogico a digitale";

class frmdizionario : public test::WindowTest {
 protected:
  test::Driven window = choose("mnudizionario");
  QComboBox& list = dynamic_cast<QComboBox&>(window.control("cbodizionario"));
};

TEST_F(frmdizionario, OpensWithItsDesignTextOverTheWholeList) {
  EXPECT_EQ(window.window().windowTitle(), "Abbreviazioni e terminologia ricorrente");
  EXPECT_EQ(window.text("cbodizionario"), design_text);
  EXPECT_EQ(window.tooltip("cbodizionario"), "clicca sulla freccia");
  const auto entries = shell::dictionary();
  ASSERT_EQ(list.count(), static_cast<int>(entries.size()));
  for (int i = 0; i < list.count(); ++i) {
    EXPECT_EQ(ui::from_qt(list.itemText(i)), entries[static_cast<std::size_t>(i)]);
  }
}

TEST_F(frmdizionario, CursorKeysChoose) {
  list.setFocus();
  window.press(Qt::Key_Down);
  EXPECT_EQ(window.text("cbodizionario"), "AC  =  corrente alternata");
  window.press(Qt::Key_Down);
  EXPECT_EQ(window.text("cbodizionario"), "ACORN TUBE = valvola a ghianda ");
  window.press(Qt::Key_Up);
  EXPECT_EQ(window.text("cbodizionario"), "AC  =  corrente alternata");
}

TEST_F(frmdizionario, MouseChooses) {
  list.showPopup();
  settle();
  const QModelIndex last = list.model()->index(list.count() - 1, 0);
  list.view()->scrollTo(last);
  QTest::mouseMove(list.view()->viewport(), list.view()->visualRect(last).center());
  QTest::mouseClick(list.view()->viewport(), Qt::LeftButton, {},
                    list.view()->visualRect(last).center());
  settle();
  EXPECT_EQ(window.text("cbodizionario"), "XTAL  = cristallo di quarzo ");
}

TEST_F(frmdizionario, TypingChoosesNothing) {
  list.lineEdit()->setFocus();
  list.lineEdit()->selectAll();
  QTest::keyClicks(list.lineEdit(), "xt");
  QTest::keyClick(list.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(window.text("cbodizionario"), "xt");
  EXPECT_EQ(list.count(), static_cast<int>(shell::dictionary().size()));
  EXPECT_TRUE(is_open("frmdizionario"));
}

TEST_F(frmdizionario, StartsAfreshFromItsButton) {
  list.setFocus();
  window.press(Qt::Key_Down);
  EXPECT_EQ(window.text("cmdesci"), "ESCI");
  window.click("cmdesci");
  EXPECT_FALSE(is_open("frmdizionario"));
  EXPECT_EQ(choose("mnudizionario").text("cbodizionario"), design_text);
}

TEST_F(frmdizionario, BoxStandsWhereTheDesignHasIt) {
  EXPECT_EQ(list.mapTo(&window.window(), QPoint{}), QPoint(16, 16));
  EXPECT_GE(list.width(), 329);
}

}  // namespace
}  // namespace eterlab
