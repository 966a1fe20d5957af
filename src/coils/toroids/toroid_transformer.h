#pragma once

#include "common/arithmetic.h"

namespace eterlab::coils {

/// The two windings of a transformer, wound turn between turn on one core.
struct MatchingWindings {
  Real antenna_turns;  ///< on the antenna's side
  Real cable_turns;    ///< on the cable's side
};

/// A narrow-band transformer between an antenna and its cable, on a toroid of an inductance index.
/// The winding on the antenna's side has five times the antenna's impedance as its reactance
/// (2 pi = 6.28); the turns are in the ratio of the roots of the impedances. No value may be zero,
/// and those of each quotient must have the same sign. Source: the usual rule of thumb for the
/// reactance of transformer windings.
MatchingWindings matching_windings(Real frequency_mhz, Real antenna_ohm, Real cable_ohm,
                                   Real inductance_index_uh);

}  // namespace eterlab::coils
