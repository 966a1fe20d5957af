#pragma once

#include <QComboBox>
#include <QSignalBlocker>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "ui/control.h"
#include "ui/label.h"
#include "ui/layout.h"

namespace eterlab::ui {

/// A choice of one entry out of a drop-down list, with its prompt. One is always chosen, at opening
/// the first. Letters typed go to the entry that begins with them. In a form it is a line of its
/// own.
class List final : public QComboBox {
 public:
  /// Without entries, they are added later. The prompt's name is that of the list with "_prompt"
  /// behind it.
  List(Parent parent, std::string_view name, std::string_view prompt,
       std::initializer_list<std::string_view> entries = {}, Tooltip tip = {});
  ~List() override;

  /// Where a window names the prompt otherwise.
  void name_prompt(std::string_view name);
  operator Field() const { return {prompt_.get(), const_cast<List*>(this), nullptr}; }

  void add(std::string_view entry);
  /// The entries of a catalogue by their names, in place of what was listed. No handler runs.
  template <class Catalogue>
  void offer(const Catalogue& catalogue) {
    const QSignalBlocker quiet{this};
    clear();
    for (const auto& entry : catalogue) {
      add(entry.name);
    }
  }
  /// The place of the chosen entry, from 0.
  [[nodiscard]] int chosen() const { return currentIndex(); }
  /// The entry chosen, of the catalogue that is listed.
  template <class Entry>
  [[nodiscard]] const Entry& chosen_of(std::span<const Entry> catalogue) const {
    return catalogue[static_cast<std::size_t>(chosen())];
  }
  [[nodiscard]] std::string content() const;
  void choose(int index) { setCurrentIndex(index); }
  /// The entry of that text, which must be there.
  void choose(std::string_view entry);

  /// Another entry is chosen, or the same one picked again from the list.
  void on_choose(const Handler& handler);

  void showPopup() override;

 private:
  bool has_changed_ = false;  // since the list was last open
  std::unique_ptr<Label> prompt_;
};

}  // namespace eterlab::ui
