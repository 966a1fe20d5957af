#include "capacitors/series_capacitor.h"

namespace eterlab::capacitors {

Real series_capacitor_pf(Real given_pf, Real wanted_pf) {
  return given_pf * wanted_pf / (given_pf - wanted_pf);
}

}  // namespace eterlab::capacitors
