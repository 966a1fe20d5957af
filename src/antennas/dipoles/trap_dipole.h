#pragma once

#include <optional>
#include <span>
#include <vector>

#include "antennas/straight_wire.h"

namespace eterlab::antennas {

/// @name Dipoles with traps
/// Fed in the middle, with lossless traps at the same places of both arms. At its own frequency a
/// trap opens the wire: what lies beyond is left out, which moves the resonance by less than 0.3 %.
/// Source: straight_wire.h; within 0.2 % of NEC-2 in all resonances.
/// @{

/// Of a coil and a capacitor side by side that resonate at a frequency, at another one.
Real trap_reactance_ohm(Real frequency_mhz, Real trap_mhz, Real inductance_h);

/// The last section of the arms, which brings a dipole to resonance together with traps at these
/// places. Made once, it finds the section for any traps.
class OuterSection {
 public:
  /// Traps at distances from the middle in rising order.
  OuterSection(std::span<const Real> trap_places_m, const Conductor& conductor);

  /// The shortest one, from 0.002 to 0.26 wavelengths; none where the traps alone load too much.
  [[nodiscard]] std::optional<Real> length_m(std::span<const Real> trap_reactances_ohm) const;

 private:
  struct Tried {
    Real length_m;
    WirePorts ports;
  };

  [[nodiscard]] WirePorts ports(Real length_m) const;

  std::vector<Real> trap_places_m_;
  Conductor conductor_;
  std::vector<Tried> tried_;
};

/// A section of an arm from the middle, or from the trap before, with the trap at its outer end.
struct TrapSection {
  Real frequency_mhz;   ///< at which the arms end with it
  Real length_m;        ///< of the section
  Real inductance_h;    ///< of the trap; 0 of the last section
  Real resistance_ohm;  ///< in the middle, at its frequency
};

/// A dipole for several bands with a pair of traps for each but the lowest. The frequencies fall by
/// a tenth at least. None where the traps load too much.
std::optional<std::vector<TrapSection>> trap_dipole(std::span<const Real> frequencies_mhz,
                                                    std::span<const Real> capacitances_pf,
                                                    Real diameter_mm);

/// Three frequencies that rise by a tenth at least, the highest not above ten times the lowest.
struct ThreeBands {
  Real low_mhz;
  Real trap_mhz;  ///< the one between, at which the traps resonate
  Real high_mhz;
};

/// A dipole for three bands with one pair of traps.
struct SinglePairDipole {
  ThreeBands bands;
  Real diameter_mm;
  Real inductance_h;   ///< of each trap
  Real capacitance_f;  ///< of each trap
  Real inner_m;        ///< from the middle to the trap
  Real outer_m;        ///< from the trap to the tip

  /// At any frequency.
  [[nodiscard]] Complex impedance_ohm(Real frequency_mhz) const;
};

/// The traps of the least reactance, from 60 to 1500 Ohm, that bring the third band to resonance
/// too. None where there are none. Source: the idea is C. L. Buchanan's (W3DZZ), QST, March 1955.
std::optional<SinglePairDipole> single_pair_dipole(const ThreeBands& bands, Real diameter_mm);

/// @}

}  // namespace eterlab::antennas
