#include "ui/button.h"

#include "ui/desktop.h"
#include "ui/icons.h"
#include "ui/text.h"

namespace eterlab::ui {

Button::Button(Parent parent, std::string_view name, std::string_view caption, Tooltip tip)
    : QPushButton{to_qt(caption), parent.widget()} {
  set_up(*this, name, tip);
}

Button::~Button() = default;

void Button::set_caption(std::string_view caption) { setText(to_qt(caption)); }

void Button::on_click(const Handler& handler) {
  connect(this, &QPushButton::clicked, this, [handler] { Desktop::instance().run(handler); });
}

ComputeButton::ComputeButton(Parent parent, std::string_view name, std::string_view caption,
                             Tooltip tip)
    : Button{parent, name, caption, tip} {
  setDefault(true);
}

ComputeButton::~ComputeButton() = default;

ExitButton::ExitButton(Parent parent, std::string_view name, std::string_view caption, Tooltip tip)
    : Button{parent, name, caption, tip} {
  on_click([this] { window()->close(); });
}

ExitButton::~ExitButton() = default;

DoorButton::DoorButton(Parent parent, std::string_view name, Tooltip tip)
    : Button{parent, name, {}, tip} {
  setIcon(open_door_icon());
  setIconSize({icon_size(), icon_size()});
  setAccessibleName(toolTip());
  on_click([this] { window()->close(); });
}

DoorButton::~DoorButton() = default;

}  // namespace eterlab::ui
