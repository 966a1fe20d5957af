#include "ui/frame.h"

#include <QCoreApplication>
#include <QEvent>

#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

Frame::Frame(Parent parent, std::string_view name, std::string_view title, Tooltip tip)
    : QGroupBox{to_qt(title), parent.widget()} {
  set_up(*this, name, tip);
}

Frame::~Frame() = default;

Frame& Frame::arrange(const Item& contents) {
  contents.fill(*this, theme::margin());
  return *this;
}

bool Frame::event(QEvent* event) {
  const bool handled = QGroupBox::event(event);
  if (event->type() == QEvent::LayoutRequest) {
    // What grew in here moves what stands around it: both before anything is painted.
    QCoreApplication::sendPostedEvents(parentWidget(), QEvent::LayoutRequest);
  }
  return handled;
}

}  // namespace eterlab::ui
