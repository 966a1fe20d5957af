#include "support/layout_faults.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "support/window_test.h"
#include "ui/ui.h"

namespace eterlab {
namespace {

using Faults = std::vector<std::string>;

// A window laid out as it should be, for tests to spoil.
class Spoilt final : public ui::Window {
 public:
  ui::Label Label1{this, "Label1", "LUNGHEZZA in mm"};
  ui::TextBox txtl{this, "txtl"};
  ui::Schematic sketch{this, "sketch", 20, 6};
  ui::Label lbll{sketch, "lbll", "120 mm"};

  Spoilt() : Window{"spoilt", "GUASTA"} {
    sketch.wire({{1, 3}, {19, 3}}).label(lbll, {10, 3}, ui::Schematic::Side::above);
    arrange(ui::column(ui::form(field(Label1, txtl)), sketch));
  }
};

class LayoutFaults : public test::WindowTest {
 protected:
  LayoutFaults() { window.show(); }
  [[nodiscard]] Faults found() const { return test::layout_faults(window); }
  Spoilt window;
};

TEST_F(LayoutFaults, NoneInASoundWindow) { EXPECT_EQ(found(), Faults{}); }

TEST_F(LayoutFaults, ALabelTooSmallForItsText) {
  window.Label1.setGeometry(window.Label1.x(), window.Label1.y(), 20, window.Label1.height());
  ASSERT_EQ(found().size(), 1U);
  EXPECT_EQ(found()[0].rfind("Label1 has 20x", 0), 0U) << found()[0];
}

TEST_F(LayoutFaults, ControlsOverEachOther) {
  window.txtl.move(window.Label1.pos());
  EXPECT_EQ(found().size(), 1U);
}

TEST_F(LayoutFaults, AControlBeyondTheEdge) {
  window.txtl.move(window.width() - 5, window.txtl.y());
  EXPECT_EQ(found(), Faults{"txtl leaves its parent"});
}

TEST_F(LayoutFaults, LettersOverALine) {
  window.sketch.label(window.lbll, {10, 3});
  EXPECT_EQ(found(), Faults{"lbll stands on a line of sketch"});
}

TEST_F(LayoutFaults, AControlOverTheLinesOfADrawing) {
  window.Label1.move(window.sketch.pos() - QPoint{0, window.Label1.height() / 2});
  window.Label1.raise();
  EXPECT_EQ(found(), Faults{});  // the top of the drawing is empty
  window.Label1.move(window.sketch.geometry().center() - window.Label1.rect().center());
  EXPECT_EQ(found(), Faults{"Label1 overlaps sketch"});
}

TEST_F(LayoutFaults, AWindowLargerThanTheScreen) {
  window.setFixedSize(1300, 900);
  EXPECT_EQ(found(), Faults{"the window is 1300x900"});
}

}  // namespace
}  // namespace eterlab
