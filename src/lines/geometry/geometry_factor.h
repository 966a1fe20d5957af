#pragma once

#include "common/arithmetic.h"

namespace eterlab::lines {

/// @name Geometry factors
/// What a cross-section makes of the impedance of a lossless line: X of eta0 X / (2 pi) for one
/// conductor against a screen or ground, of eta0 X / pi for two that are fed in push-pull. Lengths
/// are all in one unit, above zero. The current flows on the surface, as it does at radio
/// frequencies. Thin wires give the formulas of the handbooks (Reference Data for Radio Engineers;
/// Terman, Radio Engineers' Handbook). What makes a wire thick is the field of its images, to the
/// second order, see proximity_correction().
/// @{

/// What the nearness of other conductors adds to the factor of a thin wire: ln((1 + sqrt(1 - t^2))
/// / 2), where t is the diameter times the sum, as vectors, of +-1 / distance of all unit charges
/// that oppose or mirror the wire, at its centre. With it a lone pair and a wire over ground are
/// exact. From -1 to 1, else throws invalid_argument.
Real proximity_correction(Real t);

/// Two equal wires, push-pull. Exact: arcosh(spacing / diameter). The spacing is that of the
/// centres, not below the diameter. Source: Kraus, Electromagnetics.
Real wire_pair_factor(Real diameter, Real spacing);
/// The spacing that gives a factor.
Real wire_pair_spacing(Real diameter, Real factor);

/// A wire over ground. Exact: arcosh(2 height / diameter). The height is that of the centre, not
/// below half of the diameter.
Real wire_over_ground_factor(Real diameter, Real height);

/// A thin strip over ground, of any width and height, within 0.01 %. Source: Hammerstad and Jensen,
/// "Accurate models for microstrip computer-aided design", IEEE MTT-S 1980.
Real strip_over_ground_factor(Real width, Real height);

/// A pair of wires over ground, both at the same height of their centres.
struct PairOverGround {
  Real diameter;  ///< of each wire
  Real spacing;   ///< of the centres, from 1.5 diameters
  Real height;    ///< of the centres, from 2 diameters
};
/// Push-pull; within 1.1 %.
Real push_pull_factor(const PairOverGround& pair);
/// Both wires joined to one conductor, against the ground. Within 1.8 %, from a spacing of 2
/// diameters on 0.7 %.
Real joined_factor(const PairOverGround& pair);

/// A pair of wires midway between two plates, push-pull; spacing of the centres and distance of
/// the plates from 1.5 diameters. Within 2 %, from a spacing of 3 diameters on 0.15 %.
Real pair_between_plates_factor(Real diameter, Real spacing, Real plate_distance);

/// A pair of wires in a round screen, symmetric to its axis, push-pull; the spacing of the centres
/// from 1.5 diameters, the inner diameter of the screen from that and 1.5 diameters. Within 2.2 %.
Real shielded_pair_factor(Real diameter, Real spacing, Real screen_diameter);

/// A round rod midway between two plates, whose distance is 1.1 diameters or more; within 0.07 %.
/// Source: Wadell, Transmission Line Design Handbook.
Real rod_between_plates_factor(Real diameter, Real plate_distance);

/// A round rod on the axis of a square tube, whose inner side is 1.1 diameters or more; within
/// 0.04 %. Source: the conformal radius of a square, and the first harmonic that a rod of some
/// thickness feels in it.
Real rod_in_square_factor(Real diameter, Real side);

/// A round conductor in a round screen. Exact: ln(screen_diameter / diameter).
Real coaxial_factor(Real diameter, Real screen_diameter);

/// @}

/// @name Rods in an enclosure
/// @{

/// The factor of a rod in the middle of an enclosure of some size, rising with size / diameter.
using EnclosedRodFactor = Real (*)(Real diameter, Real size);

inline constexpr double thickest_rod_ratio = 1.1;   ///< size / diameter
inline constexpr double thinnest_rod_ratio = 1000;  ///< size / diameter

/// The diameter of the rod that gives a factor, which must be one of those from the thickest to the
/// thinnest; else throws invalid_argument.
Real enclosed_rod_diameter(EnclosedRodFactor factor_of, Real size, Real factor);

/// @}

}  // namespace eterlab::lines
