#pragma once

#include <string_view>

#include "common/arithmetic.h"
#include "ui/ui.h"

namespace eterlab::coils {

/// What the toroid windows have in common: the list of cores and, from the first choice on, the
/// dimensions of the chosen one and the colour code of its mix.
class ToroidPicker {
 public:
  ToroidPicker(ui::Parent window, std::string_view prompt);

  /// For the layout: the list with its prompt; below it, what is told about the core.
  ui::Item list();
  ui::Item core();

  /// The handler runs when the choice is made and shown.
  void on_choose(const ui::Handler& handler);
  /// Chooses as the user does.
  void choose(std::string_view core) { cmbnucleo.choose(core); }

  /// Of the chosen core.
  [[nodiscard]] Real inductance_index_uh() const { return cmbnucleo.chosen_value(); }

 private:
  void cmbnucleo_click();

  ui::Label lblhelp1;
  ui::ComboBox cmbnucleo;
  ui::Label lbldimensioni;
  ui::Frame Frame1;
  ui::Label lblcolor;
  ui::Label lblcolore;
};

}  // namespace eterlab::coils
