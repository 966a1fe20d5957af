#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::lines {

/// A winding of one layer in air, its turns touching, in which one wire may be wound side by side
/// with others.
struct AirWinding {
  Real former_diameter_mm;
  Real wire_diameter_mm;  ///< with its insulation; of a cable, with its jacket
  int wires;              ///< side by side
  int turns;              ///< of each

  /// From axis to axis of the wire.
  [[nodiscard]] Real mean_diameter_m() const;
  /// From each turn to the next.
  [[nodiscard]] Real pitch_m() const;
  /// Of the winding.
  [[nodiscard]] Real length_m() const;
  /// Of each wire.
  [[nodiscard]] Real wire_length_m() const;
  /// Of each wire. Source: coils/solenoid.h, with the printed coefficients.
  [[nodiscard]] Real inductance_h() const;
  /// At which it resonates with its own capacitance, one end earthed; its length from 0.1 diameters
  /// on. The real one lies 1.2 to 1.6 times higher. Source: coils/solenoid.h.
  [[nodiscard]] Real self_resonance_hz() const;
};

/// The winding with the fewest turns, from 2 up to some, that has an inductance; whatever the turns
/// of this one. Within 1E-9.
std::optional<AirWinding> least_winding(AirWinding winding, Real inductance_h, int most_turns);

}  // namespace eterlab::lines
