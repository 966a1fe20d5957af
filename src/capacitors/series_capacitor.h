#pragma once

#include "common/arithmetic.h"

namespace eterlab::capacitors {

/// The capacitor that, in series with a given one, leaves the wanted capacitance; all in pF. Equal
/// capacitances divide by zero. Source: 1 / C = 1 / C1 + 1 / Cs.
Real series_capacitor_pf(Real given_pf, Real wanted_pf);

}  // namespace eterlab::capacitors
