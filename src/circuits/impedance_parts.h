#pragma once

#include <string>
#include <string_view>

#include "common/complex.h"
#include "ui/ui.h"

// What the windows of impedances ask for and tell alike.

namespace eterlab::circuits {

inline constexpr std::string_view frequency_prompt = "FREQUENZA in MHz";
inline constexpr std::string_view inductance_prompt = "INDUTTANZA in uH";
inline constexpr std::string_view capacitance_prompt = "CAPACITA' in pF";
inline constexpr std::string_view resistance_prompt = "RESISTENZA in OHM";
inline constexpr ui::Range frequency_range{.lowest = 1e-9, .highest = 1e9};

/// A frequency as the windows of resonant circuits tell it.
std::string kilohertz_text(Real frequency_hz);

/// @{
/// What is typed in the usual unit, in that of the formulas.
inline Real hertz(const ui::Input& megahertz) { return megahertz.value() * 1e6; }
inline Real henry(const ui::Input& microhenry) { return microhenry.value() / 1e6; }
inline Real farad(const ui::Input& picofarad) { return picofarad.value() / 1e12; }
/// @}

/// The lines that tell an impedance: magnitude, angle and parts. In a layout they are a column.
class ImpedanceResult {
 public:
  /// Their names end alike, as those of the second circuit of a window do.
  explicit ImpedanceResult(ui::Parent parent, std::string_view name_end = {});

  ImpedanceResult& operator=(Complex impedance_ohm);
  operator ui::Item() { return ui::column(lblmodulo, lblfase, lblcomplessa); }

 private:
  ui::Result lblmodulo;
  ui::Result lblfase;
  ui::Result lblcomplessa;
};

}  // namespace eterlab::circuits
