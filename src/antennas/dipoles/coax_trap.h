#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A coaxial cable that traps are wound of.
struct TrapCable {
  std::string_view name;        ///< its type
  double capacitance_pf_per_m;  ///< between the conductors
  double diameter_mm;           ///< with the jacket
};

/// The cables of today after MIL-C-17 and their makers' sheets.
std::span<const TrapCable> trap_cables();

/// What the outer wire of the antenna is joined to.
enum class TrapOutput : std::uint8_t {
  inner_conductor,  ///< of the winding's end: high impedance
  joint,            ///< of that of the start with the shield of the end: low impedance
};

/// A winding of cable, turn on turn.
struct CoaxTrap {
  Real turns;          ///< not whole
  Real cable_m;        ///< that it takes
  Real winding_m;      ///< its length on the form
  Real inductance_h;   ///< as the antenna sees it
  Real capacitance_f;  ///< as the antenna sees it
};

/// @name Traps of coaxial cable
/// The inner conductor of the start joined to the shield of the end: both conductors wind around
/// the same flux, in series. Between the shield of the start and the inner conductor of the end
/// they are a coil of 4 L beside C / 4, to the joint one of L beside C. Sources: R. Sommer, QST,
/// December 1984; D. Buxton, QST, August 1994; L by
/// coils/solenoid.h. Within 1 % of a network of rings with all mutual inductances in frequency.
/// @{

/// Where a winding of so many turns resonates, the form from 3 diameters of the cable up.
Real coax_trap_hz(const TrapCable& cable, Real form_mm, Real turns);
/// The winding that resonates at a frequency.
CoaxTrap coax_trap(const TrapCable& cable, Real form_mm, Real frequency_mhz, TrapOutput output);

/// @}

}  // namespace eterlab::antennas
