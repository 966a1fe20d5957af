#include "ui/companion_button.h"

namespace eterlab::ui {

CompanionButton::CompanionButton(Window& window, std::string_view name, std::string_view caption,
                                 Companion companion)
    : Button{window, name, caption} {
  on_click([&window, companion] {
    window.open_companion(companion.window, companion.caller_corner, companion.corner);
  });
}

CompanionButton::~CompanionButton() = default;

}  // namespace eterlab::ui
