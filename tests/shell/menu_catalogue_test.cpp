#include "shell/menu_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace eterlab::shell {
namespace {

const MenuEntry& entry(std::string_view name) {
  const auto all = menu_catalogue();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const MenuEntry& each) { return each.name == name; });
  EXPECT_NE(found, all.end()) << name;
  return *found;
}

TEST(MenuCatalogue, Counts) {
  const auto all = menu_catalogue();
  const auto leaf = [](const MenuEntry& each) { return !each.is_submenu(); };
  const auto modal = [&](const MenuEntry& each) {
    return leaf(each) && each.showing == ui::Showing::modal;
  };
  std::set<std::string_view> windows;
  std::set<std::string_view> names;
  for (const MenuEntry& each : all) {
    names.insert(each.name);
    if (leaf(each)) {
      windows.insert(each.window);
    }
  }
  EXPECT_EQ(all.size(), 241U);
  EXPECT_EQ(names.size(), 241U);
  EXPECT_EQ(std::count_if(all.begin(), all.end(), leaf), 206);
  EXPECT_EQ(std::count_if(all.begin(), all.end(), modal), 105);
  EXPECT_EQ(windows.size(), 191U);
}

TEST(MenuCatalogue, TopLevelIsTheTableOfContents) {
  std::vector<std::string_view> captions;
  for (const MenuEntry& each : menu_catalogue()) {
    if (each.parent.empty()) {
      captions.push_back(each.caption);
    }
  }
  EXPECT_EQ(captions, (std::vector<std::string_view>{"Volt", "Circuiti L C R", "Antenne", "Linee",
                                                     "Capacità", "Resistenze", "Semiconduttori",
                                                     "Old Radio", "Varie", "Leggimi"}));
}

TEST(MenuCatalogue, EverySubmenuStandsBeforeItsEntriesAndHasSome) {
  std::map<std::string_view, int> entries_of;
  for (const MenuEntry& each : menu_catalogue()) {
    if (!each.parent.empty()) {
      ASSERT_TRUE(entries_of.contains(each.parent)) << each.name;
      ++entries_of[each.parent];
    }
    if (each.is_submenu()) {
      entries_of[each.name] = 0;
    }
  }
  for (const auto& [submenu, entries] : entries_of) {
    EXPECT_GT(entries, 0) << submenu;
  }
}

TEST(MenuCatalogue, AWindowWithSeveralEntriesIsAlwaysShownTheSameWay) {
  std::map<std::string_view, std::vector<MenuEntry>> by_window;
  for (const MenuEntry& each : menu_catalogue()) {
    if (!each.is_submenu()) {
      by_window[each.window].push_back(each);
    }
  }
  int shared = 0;
  for (const auto& [window, entries] : by_window) {
    shared += entries.size() > 1 ? 1 : 0;
    for (const MenuEntry& each : entries) {
      EXPECT_EQ(each.showing, entries.front().showing) << window;
    }
  }
  EXPECT_EQ(shared, 14);
  EXPECT_EQ(by_window["frmsmeterhf"].size(), 3U);
}

TEST(MenuCatalogue, CaptionsKeepTheirBlanksAndSlips) {
  EXPECT_EQ(entry("mnuEH").caption, "Antenna E H ");
  EXPECT_EQ(entry("mnuadattatori").caption, "Adattattori Imp.za");
  EXPECT_EQ(entry("mnusmeter").caption, "dBm  S-METER in HF");
  EXPECT_EQ(entry("mnuEHstar").caption, "E H  tipo STAR");
  EXPECT_EQ(entry("mnuresistenze").caption, "Res.  serie e parallelo");
  EXPECT_EQ(entry("mnuadattatorilc").caption, "Adattatori Imp.  L C");
  EXPECT_EQ(entry("mnuresistività").window, "frmresistività");
}

}  // namespace
}  // namespace eterlab::shell
