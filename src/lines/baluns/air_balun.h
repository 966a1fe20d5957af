#pragma once

#include <cstdint>
#include <optional>

#include "common/arithmetic.h"
#include "lines/baluns/air_winding.h"

namespace eterlab::lines {

/// How many times the cable's impedance a voltage balun of wires side by side has at its balanced
/// side.
enum class AirBalunRatio : std::uint8_t {
  one,   ///< three wires
  four,  ///< two wires
};

/// A voltage balun without a core.
struct AirBalun {
  AirWinding winding;          ///< of all wires
  Real inductance_h;           ///< of each wire
  Real swr_at_lowest;          ///< that it adds there on the cable
  Real highest_frequency_mhz;  ///< at which each wire is an eighth of a wave
};

/// The balun whose windings, across the cable, have five times its impedance at the lowest
/// frequency; none where 100 turns do not do. Waves run along insulated wires at 0.8 of the speed
/// of light, and up to an eighth of a wave Ruthroff's transformers lose 0.03 dB (Proc. IRE 47,
/// 1959).
std::optional<AirBalun> air_balun(AirBalunRatio ratio, Real lowest_frequency_mhz, Real cable_ohm,
                                  Real former_diameter_mm, Real wire_diameter_mm);

/// The choke that a winding of cable is, with at least ten times its impedance at the lowest
/// frequency; none where 50 turns do not do.
std::optional<AirWinding> cable_choke(Real lowest_frequency_mhz, Real cable_ohm,
                                      Real former_diameter_mm, Real cable_diameter_mm);

}  // namespace eterlab::lines
