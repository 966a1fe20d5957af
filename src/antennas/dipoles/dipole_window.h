#pragma once

#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>

#include "common/arithmetic.h"
#include "common/complex.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

/// What the windows of computed dipoles share: the note how to cut their wires, the ranges of
/// their boxes, their messages.
class DipoleWindow : public ui::Calculator {
 protected:
  DipoleWindow(std::string_view name, std::string_view title);

  static constexpr ui::Range frequencies{.lowest = 1, .highest = 500};
  /// Of boxes whose limits follow from others.
  static constexpr ui::Range any{.lowest = 0, .highest = std::numeric_limits<double>::max()};

  /// As Calculator::lay_out, the note under the contents.
  void lay_out(const ui::Item& contents, std::initializer_list<ui::Button*> others = {},
               int width_in_characters = default_width);
  /// The button opens the warning that results are theory.
  static void open_warning_by(ui::Button& button);

  /// Unless the conductor in the box is thin enough at the highest of these frequencies.
  void require_thin(ui::Input& diameter, std::initializer_list<Real> frequencies_mhz) const;

  /// Of two drawings in one place shows one, empty, with the values of both on it.
  static void show_one(ui::Schematic& shown, ui::Schematic& hidden,
                       std::initializer_list<ui::Value*> values);

 private:
  ui::Note Label8;
};

/// "10,35 mt."
std::string metres_text(Real length_m);
/// "62 + j0"
std::string impedance_text(Complex impedance_ohm);
/// "1,2", "OLTRE 20"
std::string standing_wave_text(Complex load_ohm, Real line_ohm);

}  // namespace eterlab::antennas
