#pragma once

#include <optional>
#include <string>

#include "capacitors/working_voltage.h"
#include "common/number_text.h"

namespace eterlab::capacitors {

/// The standard voltage to buy, as the windows write it.
inline std::string working_voltage_text(Real least_v) {
  const std::optional<Real> standard_v = standard_working_voltage_v(least_v);
  return standard_v ? sig(*standard_v, 4) + " Volt"
                    : "OLTRE " + plain(greatest_standard_voltage_v) + " Volt";
}

}  // namespace eterlab::capacitors
