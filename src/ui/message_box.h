#pragma once

#include <cstdint>
#include <string_view>

class QWidget;

namespace eterlab::ui {

enum class Icon : std::uint8_t { exclamation, critical };

/// A modal box with an icon, a text and one OK button; returns when the user has closed it.
/// Once the program is ending (see Desktop), does nothing.
void message_box(QWidget* parent, Icon icon, std::string_view title, std::string_view text);

}  // namespace eterlab::ui
