#include "shell/menu_catalogue.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace eterlab::shell {
namespace {

// Every submenu stands before its entries and has some; a window is always shown the same way.
TEST(MenuCatalogue, IsSoundAndOfItsSize) {
  std::map<std::string_view, int> entries_of;
  std::map<std::string_view, std::vector<MenuEntry>> by_window;
  std::map<std::string_view, int> names;
  int modal = 0;
  for (const MenuEntry& each : menu_catalogue()) {
    EXPECT_EQ(++names[each.name], 1) << each.name;
    if (!each.parent.empty()) {
      ASSERT_TRUE(entries_of.contains(each.parent)) << each.name;
      ++entries_of[each.parent];
    }
    if (each.is_submenu()) {
      entries_of[each.name] = 0;
    } else {
      by_window[each.window].push_back(each);
      modal += each.showing == ui::Showing::modal ? 1 : 0;
    }
  }
  for (const auto& [submenu, entries] : entries_of) {
    EXPECT_GT(entries, 0) << submenu;
  }
  int shared = 0;
  for (const auto& [window, entries] : by_window) {
    shared += entries.size() > 1 ? 1 : 0;
    for (const MenuEntry& each : entries) {
      EXPECT_EQ(each.showing, entries.front().showing) << window;
    }
  }
  EXPECT_EQ(names.size(), 241U);
  EXPECT_EQ(names.size() - entries_of.size(), 206U);
  EXPECT_EQ(modal, 105);
  EXPECT_EQ(by_window.size(), 191U);
  EXPECT_EQ(shared, 14);
  EXPECT_EQ(by_window["frmsmeterhf"].size(), 3U);
}

TEST(MenuCatalogue, CaptionsKeepTheirBlanksAndSlips) {
  std::string top_level;
  std::map<std::string_view, std::string_view> caption_of;
  for (const MenuEntry& each : menu_catalogue()) {
    top_level += each.parent.empty() ? std::string{each.caption} + "|" : "";
    caption_of[each.name] = each.caption;
  }
  EXPECT_EQ(top_level,
            "Volt|Circuiti L C R|Antenne|Linee|Capacità|Resistenze|Semiconduttori|Old Radio|Varie|"
            "Leggimi|");
  const char* const slips[][2] = {{"mnuEH", "Antenna E H "},
                                  {"mnuadattatori", "Adattattori Imp.za"},
                                  {"mnusmeter", "dBm  S-METER in HF"},
                                  {"mnuEHstar", "E H  tipo STAR"},
                                  {"mnuresistenze", "Res.  serie e parallelo"},
                                  {"mnuadattatorilc", "Adattatori Imp.  L C"}};
  for (const auto& [name, caption] : slips) {
    EXPECT_EQ(caption_of[name], caption);
  }
}

}  // namespace
}  // namespace eterlab::shell
