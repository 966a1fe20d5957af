#pragma once

#include <QButtonGroup>
#include <QRadioButton>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace eterlab::ui {

class Option final : public QRadioButton {
 public:
  Option(Parent parent, std::string_view name, std::string_view caption);
  ~Option() override;

  [[nodiscard]] std::string caption() const;
};

/// Option buttons of one choice, told apart by their index: Option1_0, Option1_1, ...
class OptionArray {
 public:
  static constexpr int none = -1;

  OptionArray(Parent parent, std::string_view name,
              std::initializer_list<std::string_view> captions, int first_index = 0);
  ~OptionArray();

  [[nodiscard]] Option& operator[](int index) const;
  [[nodiscard]] std::vector<Option*> buttons() const;
  /// The index chosen, or none.
  [[nodiscard]] int selected() const { return group_.checkedId(); }
  /// Chooses as the design does: no handler runs.
  void preset(int index) const;
  /// Chooses as the user does.
  void click(int index) const { (*this)[index].click(); }

  /// Writes one caption in a colour, on a dark window a lighter one of the same hue; the others in
  /// the system's colour of buttons.
  void mark(int index, Colour colour) const;

  /// Every click on a button, also on the one that is chosen already; tells its index.
  void on_click(std::function<void(int)> handler);

 private:
  std::vector<std::unique_ptr<Option>> buttons_;
  QButtonGroup group_;
};

}  // namespace eterlab::ui
