#pragma once

#include <QMenuBar>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "ui/control.h"

namespace eterlab::ui {

/// The menu bar of a laid-out window; F10 opens it. Entries are named; an empty parent is the bar
/// itself.
class MenuBar final : public QMenuBar {
 public:
  explicit MenuBar(QWidget& window);

  void add_submenu(std::string_view name, std::string_view caption, std::string_view parent);
  void add_entry(std::string_view name, std::string_view caption, std::string_view parent,
                 const Handler& chosen);
  /// Condenses the letters, within what is easy to read, until the bar is not wider than this. Call
  /// it after the last entry.
  void condense_to(int width);

 private:
  /// The menu of that name; the bar itself for an empty one.
  [[nodiscard]] QWidget* container(std::string_view name);

  std::map<std::string, QMenu*, std::less<>> menus_;
};

}  // namespace eterlab::ui
