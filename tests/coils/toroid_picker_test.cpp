#include <QComboBox>
#include <QString>

#include "support/window_test.h"

// The list of cores and what is told about the chosen one, the same in all toroid windows.

namespace eterlab {
namespace {

class ToroidPicker : public test::WindowTest, public testing::WithParamInterface<const char*> {
 protected:
  test::Driven window = choose(GetParam());
  QComboBox& list = dynamic_cast<QComboBox&>(window.control("cmbnucleo"));

  std::string colours() { return window.text("lblcolore"); }
  std::string dimensions() { return window.text("lbldimensioni"); }
};

INSTANTIATE_TEST_SUITE_P(Windows, ToroidPicker,
                         testing::Values("mnunucleitoro", "mnusintoniatoro", "mnuadattatoro"));

TEST_P(ToroidPicker, BeforeAChoice) {
  EXPECT_EQ(window.text("cmbnucleo"), "TOROIDI");
  EXPECT_EQ(window.tooltip("cmbnucleo"), "CLICCARE E TASTI CURSORE O MOUSE");
  EXPECT_EQ(dimensions(), "");
  EXPECT_FALSE(window.shows("Frame1"));
  EXPECT_FALSE(window.shows("cmdcalcola"));
  ASSERT_EQ(list.count(), 170);
  EXPECT_EQ(list.itemText(157), "T-225/ 6");
  EXPECT_EQ(list.itemData(157).toInt(), 950);
}

TEST_P(ToroidPicker, ColourCodeOfEveryMix) {
  const char* words[] = {
      "0 MARRONE GRIGIO 100 / 300",  // as they read without the blanks between the columns
      "1 BLU GRIGIO 0.5 / 5",       "2 ROSSO GRIGIO 2 / 30",   "3 GRIGIO GRIGIO 0.05 / 0.5",
      "6 GIALLO GRIGIO 10 / 50",    "7 BIANCO GRIGIO 3 / 35",  "10 NERO GRIGIO 30 / 100",
      "12 VERDE BIANCO 50 / 200",   "15 ROSSO BIANCO 0.1 / 2", "17 BLU GIALLO 20 / 200",
      "26 GIALLO BIANCO 50 HERTZ",
  };
  int entry = 42;  // T-30 is made of every mix
  for (const char* expected : words) {
    window.pick("cmbnucleo", entry++);
    EXPECT_EQ(QString::fromStdString(colours()).simplified(), expected);
  }
}

TEST_P(ToroidPicker, TextsToTheCharacter) {
  window.pick("cmbnucleo", 157);
  EXPECT_TRUE(window.shows("Frame1"));
  EXPECT_EQ(window.text("Frame1"), " CODICE COLORI IN BASE ALLA MISCELA ");
  EXPECT_EQ(window.text("lblcolor"), " MISCELA     1° COLORE       2° COLORE       FREQ. MHz");
  EXPECT_EQ(colours(), " 6               GIALLO             GRIGIO              10 / 50");
  EXPECT_EQ(dimensions(), "DIAMETRO ESTERNO 57,15 mm - ALTEZZA 13,97 mm");
  window.pick("cmbnucleo", 169);
  EXPECT_EQ(colours(), "26               GIALLO             BIANCO             50 HERTZ");
  EXPECT_EQ(dimensions(), "DIAMETRO ESTERNO 132,08 mm - ALTEZZA 20,32 mm");
  window.pick("cmbnucleo", 43);
  EXPECT_EQ(colours(), " 1                BLU                   GRIGIO              0.5 / 5");
}

TEST_P(ToroidPicker, CursorKeysChooseAndTypingDoesNot) {
  window.type("cmbnucleo", "T-50/ 2");
  window.press(Qt::Key_Return);
  window.press(Qt::Key_Tab);
  EXPECT_FALSE(window.shows("Frame1"));
  EXPECT_EQ(dimensions(), "");
  window.control("cmbnucleo").setFocus();
  window.press(Qt::Key_Down);
  EXPECT_EQ(window.text("cmbnucleo"), "T-12/ 0");
  EXPECT_TRUE(window.shows("Frame1"));
  EXPECT_TRUE(window.shows("cmdcalcola") || window.shows("Frame2"));
  EXPECT_EQ(dimensions(), "DIAMETRO ESTERNO 3,18 mm - ALTEZZA 1,27 mm");
}

}  // namespace
}  // namespace eterlab
