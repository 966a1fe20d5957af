#include "units/temperature.h"

#include "common/number_text.h"

namespace eterlab::units {

Real fahrenheit_from_celsius(Real celsius) { return celsius * 9 / 5 + 32; }

Real reaumur_from_celsius(Real celsius) { return celsius * 0.8; }

Single kelvin_from_celsius(Real celsius) { return Single{rounded(Single{celsius + 273}, 2)}; }

}  // namespace eterlab::units
