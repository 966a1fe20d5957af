#include "transformers/core_window.h"

namespace eterlab::transformers {

CoreWindow::CoreWindow(std::string_view name, std::string_view title,
                       std::string_view section_prompt_name, std::string_view section_tooltip)
    : Calculator{name, title},
      txtsezione{this,
                 "txtsezione",
                 "SEZIONE DEL NUCLEO in cmq (FACOLTATIVA)",
                 {.tooltip = section_tooltip,
                  .range = ui::Range{1, 50},
                  .is_optional = true,
                  .prompt_name = section_prompt_name}} {}

void CoreWindow::check() {
  const std::vector<ui::Input*> inputs = used_inputs();
  for (ui::Input* input : inputs) {
    check_presence(*input);
  }
  for (ui::Input* input : inputs) {
    check_range(*input);
  }
}

std::vector<ui::Input*> CoreWindow::used_inputs() const {
  std::vector<ui::Input*> inputs = shown_inputs();
  if (!is_section_typed()) {
    std::erase(inputs, &txtsezione);
  }
  return inputs;
}

}  // namespace eterlab::transformers
