#pragma once

#include <string_view>
#include <vector>

#include "ui/ui.h"

namespace eterlab::transformers {

/// A window of windings on a laminated core. Where the box of its section is empty, or 0, the
/// section is to be found.
class CoreWindow : public ui::Calculator {
 protected:
  CoreWindow(std::string_view name, std::string_view title, std::string_view section_prompt_name,
             std::string_view section_tooltip = {});

  /// As the usual checks, of the boxes that count.
  void check() final;
  /// The boxes that count: those shown, that of the section where it is typed.
  [[nodiscard]] virtual std::vector<ui::Input*> used_inputs() const;
  [[nodiscard]] bool is_section_typed() const { return txtsezione.value() != 0; }

  ui::Input txtsezione;
};

}  // namespace eterlab::transformers
