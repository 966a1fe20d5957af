#pragma once

#include <QPoint>
#include <QSize>

// The design gives positions and sizes in twips: 15 to the logical pixel.

namespace eterlab::ui {

constexpr int pixels_from_twips(int twips) {
  constexpr int twips_per_pixel = 15;
  const int half = twips < 0 ? -twips_per_pixel / 2 : twips_per_pixel / 2;
  return (twips + half) / twips_per_pixel;
}

/// A top-left corner: of a window on the screen, of a control in its fixed area.
struct TwipsPoint {
  int left = 0;
  int top = 0;

  [[nodiscard]] constexpr QPoint pixels() const {
    return {pixels_from_twips(left), pixels_from_twips(top)};
  }
};

struct TwipsSize {
  int width = 0;
  int height = 0;

  [[nodiscard]] constexpr QSize pixels() const {
    return {pixels_from_twips(width), pixels_from_twips(height)};
  }
};

}  // namespace eterlab::ui
