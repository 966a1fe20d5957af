#include "shell/finder.h"

#include <QListWidget>
#include <QTest>
#include <algorithm>

#include "shell/window_words.h"
#include "support/window_test.h"
#include "ui/text.h"

namespace eterlab::test {
namespace {

std::vector<std::string_view> windows_found(std::string_view text) {
  std::vector<std::string_view> windows;
  for (const shell::FoundEntry* found : shell::find_entries(text)) {
    windows.push_back(found->entry->window);
  }
  return windows;
}

// What an amateur types, and the window that he means.
TEST(Finder, FindsByEverydayWords) {
  const std::pair<const char*, const char*> table[] = {
      {"balun", "frmBalunUnUn"},
      {"bobina 2 m", "frmmicrobobine"},
      {"dBm", "frmdBW"},
      {"valvola", "frmadattimppassabasso"},
      {"CAPACITA propria", "frmautorisonanza"},
      {"rg58", "frmcaviRG"},
      {"swr", "frmros"},
      {"legge ohm", "frmleggediohm"},
      {"trappole dipolo", "frmantmultigamma"},
      {"condensatori serie", "frmcondensatori"},
      {"7812", "frm78xx"},
      {"trasformatore uscita", "frmtrasfuscita"},
      {"1/4 balun", "frmbaluncoax1quarto"},
      {"satellite", "frmantelicoidale"},
      {"locator", "frmcoordinate"},
      {"pollici", "frmmisureinglesi"},
      {"forcina", "frmhairpin"},
      {"s-meter vhf", "frmsmetervhf"},
      {"dipolo 40 metri", "frmdipoli"},
      {"trappole 40 80", "frmantmultigamma"},
      {"end fed", "frmreteadattamento"},
      {"gp", "frmgpgamma"},
      {"erp", "frmERP"},
      {"t50", "frmamidon"},
      {"filo smaltato", "frmawg"},
      {"roswattmetro", "frmros"},
  };
  for (const auto& [typed, window] : table) {
    const auto found = windows_found(typed);

    EXPECT_NE(std::ranges::find(found, window), found.end()) << typed;
    EXPECT_LE(found.size(), 20U) << typed;
  }
}

TEST(Finder, ListsTheBestFirstAndAllForNothing) {
  EXPECT_EQ(windows_found("").size(), 206U);
  EXPECT_EQ(windows_found(" - ").size(), 206U);
  EXPECT_EQ(windows_found("hairpin").front(), "frmhairpin");
  EXPECT_EQ(windows_found("risonanza").front(), "frmrisonanza");
  EXPECT_EQ(windows_found("bobina 2 m").front(), "frmmicrobobine");
  EXPECT_EQ(windows_found("xyzzy").size(), 0U);
  // Words in any order, and more of them never find more.
  EXPECT_EQ(windows_found("lambda balun"), windows_found("Balun LAMBDA"));
  for (const char* word : {"d", "di", "dip", "dipo", "dipol", "dipolo", "dipolo t"}) {
    const auto shorter = windows_found(std::string_view{word}.substr(0, 1)).size();
    EXPECT_LE(windows_found(word).size(), shorter) << word;
  }
}

using Finding = WindowTest;

TEST_F(Finding, KnowsEveryWindowByItsTitle) {
  std::vector<std::string_view> known;
  for (const shell::WindowWords& words : shell::window_words()) {
    known.push_back(words.window);
    const ui::Window& window = desktop().load(words.window);
    EXPECT_EQ(ui::from_qt(window.windowTitle().simplified()), words.title) << words.window;
    start_anew();
  }
  for (const shell::MenuEntry& entry : shell::menu_catalogue()) {
    EXPECT_TRUE(entry.is_submenu() || std::ranges::count(known, entry.window) == 1) << entry.window;
  }
}

class frmcerca : public WindowTest {
 protected:
  Driven open_by(QWidget& from, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(from.window()));
    QTest::keyClick(&from, key, modifiers);
    return driven("frmcerca");
  }
};

TEST_F(frmcerca, IsOpenedFromAnyWindowAndOpensWhatItFinds) {
  const Driven window = open_by(main_window().window(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_FALSE(window.window().isModal());
  EXPECT_EQ(window.focus(), "txtcerca");
  const auto& list = dynamic_cast<QListWidget&>(window.control("lstcerca"));
  EXPECT_EQ(list.count(), 206);
  window.type("txtcerca", "rg 58");
  ASSERT_EQ(list.count(), 1);
  EXPECT_EQ(list.item(0)->text(), "Caratteristiche cavi RG   (Antenne)");
  EXPECT_EQ(window.text("lbltitolo"),
            "CARATTERISTICHE DEI CAVI COASSIALI PER RADIOFREQUENZA - SERIE RG/U");
  window.press(Qt::Key_Return);
  EXPECT_TRUE(is_open("frmcaviRG"));
  EXPECT_FALSE(is_open("frmcerca"));
}

TEST_F(frmcerca, ArrowKeysChooseAmongTheRows) {
  const Driven window = open_by(main_window().window(), Qt::Key_F3);
  window.type("txtcerca", "decibel");
  const auto& list = dynamic_cast<QListWidget&>(window.control("lstcerca"));
  window.press(Qt::Key_Down);
  EXPECT_EQ(list.currentRow(), 1);
  window.press(Qt::Key_PageDown);
  EXPECT_EQ(list.currentRow(), list.count() - 1);
  window.press(Qt::Key_PageUp);
  EXPECT_EQ(list.currentRow(), 0);
  window.type("txtcerca", "decibel xyzzy");
  EXPECT_EQ(window.text("lbltitolo"), "NESSUNA VOCE CON QUESTE PAROLE");
  window.press(Qt::Key_Return);
  EXPECT_TRUE(is_open("frmcerca"));
  window.press(Qt::Key_Escape);
  EXPECT_FALSE(is_open("frmcerca"));
}

TEST_F(frmcerca, IsInReachOverAModalWindow) {
  open_by(main_window().window(), Qt::Key_F3);
  const Driven modal = choose("mnuohm");
  const Driven window = open_by(modal.control("txtinput1"), Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(window.window().isModal());
  EXPECT_EQ(QApplication::activeModalWidget(), &window.window());
  window.type("txtcerca", "rg 58");
  window.press(Qt::Key_Return);
  EXPECT_TRUE(driven("frmcaviRG").window().isModal());
}

}  // namespace
}  // namespace eterlab::test
