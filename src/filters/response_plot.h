#pragma once

#include <optional>

#include "ui/axis.h"

// The axes on which every filter shows its response: frequency by decades, attenuation downwards.

namespace eterlab::filters::response_plot {

inline ui::Axis frequency() {
  return {.title = "FREQUENZA", .unit = "Hz", .scale = ui::Scale::logarithmic};
}

/// From 0 dB to as much as is told, or as there is.
inline ui::Axis attenuation(std::optional<double> most_db = {}) {
  ui::Axis axis{.title = "ATTENUAZIONE", .unit = "dB", .is_reversed = true};
  if (most_db) {
    axis.range = {0, *most_db};
  }
  return axis;
}

}  // namespace eterlab::filters::response_plot
