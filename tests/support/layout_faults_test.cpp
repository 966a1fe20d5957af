#include "support/layout_faults.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/window_test.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::test {
namespace {

// A window laid out as it should be, for tests to spoil.
class Spoilt final : public ui::Window {
 public:
  ui::Label Label1{this, "Label1", "LUNGHEZZA in mm"};
  ui::TextBox txtl{this, "txtl"};
  ui::Schematic sketch{this, "sketch", 20, 6};
  ui::Label lbll{sketch, "lbll", "120 mm"};
  ui::Plot plot{this, "plot", {"FREQUENZA", "MHz"}, {"ROS"}};

  Spoilt() : Window{"spoilt", "GUASTA"} {
    sketch.wire({{1, 3}, {19, 3}}).label(lbll, {10, 3}, ui::Schematic::Side::above);
    arrange(ui::column(ui::form(field(Label1, txtl)), sketch, plot));
  }
};

using LayoutFaults = WindowTest;

TEST_F(LayoutFaults, AreFoundOneByOne) {
  const std::pair<std::function<void(Spoilt&)>, const char*> table[] = {
      {[](Spoilt&) {}, ""},
      {[](Spoilt& w) { w.Label1.resize(20, w.Label1.height()); }, "Label1 has 20x"},
      {[](Spoilt& w) { w.txtl.move(w.Label1.pos()); }, " overlaps "},
      {[](Spoilt& w) { w.txtl.move(w.width() - 5, w.txtl.y()); }, "txtl leaves its parent"},
      {[](Spoilt& w) {
         w.sketch.label(w.lbll, {10, 3});
       },
       "lbll stands on a line of sketch"},
      {[](Spoilt& w) {
         w.sketch.mark({4, 3}, "R1");
       },
       "\"R1\" stands on a line of sketch"},
      {[](Spoilt& w) {
         w.sketch.mark({10, 1.6}, "R1");
       },
       "lbll stands on \"R1\" of sketch"},
      {[](Spoilt& w) {
         w.sketch.mark({19.5, 1.5}, "R1");
       },
       "\"R1\" is cut off by sketch"},
      {[](Spoilt& w) { w.plot.axes({std::string(60, 'x')}, {}); }, "x\" is cut off by plot"},
      // The top of the drawing is empty, the middle is not.
      {[](Spoilt& w) {
         w.Label1.move(w.sketch.pos() - QPoint{0, w.Label1.height() / 2});
       },
       ""},
      {[](Spoilt& w) { w.Label1.move(w.sketch.geometry().center() - w.Label1.rect().center()); },
       "Label1 overlaps sketch"},
      {[](Spoilt& w) { w.setFixedSize(1300, 900); }, "the window is 1300x900"},
  };
  for (const auto& [spoil, fault] : table) {
    Spoilt window;
    window.show();
    spoil(window);
    const std::vector<std::string> found = layout_faults(window);
    EXPECT_EQ(found.size(), *fault == '\0' ? 0U : 1U) << fault;
    EXPECT_TRUE(found.empty() || found[0].find(fault) != std::string::npos) << found[0];
  }
}

}  // namespace
}  // namespace eterlab::test
