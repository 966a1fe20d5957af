#pragma once

#include <string_view>

#include "antennas/thickness_range.h"
#include "antennas/verticals/tube.h"
#include "ui/ui.h"

namespace eterlab::antennas {

/// A window of an antenna that follows from its frequency and from the diameter of its tube.
class TubeWindow : public ui::Calculator {
 protected:
  struct Traits {
    std::string_view name;
    std::string_view title;
    std::string_view diameter_prompt;
    ui::Range frequency_range_mhz;
    ThicknessRange thickness;
  };
  explicit TubeWindow(const Traits& traits);

  /// The tube must not be too thin or too thick.
  void check() override;
  [[nodiscard]] Tube tube() const { return {txtdiametro.value(), txtfrequenza.value()}; }
  [[nodiscard]] ui::Item boxes() const { return ui::form(txtfrequenza, txtdiametro); }

  /// A length, "A  RADIATORE = 48,8 cm.", and on the drawing with its letter, "A 48,8 cm.".
  static void show_length(ui::Result& result, ui::Value& on_drawing, std::string_view letter,
                          std::string_view name, Real length_m);

 private:
  ui::Input txtfrequenza;
  ui::Input txtdiametro;
  ThicknessRange suitable_;
};

}  // namespace eterlab::antennas
