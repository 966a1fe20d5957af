#pragma once

#include <array>
#include <optional>

#include "common/arithmetic.h"

namespace eterlab::power {

/// @name Three-terminal regulators
/// Circuits around the regulators of the 78xx and LM317 families. Source: the makers' application
/// notes. What lies outside the range of a regulator has no design.
/// @{

/// The nominal outputs of the 78xx: 7805 to 7824.
inline constexpr std::array<int, 6> fixed_regulators_v{5, 8, 12, 15, 18, 24};

/// The divider that sets the output, and the input that goes with it.
struct RegulatorDesign {
  Real r1_ohm;   ///< from the output to the reference pin
  Real r2_ohm;   ///< from the reference pin to ground
  Real input_v;  ///< to feed the regulator with
};

/// Raises the output of a fixed regulator: R1 = Vnom / I, R2 = (Vout - Vnom) / I with 25 mA through
/// the divider, both to the ohm. The output must be above the nominal voltage, at most 35 V.
std::optional<RegulatorDesign> raised_fixed_regulator(Real nominal_v, Real output_v);

/// Output of an adjustable regulator with 220 ohm for R1: Vout = 1.25 V (1 + R2 / R1). It must be
/// above 1.25 V, at most 100 V.
std::optional<RegulatorDesign> adjustable_regulator(Real output_v);

/// An adjustable regulator bears 30 V between input and output.
Real adjustable_regulator_highest_input_v(Real output_v);

/// The resistor between output and reference pin that makes an adjustable regulator a source of
/// constant current: R = 1.25 V / I, to a tenth of an ohm. Above 0, at most 1000 mA.
std::optional<Real> constant_current_resistor_ohm(Real current_ma);

/// @}

}  // namespace eterlab::power
