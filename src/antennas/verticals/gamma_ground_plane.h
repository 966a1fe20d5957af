#pragma once

#include "antennas/verticals/tube.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A quarter wave on its mast, with four horizontal radials and a gamma match to 50 ohm.
struct GammaGroundPlane {
  Real radiator_m;         ///< on the hub of the radials
  Real radial_m;           ///< each of the four
  Real rod_m;              ///< of the gamma, from its foot to the strap
  Real spacing_m;          ///< between the axes of rod and radiator
  Real rod_diameter_mm;    ///< a third of the radiator's
  Real capacitance_pf;     ///< in series with the rod
  Real cable_capacitor_m;  ///< of open RG 213 (50 ohm, velocity factor 0.66) with that capacitance
};

/// Of the radiator.
inline constexpr ThicknessRange gamma_ground_plane_thickness{0.0005, 0.008};

/// For a thickness in its range. Source of the arrangement: "The gamma-matched ground plane", QST,
/// November 1960; its dimensions are fitted to numerical solutions in free space, standing wave
/// ratio at most 1.12.
GammaGroundPlane gamma_ground_plane(const Tube& tube);

}  // namespace eterlab::antennas
