#include "ui/input.h"

#include <algorithm>
#include <limits>

#include "common/leading_number.h"
#include "common/number_text.h"
#include "ui/text.h"

namespace eterlab::ui {

namespace {

std::string name_of_prompt(std::string_view box, const Input::Traits& traits) {
  return traits.prompt_name.empty() ? std::string{box} + "_prompt"
                                    : std::string{traits.prompt_name};
}

}  // namespace

Input::Input(Parent parent, std::string_view name, std::string_view prompt, const Traits& traits)
    : TextBox{parent, name},
      prompt_{std::make_unique<Label>(parent, name_of_prompt(name, traits), prompt)},
      range_{traits.range},
      negative_{traits.negative},
      tells_range_{traits.tells_range},
      is_optional_{traits.is_optional} {
  prompt_->set_prompt_of(*this);
  set_tooltip(traits.tooltip);
  *this = traits.holds;
}

Input::~Input() = default;

Real Input::value() const {
  try {
    return number();
  } catch (const ArithmeticFault&) {
    constexpr double largest = std::numeric_limits<double>::max();
    return text().trimmed().startsWith('-') ? -largest : largest;
  }
}

Range Input::range() const { return range_.value_or(is_optional_ ? Range{.lowest = 0} : Range{}); }

bool Input::is_in_range() const {
  const Range limits = range();
  return value() >= limits.lowest && value() <= limits.highest;
}

bool Input::is_told() const {
  const bool may_be_any = range().lowest < 0;
  return is_optional_ || value() > 0 ||
         (may_be_any && (value() < 0 || leading_number_if_any(content())));
}

std::optional<Real> Input::usable() const {
  return is_told() && is_in_range() ? std::optional{value()} : std::nullopt;
}

void Input::ask(std::string_view prompt) {
  *prompt_ = prompt;
  show();
}

void Input::ask(std::string_view prompt, Range range) {
  range_ = range;
  tell_range();
  ask(prompt);
}

void Input::ask_anew(std::string_view prompt, Range range) {
  if (prompt_->content() != prompt) {
    *this = "";
  }
  ask(prompt, range);
}

void Input::set_tooltip(std::string_view tip) {
  tip_ = tip;
  tell_range();
}

void Input::tell_range() {
  const Range limits = range();
  const std::string told =
      tells_range_ ? "da " + as_typed(limits.lowest) + " a " + as_typed(limits.highest) : "";
  setToolTip(to_qt(told + tip_));
}

void Input::hide() {
  prompt_->hide();
  TextBox::hide();
}

void Input::show() {
  prompt_->show();
  TextBox::show();
}

InputArray::InputArray(Parent parent, std::string_view name,
                       std::initializer_list<std::string_view> prompts,
                       const Input::Traits& traits) {
  for (const std::string_view prompt : prompts) {
    const std::string index = "_" + std::to_string(inputs_.size());
    const std::string prompt_name =
        traits.prompt_name.empty() ? std::string{} : std::string{traits.prompt_name} + index;
    Input::Traits of_this = traits;
    of_this.prompt_name = prompt_name;
    inputs_.push_back(std::make_unique<Input>(parent, std::string{name} + index, prompt, of_this));
  }
}

InputArray::~InputArray() = default;

Input& InputArray::operator[](int index) const { return *inputs_[static_cast<std::size_t>(index)]; }

InputArray::operator Fields() const {
  Fields fields;
  std::ranges::transform(inputs_, std::back_inserter(fields),
                         [](const auto& input) -> Field { return *input; });
  return fields;
}

void InputArray::clear() const {
  for (const auto& input : inputs_) {
    *input = "";
  }
}

}  // namespace eterlab::ui
