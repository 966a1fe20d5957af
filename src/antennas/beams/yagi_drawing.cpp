#include "antennas/beams/yagi_drawing.h"

namespace eterlab::antennas {

void draw_yagi(ui::Schematic& drawing, std::span<const YagiElement> elements,
               std::initializer_list<ui::Label*> names,
               std::initializer_list<ui::Label*> spacings) {
  using enum ui::Schematic::Side;
  constexpr double top = 1.5;
  constexpr double boom = 27.5;
  constexpr double reflector_length = 25;
  constexpr double spacing = boom + 3;
  constexpr double half_rod = 0.3;

  const double steps_per_cm = reflector_length / elements.front().length_cm.value();
  const auto* name = names.begin();
  const auto* spacing_label = spacings.begin();
  double y = top;
  for (const YagiElement& element : elements) {
    const double half_length = element.length_cm.value() * steps_per_cm / 2;
    if (element.spacing_cm > 0) {
      const double before = y;
      y += element.spacing_cm.value() * steps_per_cm;
      drawing.dimension({spacing, before + half_rod}, {spacing, y - half_rod});
      drawing.label(**spacing_label++, {spacing, (before + y) / 2}, right);
    }
    drawing.rod({{boom - half_length, y}, {boom + half_length, y}});
    drawing.label(**name++, {boom - reflector_length / 2, y}, left);
  }
  drawing.wire({{boom, top - 1}, {boom, y + 1}});
}

}  // namespace eterlab::antennas
