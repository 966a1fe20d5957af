#include "antennas/dipoles/dipole_drawing.h"

namespace eterlab::antennas {

void draw_feeder(ui::Schematic& drawing, ui::At middle, double bottom) {
  constexpr double straight = 1.8;
  constexpr double joined = 3;
  for (const double side : {-1.0, 1.0}) {
    const double arm = middle.x + side * half_feed_gap;
    const double wire = middle.x + side * half_feeder;
    drawing.wire(
        {{arm, middle.y}, {arm, middle.y + straight}, {wire, middle.y + joined}, {wire, bottom}});
  }
}

void draw_trap(ui::Schematic& drawing, ui::At middle) {
  constexpr double coil = 1.4;
  constexpr double capacitor = 1.6;
  const double left = middle.x - half_trap;
  const double right = middle.x + half_trap;
  drawing.inductor({left, middle.y - coil}, {right, middle.y - coil})
      .capacitor({left, middle.y + capacitor}, {right, middle.y + capacitor});
  for (const double end : {left, right}) {
    drawing.wire({{end, middle.y - coil}, {end, middle.y + capacitor}}).junction({end, middle.y});
  }
}

void draw_length(ui::Schematic& drawing, ui::At from, ui::At to, double dimension_y,
                 ui::Label& length) {
  using enum ui::Schematic::Side;
  constexpr double clearance = 0.8;
  constexpr double overhang = 0.6;
  const bool is_above = dimension_y < from.y;
  const double down = is_above ? -1 : 1;
  for (const ui::At end : {from, to}) {
    drawing.extension({end.x, end.y + down * clearance}, {end.x, dimension_y + down * overhang});
  }
  drawing.dimension({from.x, dimension_y}, {to.x, dimension_y})
      .label(length, {(from.x + to.x) / 2, is_above ? dimension_y : dimension_y + overhang},
             is_above ? above : below);
}

}  // namespace eterlab::antennas
