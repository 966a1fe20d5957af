#include "ui/measures.h"

namespace eterlab::ui {

namespace {

constexpr double overshoot = 0.5;  // of an extension line beyond the arrows
constexpr double outside = 2;      // arrows from there

double beyond(double from, double to) { return to > from ? to + overshoot : to - overshoot; }

void extend_up(Schematic& drawing, At left, At right, double height) {
  drawing.extension(left, {left.x, beyond(left.y, height)})
      .extension(right, {right.x, beyond(right.y, height)});
}

void extend_across(Schematic& drawing, At top, At bottom, double across) {
  drawing.extension(top, {beyond(top.x, across), top.y})
      .extension(bottom, {beyond(bottom.x, across), bottom.y});
}

}  // namespace

void measure_width(Schematic& drawing, At left, At right, double height, Label& label,
                   Schematic::Side side) {
  extend_up(drawing, left, right, height);
  drawing.dimension({left.x, height}, {right.x, height})
      .label(label, {(left.x + right.x) / 2, beyond(left.y, height)}, side);
}

void measure_height(Schematic& drawing, At top, At bottom, double across, Label& label,
                    Schematic::Side side) {
  extend_across(drawing, top, bottom, across);
  const double beside = side == Schematic::Side::left ? across - overshoot : across + overshoot;
  drawing.dimension({across, top.y}, {across, bottom.y})
      .label(label, {beside, (top.y + bottom.y) / 2}, side);
}

void measure_thin_width(Schematic& drawing, At left, At right, double height, Label& label,
                        Schematic::Side side) {
  extend_up(drawing, left, right, height);
  drawing.arrow({left.x - outside, height}, {left.x, height})
      .arrow({right.x + outside, height}, {right.x, height})
      .label(label, {(left.x + right.x) / 2, beyond(left.y, height)}, side);
}

void measure_thin_height(Schematic& drawing, At top, At bottom, double across, Label& label,
                         Schematic::Side side) {
  extend_across(drawing, top, bottom, across);
  drawing.arrow({across, top.y - outside}, {across, top.y})
      .arrow({across, bottom.y + outside}, {across, bottom.y})
      .label(label, {beyond(top.x, across), (top.y + bottom.y) / 2}, side);
}

}  // namespace eterlab::ui
