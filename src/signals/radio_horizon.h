#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::signals {

/// Distance to the radio horizon in whole kilometres, ties to the even one: 4.124 sqrt(h), the
/// horizon of an earth of 4/3 its radius, as the standard atmosphere bends the waves. The height
/// above sea level is 0 to some 63 000 km, where the distance leaves 16 bits.
std::int16_t radio_horizon_km(Real antenna_height_m);

}  // namespace eterlab::signals
