#pragma once

#include <QMenuBar>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "ui/control.h"

namespace eterlab::ui {

/// The menu bar of a laid-out window; F10 opens it. Entries are named; an empty parent is the bar
/// itself. A letter typed goes to the first entry that begins with it, the same letter again to the
/// next such one, several letters to the entry that begins with all of them; nothing opens by it.
class MenuBar final : public QMenuBar {
 public:
  explicit MenuBar(QWidget& window);

  void add_submenu(std::string_view name, std::string_view caption, std::string_view parent);
  void add_entry(std::string_view name, std::string_view caption, std::string_view parent,
                 const Handler& chosen);
  /// Condenses the letters, within what is easy to read, until the bar is not wider than this. Call
  /// it after the last entry.
  void condense_to(int width);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// The menu of that name; the bar itself for an empty one.
  [[nodiscard]] QWidget* container(std::string_view name);

  /// Goes to the entry of the bar or of a menu that the letters typed there ask for, if any does.
  void go_by_letter(QWidget& menu, QChar letter);

  std::map<std::string, QMenu*, std::less<>> menus_;
  QString typed_;
  bool is_stepping_ = false;
};

}  // namespace eterlab::ui
