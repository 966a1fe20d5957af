#pragma once

#include <span>
#include <string_view>

namespace eterlab::shell {

/// What a window that the menu opens is looked for by, beside its places in the menu.
struct WindowWords {
  std::string_view window;
  std::string_view title;  ///< blanks at the ends and doubled ones left out
  std::string_view words;  ///< what an amateur calls the matter, abbreviations and bands
};

/// One for each window of the menu.
std::span<const WindowWords> window_words();

}  // namespace eterlab::shell
