#include "coils/bobbin_drawing.h"

namespace eterlab::coils {

void draw_bobbin(ui::Schematic& drawing, const BobbinPlace& place) {
  constexpr int layers = 3;
  constexpr double pitch = 1.6;
  constexpr double radius = 0.65;
  constexpr double to_first = 0.8;
  const auto turns = static_cast<int>((place.right - place.left) / pitch);
  for (const double side : {-1.0, 1.0}) {
    const double inner = place.axis + side * place.inner;
    const double flange = place.axis + side * place.flange;
    drawing.wire({{place.left, inner}, {place.right, inner}})
        .wire({{place.left, inner}, {place.left, flange}})
        .wire({{place.right, inner}, {place.right, flange}});
    for (int turn = 0; turn < turns; ++turn) {
      for (int layer = 0; layer < layers; ++layer) {
        drawing.circle(
            {place.left + to_first + turn * pitch, inner + side * (to_first + 0.1 + layer * pitch)},
            radius);
      }
    }
  }
  drawing.dashed({{place.left - 2, place.axis}, {place.right + 2, place.axis}});
}

}  // namespace eterlab::coils
