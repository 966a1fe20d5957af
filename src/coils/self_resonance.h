#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::coils {

/// A coil with the capacitance that it has by itself.
struct SelfResonance {
  Real inductance_h;
  Real capacitance_f;  ///< its own
  Real frequency_hz;   ///< where it resonates alone; above it is no coil any more
};

/// Whether the length is from 0.1 to 50 diameters, as coil_self_resonance() wants it.
bool has_known_self_capacitance(Real diameter_m, Real length_m);

/// A round coil of one layer with one end grounded; within 8 % of the capacitance that was
/// measured. Source: R. G. Medhurst, "H.F. Resistance and Self-Capacitance of Single-Layer
/// Solenoids", Wireless Engineer 1947; the inductance is that of the current sheet.
SelfResonance coil_self_resonance(Real diameter_m, Real length_m, Real turns);

/// The same coil connected to nothing resonates so much higher; within 6 % of six helices computed
/// by the method of moments.
inline constexpr double isolated_resonance_ratio = 1.5;

/// A frequency at which a coil resonates with a capacitor.
struct ResonanceMeasured {
  Real capacitance_f;
  Real frequency_hz;
};

/// A coil by what it does with two capacitors, first the smaller one, which resonates at the higher
/// frequency. None where its capacitance would be less than 0.001 pF: that contradicts itself.
/// Source: Terman and Pettit, Electronic Measurements.
std::optional<SelfResonance> measured_self_resonance(const ResonanceMeasured& first,
                                                     const ResonanceMeasured& second);

}  // namespace eterlab::coils
