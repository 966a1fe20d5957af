#pragma once

#include <QImage>
#include <QPalette>
#include <memory>
#include <string_view>

namespace eterlab::ui {

class Window;

/// A window of its own with its worked example, which the user does not see. The desktop knows
/// nothing of it.
std::unique_ptr<Window> window_with_example(std::string_view name, const QPalette& palette);

/// What it looks like, with so many dots to the pixel.
QImage picture_of(Window& window, double dots_per_pixel);

}  // namespace eterlab::ui
