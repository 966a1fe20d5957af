#include "antennas/verticals/j_drawing.h"

namespace eterlab::antennas::j_drawing {

namespace {

using Side = ui::Schematic::Side;

constexpr double gap = 0.5;  // between a conductor and the line that begins at it
constexpr double overhang = 0.7;

}  // namespace

void tell_height(ui::Schematic& drawing, ui::Label& height, double lower_end) {
  constexpr double line = 1.2;
  drawing.extension({left - gap, top}, {line - overhang, top})
      .extension({left - gap, lower_end}, {line - overhang, lower_end})
      .dimension({line, top}, {line, lower_end})
      .label(height, {line, (top + lower_end) / 3}, Side::right);
}

void tell_right(ui::Schematic& drawing, ui::Label& length, double upper_end, double lower_end) {
  constexpr double line = right + 3;
  constexpr double clear_of_arrows = 0.5;  // whose heads meet beside a short length
  for (const double end : {upper_end, lower_end}) {
    drawing.extension({right + gap, end}, {line + overhang, end});
  }
  drawing.dimension({line, upper_end}, {line, lower_end})
      .label(length, {line + clear_of_arrows, (upper_end + lower_end) / 2}, Side::right);
}

void tell_spacing(ui::Schematic& drawing, ui::Label& spacing, double at) {
  drawing.dimension({left, at}, {right, at}).label(spacing, {middle, at}, Side::above);
}

void draw_tap(ui::Schematic& drawing, ui::Label& distance) {
  constexpr double line = left - 2;
  constexpr double mouth = tap + 1.5;
  constexpr ui::CoaxialCable cable{{middle, mouth}, {middle, rows - 2}};
  constexpr double half_window = 1.5;  // in the joint, behind the cable
  drawing.rod({{left, bottom}, {middle - half_window, bottom}})
      .rod({{middle + half_window, bottom}, {right, bottom}})
      .coaxial_cable(cable)
      .wire({cable.from, {middle, tap}, {left, tap}})
      .wire({cable.screen_from,
             {middle + 2.5, cable.screen_from.y},
             {middle + 2.5, tap},
             {right, tap}})
      .junction({left, tap})
      .junction({right, tap});
  drawing.extension({left - gap, tap}, {line - overhang, tap})
      .dimension({line, tap}, {line, bottom})
      .label(distance, {line, (tap + bottom) / 2}, Side::left);
}

}  // namespace eterlab::antennas::j_drawing
