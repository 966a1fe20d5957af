#pragma once

#include <optional>
#include <string_view>

#include "common/arithmetic.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::circuits {

/// What tells the circuit with a capacitor from the one with a coil.
struct TimeConstantKind {
  std::string_view window;
  std::string_view title;
  std::string_view part_box;
  std::string_view part_prompt;
  double part_unit;  ///< of the box, in that of the result
  std::string_view part_result_unit;
  std::string_view part_letter;
  ui::Schematic& (ui::Schematic::*draw_part)(ui::Schematic::At from, ui::Schematic::At to);
  std::string_view rise;        ///< what has come to 95 %
  std::string_view curve_name;  ///< where there is another curve
  std::string_view quantity;    ///< what is plotted
  std::string_view quantity_unit;
  Real (*time_constant_s)(Real resistance_ohm, Real part);
};

/// A battery, a switch, a resistor, and a part that takes its time.
class TimeConstantWindow : public ui::Calculator {
 protected:
  explicit TimeConstantWindow(const TimeConstantKind& kind);

  /// How voltage or current rises after the switch is closed.
  struct Rise {
    Real final_value;
    Real time_constant_s;
    std::optional<Real> asked_time_s;  ///< without one the final value is 100 %
  };
  static constexpr int plotted_time_constants = 5;

  /// What the voltage makes flow or charges up to in the end.
  [[nodiscard]] virtual Real final_value(Real supply_v, Real resistance_ohm) const = 0;
  /// Writes the two last results; the rise is on the plot already.
  virtual void tell(const Rise& rise) = 0;

  ui::Result lblcarica{this, "lblcarica"};
  ui::Result lblscarica{this, "lblscarica"};
  ui::Schematic drawing{this, "drawing", 54, 18};
  ui::Plot plot{this, "plot", {}, {}, 54, 32};

 private:
  void draw();
  void set_axes(bool in_percent, Real final_value);
  void compute() override;

  const TimeConstantKind& kind_;
  ui::Input txtohm{this, "txtohm", "RESISTENZA in OHM"};
  ui::Input part;
  ui::Input txtvolt;
  ui::Input txttempo;
  ui::Result lbltau{this, "lbltau"};
  ui::Result lbl95{this, "lbl95"};
  ui::Result lbl99{this, "lbl99"};
  ui::Value lblvaloretensione{drawing, "lblvaloretensione"};
  ui::Value lblvaloreresistenza{drawing, "lblvaloreresistenza"};
  ui::Value lblvalorecomponente{drawing, "lblvalorecomponente"};
};

}  // namespace eterlab::circuits
