#include "shell/menu_catalogue.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace eterlab::shell {
namespace {

// Every submenu stands before its entries and has some; a window is always shown the same way.
TEST(MenuCatalogue, IsSoundAndOfItsSize) {
  std::set<std::string_view> names;
  std::map<std::string_view, int> entries_of_submenu;
  std::map<std::string_view, int> entries_of_window;
  std::map<std::string_view, ui::Showing> showing_of;
  int modal = 0;
  for (const MenuEntry& each : menu_catalogue()) {
    EXPECT_TRUE(names.insert(each.name).second) << each.name;
    if (!each.parent.empty()) {
      ASSERT_TRUE(entries_of_submenu.contains(each.parent)) << each.name;
      ++entries_of_submenu[each.parent];
    }
    if (each.is_submenu()) {
      entries_of_submenu[each.name] = 0;
    } else {
      ++entries_of_window[each.window];
      EXPECT_EQ(showing_of.emplace(each.window, each.showing).first->second, each.showing);
      modal += each.showing == ui::Showing::modal ? 1 : 0;
    }
  }
  for (const auto& [submenu, entries] : entries_of_submenu) {
    EXPECT_GT(entries, 0) << submenu;
  }
  EXPECT_EQ(names.size(), 241U);
  EXPECT_EQ(entries_of_submenu.size(), 35U);
  EXPECT_EQ(modal, 105);
  EXPECT_EQ(entries_of_window.size(), 191U);
  EXPECT_EQ(entries_of_window["frmsmeterhf"], 3);
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
