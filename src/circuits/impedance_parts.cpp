#include "circuits/impedance_parts.h"

#include <string>

#include "circuits/impedance.h"
#include "common/number_text.h"
#include "common/physics.h"

namespace eterlab::circuits {

std::string kilohertz_text(Real frequency_hz) { return fixed(frequency_hz / 1e3, 2) + " kHz"; }

ImpedanceResult::ImpedanceResult(ui::Parent parent, std::string_view name_end)
    : lblmodulo{parent, "lblmodulo" + std::string{name_end}},
      lblfase{parent, "lblfase" + std::string{name_end}},
      lblcomplessa{parent, "lblcomplessa" + std::string{name_end}} {}

ImpedanceResult& ImpedanceResult::operator=(Complex impedance_ohm) {
  const Complex told = without_negligible_part(impedance_ohm);
  const Real reactance_ohm = told.imaginary();
  lblmodulo = "IMPEDENZA = " + eng(abs(told), "Ohm");
  lblfase = "FASE = " + fixed(arg(told) * 180 / pi, 1) + " GRADI";
  lblcomplessa = "Z = " + sig(told.real(), 4) + (reactance_ohm < 0 ? " - j " : " + j ") +
                 sig(abs(reactance_ohm), 4) + " Ohm";
  return *this;
}

}  // namespace eterlab::circuits
