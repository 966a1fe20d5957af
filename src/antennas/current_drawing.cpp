#include "antennas/current_drawing.h"

#include <cmath>

#include "common/physics.h"

namespace eterlab::antennas {

std::vector<ui::At> current_curve(ui::At feed, ui::At tip, Real length_wavelengths,
                                  double farthest) {
  constexpr int steps = 60;
  const double angle = 2 * pi * length_wavelengths.value();
  const double highest = angle < pi / 2 ? std::sin(angle) : 1;
  const double right = tip.x - feed.x;
  const double down = tip.y - feed.y;
  const double distance = std::hypot(right, down);
  std::vector<ui::At> places;
  for (int step = 0; step <= steps; ++step) {
    const double share = static_cast<double>(step) / steps;
    const double away = farthest * std::sin(angle * (1 - share)) / highest / distance;
    places.push_back({feed.x + share * right + away * down, feed.y + share * down - away * right});
  }
  return places;
}

}  // namespace eterlab::antennas
