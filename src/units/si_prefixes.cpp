#include "units/si_prefixes.h"

#include <cstdlib>

namespace eterlab::units {

Real with_other_prefix(Real number, int from_exponent, int to_exponent) {
  const int exponent = from_exponent - to_exponent;
  // Small powers of ten are exact, their inverses are not.
  const Real power = pow(10, std::abs(exponent));
  return exponent < 0 ? number / power : number * power;
}

}  // namespace eterlab::units
