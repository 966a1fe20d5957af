#pragma once

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/label.h"
#include "ui/layout.h"
#include "ui/text_box.h"

namespace eterlab::ui {

/// The numbers that a box takes, the limits themselves among them.
struct Range {
  double lowest = 1e-12;
  double highest = 1e12;
};

/// A box for a number together with its prompt. In a form it is a line of its own.
class Input final : public TextBox {
 public:
  struct Traits {
    std::string_view tooltip = {};
    std::string_view holds = {};  ///< at opening
    /// Unless told, the widest one; of an optional box it begins at 0.
    std::optional<Range> range = {};
    /// The tooltip begins with the range: "da 0.01 a 1000".
    bool tells_range = false;
    /// A required number must be above zero or, where its range goes below, just be there. An
    /// optional box counts as 0 when it is empty.
    bool is_optional = false;
    /// What an optional box says to a number below zero, where that is not just out of its range.
    std::string_view negative = {};
    /// Unless told, the name of the box with "_prompt" behind it.
    std::string_view prompt_name = {};
  };

  Input(Parent parent, std::string_view name, std::string_view prompt, const Traits& traits);
  Input(Parent parent, std::string_view name, std::string_view prompt)
      : Input{parent, name, prompt, Traits{}} {}
  ~Input() override;

  using TextBox::operator=;
  operator Field() const { return {prompt_.get(), const_cast<Input*>(this), nullptr}; }

  /// As TextBox::number, but beyond the range of a double the largest of its sign.
  [[nodiscard]] Real value() const;
  [[nodiscard]] Range range() const;
  [[nodiscard]] bool is_in_range() const;
  /// Whether it holds what is required.
  [[nodiscard]] bool is_told() const;
  [[nodiscard]] const std::string& negative() const { return negative_; }
  /// For windows that compute as the user types: the number where it can be computed with.
  [[nodiscard]] std::optional<Real> usable() const;

  /// Asks for something else, also where the box was hidden.
  void ask(std::string_view prompt);
  void ask(std::string_view prompt, Range range);
  /// The same for a box that what was typed for another prompt does not stay in; for the same one
  /// it does.
  void ask_anew(std::string_view prompt, Range range);
  /// Another one than it was made with.
  void set_tooltip(std::string_view tip);
  /// With its prompt.
  void hide();
  void show();
  [[nodiscard]] Label& prompt() const { return *prompt_; }

 private:
  void tell_range();

  std::unique_ptr<Label> prompt_;
  std::string tip_;
  std::optional<Range> range_;
  std::string negative_;
  bool tells_range_;
  bool is_optional_;
};

/// Boxes of one kind told apart by their index: txtr_0, txtr_1, ...
class InputArray {
 public:
  /// One for each prompt. The prompts' name, if any, gets the index of the box behind it.
  InputArray(Parent parent, std::string_view name, std::initializer_list<std::string_view> prompts,
             const Input::Traits& traits);
  InputArray(Parent parent, std::string_view name, std::initializer_list<std::string_view> prompts)
      : InputArray{parent, name, prompts, Input::Traits{}} {}
  ~InputArray();

  [[nodiscard]] Input& operator[](int index) const;
  [[nodiscard]] int size() const { return static_cast<int>(inputs_.size()); }
  operator Fields() const;
  /// Empties all of them.
  void clear() const;

 private:
  std::vector<std::unique_ptr<Input>> inputs_;
};

}  // namespace eterlab::ui
