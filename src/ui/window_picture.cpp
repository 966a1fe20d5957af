#include "ui/window_picture.h"

#include <QCoreApplication>
#include <QEvent>

#include "ui/registry.h"
#include "ui/window.h"

namespace eterlab::ui {

std::unique_ptr<Window> window_with_example(std::string_view name, const QPalette& palette) {
  std::unique_ptr<Window> window = registry::create(name);
  window->setAttribute(Qt::WA_DontShowOnScreen);
  window->setAttribute(Qt::WA_ShowWithoutActivating);
  window->setPalette(palette);
  window->load();
  window->show();
  window->show_example();
  // A text that grows inside a frame moves first the frame's layout, then the window's.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  return window;
}

QImage picture_of(Window& window, double dots_per_pixel) {
  QImage picture{(window.size() * dots_per_pixel), QImage::Format_RGB32};
  picture.setDevicePixelRatio(dots_per_pixel);
  picture.fill(window.palette().color(QPalette::Window));
  window.render(&picture);
  return picture;
}

}  // namespace eterlab::ui
