#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/menu_catalogue.h"

namespace eterlab::shell {

/// The entries of the menu that open a window, of those that have all words of a text, best first:
/// whole words of the caption before words that stand elsewhere. Accents, case and the last vowel
/// (antenna, antenne) make no difference. All of them, in menu order, for a text without words.
std::vector<const MenuEntry*> find_entries(std::string_view text);

/// The caption and, behind it, the menus that it stands in.
std::string told(const MenuEntry& entry);

/// Title of the window that an entry opens.
std::string_view title_of(const MenuEntry& entry);

}  // namespace eterlab::shell
