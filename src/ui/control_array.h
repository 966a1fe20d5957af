#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/label.h"
#include "ui/text_box.h"

namespace eterlab::ui {

/// Controls of one name told apart by their index: lblinput_0, lblinput_1, ...
template <class Control>
class ControlArray {
 public:
  ControlArray(Parent parent, std::string_view name, int count) {
    for (int index = 0; index < count; ++index) {
      controls_.push_back(
          std::make_unique<Control>(parent, std::string{name} + "_" + std::to_string(index)));
    }
  }

  [[nodiscard]] Control& operator[](int index) const {
    return *controls_[static_cast<std::size_t>(index)];
  }

 private:
  std::vector<std::unique_ptr<Control>> controls_;
};

using LabelArray = ControlArray<Label>;
using TextBoxArray = ControlArray<TextBox>;

}  // namespace eterlab::ui
