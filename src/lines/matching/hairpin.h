#pragma once

#include "common/arithmetic.h"

namespace eterlab::lines {

/// What a hairpin is made of and for.
struct HairpinTask {
  Real frequency_mhz;         ///< of the match
  Real radiator_ohm;          ///< its resistance, below that of the cable
  Real cable_ohm;             ///< its impedance
  Real radiator_diameter_mm;  ///< below a third of the wavelength
  Real rod_diameter_mm;       ///< of the hairpin
  Real spacing_mm;            ///< of the axes of the rods, at least their diameter
};

/// A hairpin across the feed point of a split radiator that is cut short until it is capacitive.
struct Hairpin {
  Real radiator_reactance_ohm;  ///< capacitive; above zero
  Real reactance_ohm;           ///< of the hairpin
  Real inductance_h;            ///< of the hairpin
  Real impedance_ohm;           ///< of the line that its rods are
  Real length_m;                ///< to the axis of the strap; not above zero where this is too long
  Real shortening_m;            ///< of each half of the radiator
};

/// The L network of both reactances. The inductance of the strap stands for some length of line: it
/// is the end term of Grover's rectangle (Inductance Calculations). The shortening follows from
/// Schelkunoff's average impedance of a radiator of a quarter wave. Source: ARRL Antenna Book.
Hairpin hairpin(const HairpinTask& task);

}  // namespace eterlab::lines
