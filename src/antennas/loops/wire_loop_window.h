#pragma once

#include <string>
#include <string_view>

#include "common/arithmetic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

/// What the windows of loops of bare wire have in common.
class WireLoopWindow : public ui::Calculator {
 protected:
  WireLoopWindow(std::string_view name, std::string_view title, std::string_view usual_diameter_mm);

  /// Numbers above zero, then frequency and wire.
  void check() override;

  [[nodiscard]] Real wave_m() const;
  [[nodiscard]] Real wire_diameter_m() const;
  /// A length that a tape can measure: in metres below 30 MHz and from 10 m on, else in
  /// centimetres.
  [[nodiscard]] std::string length_text(Real length_m) const;

  ui::Input txtfrequenza{
      this, "txtfrequenza", "FREQUENZA in MHz", {.range = ui::Range{0.01, 3000}}};
  ui::Input txtdiametro;
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Note Label1{
      this, "Label1",
      "MISURE PER LO SPAZIO LIBERO: VICINO AL SUOLO LA RISONANZA SI SPOSTA, TAGLIARE UN "
      "POCO PIU' LUNGO E RIFINIRE"};
};

// Results
std::string impedance_text(Real resistance_ohm);
std::string transformer_text(Real resistance_ohm);

}  // namespace eterlab::antennas
