#include "resistors/source_resistance.h"

namespace eterlab::resistors {

SourceResistance source_resistance(Real open_circuit_v, Real loaded_v, Real load_ohm) {
  const Real resistance_ohm = load_ohm * (open_circuit_v - loaded_v) / loaded_v;
  const Real short_circuit_current_a = open_circuit_v / resistance_ohm;
  return {resistance_ohm, short_circuit_current_a, open_circuit_v * short_circuit_current_a / 4};
}

}  // namespace eterlab::resistors
