#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "common/arithmetic.h"
#include "common/complex.h"

namespace eterlab::antennas {

/// What a straight antenna is made of, and where it is used: a bare round wire or tube without
/// losses, alone in free space, at one frequency.
struct Conductor {
  Real frequency_mhz;  ///< of the current
  Real diameter_mm;    ///< not above 1/400 of the wavelength

  [[nodiscard]] Real wavelength_m() const;  ///< in free space
};

/// The antenna as it is seen from points at which it is cut, its ports: the one where it is fed and
/// those that take loads, in their order. Found once, it tells what any loads make of it.
class WirePorts {
 public:
  /// The symmetric matrix of the ports, the feed last, and for how many loads each stands.
  WirePorts(std::vector<Complex> impedances_ohm, std::vector<int> counts);

  /// At the feed, with an impedance in every other port.
  [[nodiscard]] Complex feed_impedance_ohm(std::span<const Complex> loads_ohm = {}) const;
  /// In each load, as a share of that at the feed.
  [[nodiscard]] std::vector<Complex> load_currents(std::span<const Complex> loads_ohm) const;
  /// The only lossless load that brings the feed to resonance, its reactance rising with that of
  /// the load. Of one port that takes loads. Where none does, throws invalid_argument.
  [[nodiscard]] Real resonating_reactance_ohm() const;

 private:
  [[nodiscard]] std::vector<Complex> reduced(std::span<const Complex> loads_ohm) const;

  std::vector<Complex> impedances_ohm_;
  std::vector<int> counts_;
};

/// @name Straight wire
/// By the method of moments, the sinusoids by which the current is told being also those by which
/// the field is weighed. Sources: the field of a sinusoidal current in closed form, Schelkunoff and
/// Friis, Antennas: Theory and Practice, 1952, and Balanis, Antenna Theory, chapter 8; the method,
/// Richmond, NASA CR-2399, 1974. The pieces between ports and ends, not shorter than the diameter,
/// are divided into segments of at most 1/40 of the wavelength, some 400 of them at most.
/// Resonances are within 0.2 % of those of wires of finer segments, 0.4 % of the thickest.
/// @{

/// A wire of any number of ports: their places and those of the ends in rising order, and the index
/// of the one among them that is fed.
WirePorts wire_ports(std::span<const Real> places_m, std::size_t feed, const Conductor& conductor);

/// A dipole fed in the middle: the distances from there at which each arm has a port for a load,
/// and its length, in rising order. Both arms have the same loads.
WirePorts dipole_ports(std::span<const Real> arm_places_m, const Conductor& conductor);

/// The impedance of a dipole fed in the middle. The distances from there are those of
/// dipole_ports(), the reactances those of the loads.
Complex dipole_impedance_ohm(std::span<const Real> arm_places_m, std::span<const Real> loads_ohm,
                             const Conductor& conductor);
/// The same of a dipole without loads.
Complex dipole_impedance_ohm(Real arm_m, const Conductor& conductor);

/// The arm of a dipole in its first resonance, between 0.20 and 0.26 wavelengths.
Real half_wave_arm_m(const Conductor& conductor);

/// @}

}  // namespace eterlab::antennas
