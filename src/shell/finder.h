#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/menu_catalogue.h"

namespace eterlab::shell {

/// An entry of the menu that opens a window, as it is found.
struct FoundEntry {
  const MenuEntry* entry;
  std::string told;        ///< its caption and, behind it, the menus that it stands in
  std::string_view title;  ///< of the window that it opens
};

/// The entries that have all words of a text, best first: whole words of the caption before words
/// that stand elsewhere. Accents, case and the last vowel (antenna, antenne) make no difference.
/// All of them, in menu order, for a text without words.
std::vector<const FoundEntry*> find_entries(std::string_view text);

}  // namespace eterlab::shell
