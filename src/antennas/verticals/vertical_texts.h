#pragma once

#include <string>
#include <string_view>

#include "coils/spaced_coil.h"
#include "common/arithmetic.h"
#include "ui/lengths.h"

// What the windows of vertical antennas say alike.

namespace eterlab::antennas {

using ui::centimetres;
/// As typed.
std::string metres(Real length_m);
std::string microhenries(Real inductance_uh);

/// The turns and the length of a coil.
std::string turns_text(const coils::SpacedCoil& coil);
std::string wire_text(const coils::SpacedCoil& coil);

inline constexpr std::string_view too_few_turns =
    "BOBINA DI POCHE SPIRE: RIDURRE IL DIAMETRO DELLA BOBINA";
inline constexpr std::string_view wire_too_thin =
    "FILO TROPPO SOTTILE: AUMENTARE IL DIAMETRO DELLA BOBINA";

}  // namespace eterlab::antennas
