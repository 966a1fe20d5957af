#include "ui/schematic.h"

#include <gtest/gtest.h>

#include <QImage>

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

}  // namespace
}  // namespace eterlab
