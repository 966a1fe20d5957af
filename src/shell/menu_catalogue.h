#pragma once

#include <span>
#include <string_view>

#include "ui/showing.h"

namespace eterlab::shell {

/// One entry of the main window's menu bar: the table of contents of the whole program.
struct MenuEntry {
  std::string_view name;
  std::string_view caption;
  std::string_view parent;  ///< the entry under which this one stands; empty: on the bar itself
  std::string_view window;  ///< the window that it opens; empty: it is a submenu
  ui::Showing showing;      ///< how that window is shown

  [[nodiscard]] constexpr bool is_submenu() const { return window.empty(); }
};

/// All entries in menu order; a submenu stands before what is in it.
std::span<const MenuEntry> menu_catalogue();

}  // namespace eterlab::shell
