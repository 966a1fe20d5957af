#include "antennas/verticals/vertical_texts.h"

#include "common/number_text.h"

namespace eterlab::antennas {

std::string metres(Real length_m) { return plain(length_m) + " mt."; }

std::string microhenries(Real inductance_uh) { return fixed(inductance_uh, 2) + " uH"; }

std::string turns_text(const coils::SpacedCoil& coil) {
  return "BOBINA : " + fixed(Real(coil.turns), 0) + " SPIRE SU " + fixed(coil.length_mm(), 1) +
         " mm";
}

std::string wire_text(const coils::SpacedCoil& coil) {
  return "FILO DA " + fixed(coil.wire_diameter_mm(), 2) + " mm, PASSO " + fixed(coil.pitch_mm, 2) +
         " mm";
}

}  // namespace eterlab::antennas
