#include "antennas/verticals/vertical_drawing.h"

namespace eterlab::antennas {

namespace {

constexpr double radials_below_base = 3;
constexpr double radial_width = 12;
constexpr double radial_fall = 3;

}  // namespace

void mark_not_to_scale(ui::Schematic& drawing, ui::At place) {
  drawing.mark(place, "non in scala", ui::Schematic::Side::below);
}

void draw_radials(ui::Schematic& drawing, ui::At hub) {
  drawing
      .wire({{hub.x - radial_width, hub.y + radial_fall},
             hub,
             {hub.x + radial_width, hub.y + radial_fall}})
      .wire({hub, {hub.x + radial_width / 3, hub.y + radial_fall}});
}

void draw_fed_base(ui::Schematic& drawing, ui::At base) {
  const ui::CoaxialCable cable{{base.x - 12, base.y + 0.7}, {base.x - 3, base.y + 0.7}};
  const ui::At hub{base.x, base.y + radials_below_base};
  drawing.coaxial_cable(cable)
      .wire({cable.to, {base.x, base.y + 0.7}})
      .wire({cable.screen_to, {cable.screen_to.x, hub.y - 0.7}, {hub.x, hub.y - 0.7}});
  draw_radials(drawing, hub);
  drawing.terminal({base.x, base.y + 0.7}).terminal({hub.x, hub.y - 0.7});
}

ui::At below_radials(ui::At base) { return {base.x, base.y + radials_below_base + radial_fall}; }

}  // namespace eterlab::antennas
