#pragma once

#include <string_view>

#include "common/arithmetic.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::transistors {

/// What the windows that match a stage of a transmitter to what follows have in common.
class MatchingWindow : public ui::Calculator {
 protected:
  MatchingWindow(std::string_view name, std::string_view title, std::string_view hint_name,
                 ui::TwipsPoint corner_beside_coils);

  void lay_out_with_coils(const ui::Item& contents, int width_in_characters = default_width) {
    lay_out(contents, {&cmdchiamabobine}, width_in_characters);
  }
  /// Where a line of standard values stands among the results.
  static constexpr int width_for_standard_values = 112;

  /// Unless a network fulfils what a Q must be above, the least Q is told; where the box does not
  /// take that, the box of what asks for too much gets the focus.
  void require_q(bool fulfils, Real least, ui::Input& txtq, ui::Input& otherwise) const;

  /// The supply of a collector: a coil from its node up to the supply, which a capacitor shorts to
  /// ground.
  static void draw_supply(ui::Schematic& drawing, ui::At node, std::string_view coil_name,
                          ui::Value& coil, std::string_view capacitor);
  /// A transistor under the node of its collector, driven from the left, its emitter on ground.
  static void draw_final_stage(ui::Schematic& drawing, ui::At collector, double ground_y);

 private:
  ui::CompanionButton cmdchiamabobine;
};

}  // namespace eterlab::transistors
