#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::valves {

/// Conduction angles in degrees of the classes A, AB, B and C.
inline constexpr double class_a_degrees = 360;
/// @copydoc class_a_degrees
inline constexpr double class_ab_degrees = 210;
/// @copydoc class_a_degrees
inline constexpr double class_b_degrees = 180;
/// @copydoc class_a_degrees
inline constexpr double class_c_degrees = 120;

/// How valves share a load.
enum class ValvesInUse : std::uint8_t {
  parallel,  ///< one, or several as one
  push_pull  ///< half of them in turn
};

/// A power stage at full drive. Above zero, the least voltage below the supply's.
struct PowerStage {
  Real conduction_degrees;  ///< of a cycle
  ValvesInUse valves;
  Real supply_v;          ///< of the anodes
  Real direct_current_a;  ///< of all valves
  Real least_anode_v;     ///< where the anode swings down to
};

/// What the anodes of a power stage see and make of the supply.
struct AnodeLoad {
  Real load_ohm;         ///< in push-pull from anode to anode
  Real input_w;          ///< from the supply
  Real output_w;         ///< into the load
  Real greatest_heat_w;  ///< of all anodes: at full drive, in class A without signal
  Real peak_anode_v;     ///< highest voltage of an anode
  Real peak_current_a;   ///< of each valve, in push-pull each with half of the direct current
};

/// Where the anode swings down to unless it is known: usual for pentodes and beam tetrodes.
inline constexpr double usual_least_share_of_supply = 0.15;

/// Fundamental over direct current of a cosine clipped to a conduction angle in degrees: 1 for 360,
/// pi / 2 for 180, 2 for the shortest pulses.
Real fundamental_over_mean(Real conduction_degrees);

/// The load for a sinusoidal anode voltage and currents that are clipped cosines. Source: F. E.
/// Terman, Radio Engineers' Handbook; W. L. Everitt, Proc. IRE 22 (1934).
AnodeLoad anode_load(const PowerStage& stage);

/// Voltage of an anode over a cycle, least at 0.
Real anode_voltage_v(const PowerStage& stage, Real degrees);
/// Current of a valve over a cycle, greatest at 0.
Real anode_current_a(const PowerStage& stage, Real degrees);

}  // namespace eterlab::valves
