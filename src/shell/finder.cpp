#include "shell/finder.h"

#include <QStringList>
#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "shell/window_words.h"
#include "shell/words.h"
#include "ui/text.h"

namespace eterlab::shell {

namespace {

const MenuEntry* find_menu(std::string_view name) {
  const auto all = menu_catalogue();
  const auto found = std::ranges::find(all, name, &MenuEntry::name);
  return found == all.end() ? nullptr : &*found;
}

/// "Linee > Balun e Un-Un"; empty on the bar itself.
std::string path_of(const MenuEntry& entry) {
  const MenuEntry* menu = find_menu(entry.parent);
  if (menu == nullptr) {
    return {};
  }
  const std::string above = path_of(*menu);
  return (above.empty() ? "" : above + " > ") + std::string{menu->caption};
}

const WindowWords* words_of_window(std::string_view window) {
  const auto all = window_words();
  const auto found = std::ranges::find(all, window, &WindowWords::window);
  return found == all.end() ? nullptr : &*found;
}

/// What an entry is looked for in: words with a blank before and behind each.
struct Indexed {
  FoundEntry found;
  std::string caption;
  std::string others;
};

std::string joined(const QStringList& words) { return ui::from_qt(' ' + words.join(' ') + ' '); }

std::string told(const MenuEntry& entry, const std::string& path) {
  const std::string caption = ui::from_qt(ui::to_qt(entry.caption).simplified());
  return path.empty() ? caption : caption + "   (" + path + ")";
}

std::vector<Indexed> made_index() {
  std::vector<Indexed> index;
  for (const MenuEntry& entry : menu_catalogue()) {
    if (!entry.is_submenu()) {
      const std::string path = path_of(entry);
      FoundEntry found{&entry, told(entry, path), {}};
      QStringList others = words_of(path);
      if (const WindowWords* window = words_of_window(entry.window); window != nullptr) {
        found.title = window->title;
        others += words_of(window->title) + words_of(window->words);
      }
      index.push_back({std::move(found), joined(words_of(entry.caption)), joined(others)});
    }
  }
  return index;
}

/// Singular and plural begin alike.
QString stem(const QString& word) {
  constexpr qsizetype shortest = 4;
  const bool is_long = word.size() >= shortest && QStringLiteral("aeiou").contains(word.back());
  return is_long ? word.chopped(1) : word;
}

/// A word as it is looked for: anywhere, at the beginning of another, by itself.
struct Wanted {
  explicit Wanted(const QString& word)
      : inside{ui::from_qt(stem(word))}, beginning{' ' + inside}, whole{beginning + ' '} {}

  std::string inside;
  std::string beginning;
  std::string whole;
};

bool has(const std::string& words, const std::string& wanted) {
  return words.find(wanted) != std::string::npos;
}

constexpr int not_there = 100;

/// How far a word is from being the first that an entry is known by.
int distance(const Wanted& word, const Indexed& indexed) {
  // One or two letters begin many words; by themselves they are a unit or a number.
  constexpr std::size_t shortest_beginning = 3;
  constexpr std::size_t shortest_inside = 4;
  const int of_beginning = word.inside.size() < shortest_beginning ? 2 : 0;
  int least = not_there;
  if (has(indexed.caption, word.beginning)) {
    least = has(indexed.caption, word.whole) ? 0 : of_beginning;
  }
  if (least > 1 && has(indexed.others, word.beginning)) {
    least = std::min(least, 1 + (has(indexed.others, word.whole) ? 0 : of_beginning));
  }
  if (least < not_there) {
    return least;
  }
  const bool is_inside = word.inside.size() >= shortest_inside &&
                         (has(indexed.caption, word.inside) || has(indexed.others, word.inside));
  return is_inside ? 4 : not_there;
}

}  // namespace

std::vector<const FoundEntry*> find_entries(std::string_view text) {
  static const std::vector<Indexed> index = made_index();
  std::vector<Wanted> words;
  for (const QString& word : words_of(text)) {
    words.emplace_back(word);
  }
  std::vector<std::pair<int, const FoundEntry*>> found;
  for (const Indexed& indexed : index) {
    int sum = 0;
    const bool has_all = std::ranges::all_of(words, [&](const Wanted& word) {
      const int away = distance(word, indexed);
      sum += away;
      return away < not_there;
    });
    if (has_all) {
      found.emplace_back(sum, &indexed.found);
    }
  }
  std::ranges::stable_sort(found, {}, &std::pair<int, const FoundEntry*>::first);
  std::vector<const FoundEntry*> entries;
  entries.reserve(found.size());
  for (const auto& [away, entry] : found) {
    entries.push_back(entry);
  }
  return entries;
}

}  // namespace eterlab::shell
