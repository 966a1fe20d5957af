#pragma once

#include <span>
#include <string_view>

#include "valves/output_transformer.h"

namespace eterlab::valves {

/// An output valve, or a pair of them, at a usual working point.
struct OutputValve {
  std::string_view name;    ///< as lists show it
  OutputCircuit circuit;    ///< single or push-pull
  double load_ohm;          ///< from anode to anode of a pair
  double power_w;           ///< of the stage
  double anode_current_ma;  ///< without signal; 0 of a pair, whose currents cancel in the core
};

/// After the data sheets of their makers, in the order of lists.
std::span<const OutputValve> output_valves();

}  // namespace eterlab::valves
