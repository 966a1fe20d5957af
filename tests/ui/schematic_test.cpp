#include "ui/schematic.h"

#include <gtest/gtest.h>

#include <QImage>

#include "support/window_test.h"
#include "ui/label.h"

namespace eterlab {
namespace {

TEST(Schematic, StraightLinesAndTheirJointsCoverWholePixels) {
  ui::Schematic drawing{nullptr, "drawing", 40, 20};
  drawing.resistor({1, 2.3}, {9.2, 2.3}).capacitor({9.2, 2.3}, {15.7, 2.3});
  drawing.wire({{15.7, 2.3}, {22.15, 2.3}, {22.15, 6.65}}).ground({22.15, 6.65});
  drawing.electrolytic({3.35, 5}, {3.35, 15}).dashed({{5, 17.45}, {30, 17.45}});
  drawing.box({26.1, 3.7}, {31.6, 9.85}).wire({{35.2, 1}, {35.2, 18}});
  for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
    QImage picture{drawing.size() * scale, QImage::Format_ARGB32};
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    drawing.render(&picture, {}, {}, QWidget::RenderFlags{});
    int covered = 0;
    int partly_covered = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const int alpha = qAlpha(picture.pixel(x, y));
        covered += alpha == 255 ? 1 : 0;
        partly_covered += alpha > 0 && alpha < 255 ? 1 : 0;
      }
    }
    EXPECT_GT(covered, 500 * scale) << scale;
    EXPECT_EQ(partly_covered, 0) << scale;
  }
}

using Side = ui::Schematic::Side;
using ui::At;

class Drawing : public test::WindowTest {
 protected:
  ui::Schematic drawing{nullptr, "drawing", 40, 20};
  ui::Value lblr1{drawing, "lblr1"};
  ui::Value lblr2{drawing, "lblr2"};

  void SetUp() override {
    lblr1 = "48,6 Ohm";
    lblr2 = "18,1 Ohm";
  }
  /// Where letters stand, seen from a place on the grid.
  [[nodiscard]] static std::string side(const QRectF& letters, At place) {
    const QPointF seen = QPointF{place.x, place.y} * ui::grid_step();
    return std::string{letters.bottom() < seen.y()  ? "above"
                       : letters.top() > seen.y()   ? "below"
                       : letters.right() < seen.x() ? "left"
                       : letters.left() > seen.x()  ? "right"
                                                    : "over"};
  }
};

TEST_F(Drawing, NamesAPartOnOneSideAndTellsItsValueOnTheOther) {
  const std::tuple<At, std::optional<Side>, const char*, const char*> table[] = {
      {{30, 10}, {}, "above", "below"},
      {{30, 10}, Side::above, "below", "above"},
      {{20, 18}, {}, "left", "right"},
      {{20, 18}, Side::left, "right", "left"},
  };
  for (const auto& [to, value_side, name, value] : table) {
    drawing.clear();
    const At from{40 - to.x, 20 - to.y};
    drawing.electrolytic(from, to).named("C1", lblr1, value_side);
    EXPECT_EQ(side(drawing.letters()[0].room, {20, 10}), name);
    EXPECT_EQ(side(lblr1.geometry(), {20, 10}), value);
  }
  drawing.clear();
  drawing.resistor({20, 2}, {20, 18}).named_beside("R1", lblr1, Side::left);
  const QRectF name = drawing.letters()[0].room;
  EXPECT_EQ(side(name, {20, 10}), "left");
  EXPECT_NEAR(name.right(), lblr1.geometry().right(), 2);
  EXPECT_LE(name.bottom(), lblr1.y() + 1);
}

TEST_F(Drawing, KeepsValuesOffThePlatesOfUprightCapacitors) {
  constexpr double plate = 1.3;
  drawing.capacitor({20, 2}, {20, 18}).named("C1", lblr1);
  const double clearance = lblr1.x() - (20 + plate) * ui::grid_step();
  EXPECT_GE(clearance, 5);
  EXPECT_LE(drawing.letters()[0].room.right() + clearance, (20 - plate) * ui::grid_step() + 1);
}

TEST_F(Drawing, HidesTheLabelsThatItIsRedrawnWithout) {
  const auto redraw = [&](ui::Value& label) {
    drawing.clear();
    drawing.resistor({2, 10}, {38, 10}).named(label);
  };
  redraw(lblr1);
  drawing.show();
  EXPECT_TRUE(lblr1.isVisible());
  EXPECT_FALSE(lblr2.isVisible());  // never placed
  redraw(lblr2);
  EXPECT_FALSE(lblr1.isVisible());
  EXPECT_TRUE(lblr2.isVisible());
  // What is not placed stays where it was when it gets a new text.
  const QPoint corner = lblr1.pos();
  lblr1 = "9999999,9 Ohm";
  settle();
  EXPECT_EQ(lblr1.pos(), corner);
  redraw(lblr1);
  EXPECT_TRUE(lblr1.isVisible());
  drawing.clear();
  QImage picture{drawing.size(), QImage::Format_ARGB32};
  picture.fill(Qt::transparent);
  drawing.render(&picture, {}, {}, QWidget::RenderFlags{});
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      ASSERT_EQ(qAlpha(picture.pixel(x, y)), 0) << x << ' ' << y;
    }
  }
}

TEST_F(Drawing, SymbolsReachTheTerminalsThatTheyTell) {
  const auto expect_ink_at = [&](std::initializer_list<At> places) {
    QImage picture{drawing.size(), QImage::Format_ARGB32};
    picture.fill(Qt::transparent);
    drawing.render(&picture, {}, {}, QWidget::RenderFlags{});
    for (const At& place : places) {
      const QPoint pixel = (QPointF{place.x, place.y} * ui::grid_step()).toPoint();
      bool is_met = false;
      for (const int x : {-1, 0, 1}) {
        for (const int y : {-1, 0, 1}) {
          is_met = is_met || qAlpha(picture.pixel(pixel + QPoint{x, y})) > 200;
        }
      }
      EXPECT_TRUE(is_met) << place.x << ' ' << place.y;
    }
    drawing.clear();
  };
  for (const ui::Flip flip :
       {ui::Flip::none, ui::Flip::sideways, ui::Flip::upside_down, ui::Flip::both}) {
    const ui::Transistor q{{20, 10}, flip};
    drawing.npn(q);
    expect_ink_at({q.base, q.collector, q.emitter});
    const ui::Triode v1{{20, 10}, flip};
    drawing.triode(v1);
    expect_ink_at({v1.anode, v1.grid, v1.cathode});
    const ui::Pentode v2{{20, 10}, flip};
    drawing.pentode(v2);
    expect_ink_at({v2.anode, v2.suppressor_grid, v2.screen_grid, v2.control_grid, v2.cathode});
    const ui::OperationalAmplifier a{{20, 10}, flip};
    drawing.operational_amplifier(a);
    expect_ink_at({a.inverting, a.non_inverting, a.output, a.supply_above, a.supply_below});
  }
  const ui::Transformer t{{20, 10}};
  drawing.transformer(t);
  expect_ink_at({t.primary_top, t.primary_tap, t.primary_bottom, t.secondary_top, t.secondary_tap,
                 t.secondary_bottom});
  for (const ui::CoaxialCable& cable :
       {ui::CoaxialCable{{5, 10}, {35, 10}}, ui::CoaxialCable{{20, 18}, {20, 2}}}) {
    drawing.coaxial_cable(cable);
    expect_ink_at({cable.from, cable.to, cable.screen_from, cable.screen_to});
  }
}

}  // namespace
}  // namespace eterlab
