#include <QPalette>

#include "support/window_test.h"

namespace eterlab::test {
namespace {

using OldResults = WindowTest;

bool is_dimmed(const Driven& window, std::string_view label) {
  return window.control(label).palette().color(QPalette::WindowText).alpha() < 255;
}

TEST_F(OldResults, AreDimmedUntilTheyAreComputedAgain) {
  const Driven window = choose("mnuretel");
  window.type("txtRH txtRL", "75|50");
  window.press(Qt::Key_Return);
  settle();
  const std::string results = window.text("lblperdita lblR1 lblR2");
  EXPECT_FALSE(is_dimmed(window, "lblperdita"));
  window.type("txtRH", "75");
  settle();
  EXPECT_TRUE(is_dimmed(window, "lblperdita") && is_dimmed(window, "lblR1"));
  EXPECT_EQ(window.text("lblperdita lblR1 lblR2"), results);
  EXPECT_FALSE(is_dimmed(window, "Label3")) << "a note";
  window.press(Qt::Key_Return);
  settle();
  EXPECT_FALSE(is_dimmed(window, "lblperdita") || is_dimmed(window, "lblR1"));
}

// What each key computes is never old.
TEST_F(OldResults, AreNotDimmedWhereEachKeyComputes) {
  const Driven window = choose("mnusezione");
  window.type("txtinput", "2.588");
  settle();
  EXPECT_NE(window.text("lblsezione"), "");
  EXPECT_FALSE(is_dimmed(window, "lblsezione"));
}

}  // namespace
}  // namespace eterlab::test
