#include "ui/frame.h"

#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

Frame::Frame(Parent parent, std::string_view name, std::string_view title, Tooltip tip)
    : QGroupBox{to_qt(title), parent.widget()} {
  set_up(*this, name, tip);
}

Frame& Frame::arrange(const Item& contents) {
  contents.fill(*this, theme::margin());
  return *this;
}

}  // namespace eterlab::ui
