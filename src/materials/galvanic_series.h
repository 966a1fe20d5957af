#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::materials {

/// A metal, alloy or plating in contact with another one.
struct GalvanicMetal {
  std::string_view name;  ///< as lists show it, in Italian
  double anodic_index_v;  ///< below gold: the larger one corrodes
};

/// The galvanic compatibility table of MIL-F-14072, from the least noble one.
std::span<const GalvanicMetal> galvanic_series();

/// Where two metals may touch.
enum class Contact : std::uint8_t {
  outdoors,  ///< also in the weather and by the sea: up to 0.15 V
  indoors,   ///< outdoors only protected: up to 0.25 V
  dry,       ///< where it is always dry: up to 0.5 V
  nowhere,   ///< any moisture makes one of them corrode
};

/// Voltage between two metals of the series.
Real contact_voltage_v(const GalvanicMetal& a, const GalvanicMetal& b);

/// What a voltage between metals allows; limits with a margin of 1E-9 V.
Contact contact_at(Real voltage_v);

}  // namespace eterlab::materials
