#include "ui/label.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <algorithm>
#include <string>

#include "common/regional_settings.h"
#include "ui/text.h"
#include "ui/window_text.h"

namespace eterlab {
namespace {

class ResultText : public ::testing::Test {
 protected:
  ResultText() {
    QApplication::clipboard()->clear();
    result.resize(result.sizeHint());
    result.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&result));
  }

  void double_click() { QTest::mouseDClick(&result, Qt::LeftButton, {}, {5, result.height() / 2}); }

  /// Chooses an entry of the context menu.
  void choose(int entry) {
    QContextMenuEvent event{QContextMenuEvent::Mouse, {}, result.mapToGlobal(QPoint{})};
    QApplication::sendEvent(&result, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    menu->actions()[entry]->trigger();
    menu->close();
  }

  static std::string copied() { return QApplication::clipboard()->text().toStdString(); }

  ui::Result result{nullptr, "lblout", "MHz 123"};
};

TEST_F(ResultText, IsSelectedByMouseAndCopiedByKeys) {
  double_click();
  QTest::keyClick(&result, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(copied(), "MHz");
}

TEST_F(ResultText, IsCopiedByContextMenuWholeOrAsSelected) {
  choose(0);
  EXPECT_EQ(copied(), "MHz 123");
  double_click();
  choose(0);
  EXPECT_EQ(copied(), "MHz");
  choose(2);
  EXPECT_EQ(result.selectedText(), "MHz 123");
}

TEST_F(ResultText, ItsNumberIsCopiedAsOneTypesIt) {
  set_regional_settings({",", ".", 3, 3, 2});
  const std::pair<const char*, const char*> table[] = {
      {"C1 = 1.234.567,25 pF", "1234567.25"},
      {"VALORE E24 = -4,7E-12 F", "-4.7E-12"},
      {"16 SPIRE, 3 STRATI", "16"},
      {"NUCLEO T50", ""},
      {"L = 12.", "12"},
      {"R1 = OLTRE 20", "20"},
  };
  for (const auto& [told, number] : table) {
    EXPECT_EQ(ui::number_in(told), number) << told;
  }
  set_regional_settings({",", "\u202f", 3, 3, 2});
  EXPECT_EQ(ui::number_in("= 1\u202f234,5"), "1234.5");
  set_regional_settings({});
  choose(1);
  EXPECT_EQ(copied(), "123");
}

// The toolkit's own label finds its glyphs anew each time; what it measures and paints is the
// model.
TEST(Label, IsMeasuredAndPaintedAsTheToolkitsOwn) {
  const std::string texts[] = {
      "", "MHz 123", "LUNGHEZZA D'ONDA : ", "PRIMA RIGA\nE SECONDA",
      "IL FRENO DELL'ANODO E' \u03bc = 20, CON 250 V IN ENTRATA E 15 IN USCITA "};
  for (const std::string& text : texts) {
    for (const bool wraps : {false, true}) {
      for (const Qt::Alignment alignment :
           {Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignCenter | Qt::AlignBottom,
            Qt::AlignRight | Qt::AlignTop}) {
        ui::Label ours{nullptr, "lblours", text};
        QLabel model{ui::to_qt(text)};
        for (QLabel* label : {static_cast<QLabel*>(&ours), &model}) {
          label->setWordWrap(wraps);
          label->setAlignment(alignment);
          label->resize(151, 90);
        }
        EXPECT_EQ(ours.grab().toImage(), model.grab().toImage()) << text << wraps << alignment;
        if (wraps && !text.empty()) {
          EXPECT_EQ(ours.heightForWidth(151), model.heightForWidth(151)) << text;
        } else if (!text.empty()) {
          EXPECT_EQ(ours.sizeHint(), model.sizeHint()) << text;
        }
      }
    }
  }
}

TEST(Label, KeepsRoomForTheWidestOfSeveralTexts) {
  ui::Label label{nullptr, "lblout"};
  int widest = 0;
  for (const char* text : {"W", "999.999,999", "1,5 "}) {
    label.reserve(text);
    widest = std::max(widest, ui::Label{nullptr, "lblmodel", text}.sizeHint().width());
    EXPECT_EQ(label.minimumWidth(), widest) << text;
  }
}

}  // namespace
}  // namespace eterlab
