#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::resistors {

/// @name Voltage dividers
/// Of an upper resistor, from the input to the output, and a lower one, from there to ground.
/// Source: Ohm's law. All values above zero unless told.
/// @{

/// What a divider does under load.
struct LoadedDivider {
  Real output_v;         ///< under load
  Real input_current_a;  ///< from the source
  Real upper_power_w;    ///< dissipated in the upper resistor
  Real lower_power_w;    ///< dissipated in the lower resistor
};

/// Of known resistors, perhaps with a load across the lower one.
LoadedDivider loaded_divider(Real input_v, Real upper_ohm, Real lower_ohm,
                             std::optional<Real> load_ohm);

/// The resistors of a divider, exact and as one buys them.
struct DividerDesign {
  Real upper_ohm;          ///< exact
  Real lower_ohm;          ///< exact
  Real input_current_a;    ///< from the source, with the exact resistors
  Real upper_power_w;      ///< dissipated in the exact upper resistor
  Real lower_power_w;      ///< dissipated in the exact lower resistor
  Real nearest_upper_ohm;  ///< of E24
  Real nearest_lower_ohm;  ///< of E24
  Real nearest_output_v;   ///< with those and the same load current, at least 0
};

/// For a wanted output, by the currents in the load, which may be 0, and in the lower resistor.
/// Wants output_v < input_v.
DividerDesign design_divider(Real input_v, Real output_v, Real load_current_a,
                             Real lower_current_a);

/// @}

}  // namespace eterlab::resistors
