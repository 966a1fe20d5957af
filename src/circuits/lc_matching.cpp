#include "circuits/lc_matching.h"

#include <algorithm>

#include "common/rounding.h"

namespace eterlab::circuits {

namespace {

/// sqrt(Rh / Rl - 1)
Real q_of_ratio(Real input_ohm, Real output_ohm) {
  const auto [low_ohm, high_ohm] = std::minmax(input_ohm, output_ohm);
  return sqrt((high_ohm - low_ohm) / low_ohm);
}

}  // namespace

LSection l_section(Real input_ohm, Real output_ohm) {
  const Real quality_factor = q_of_ratio(input_ohm, output_ohm);
  return {quality_factor, quality_factor * std::min(input_ohm, output_ohm),
          std::max(input_ohm, output_ohm) / quality_factor};
}

ThreePartSection pi_section(Real input_ohm, Real output_ohm, Real quality_factor) {
  const Real virtual_ohm = std::max(input_ohm, output_ohm) / (quality_factor * quality_factor + 1);
  const Real input_q = q_of_ratio(input_ohm, virtual_ohm);
  const Real output_q = q_of_ratio(output_ohm, virtual_ohm);
  return {input_ohm / input_q, virtual_ohm * (input_q + output_q), output_ohm / output_q};
}

ThreePartSection t_section(Real input_ohm, Real output_ohm, Real quality_factor) {
  const Real virtual_ohm = std::min(input_ohm, output_ohm) * (quality_factor * quality_factor + 1);
  const Real input_q = q_of_ratio(input_ohm, virtual_ohm);
  const Real output_q = q_of_ratio(output_ohm, virtual_ohm);
  return {input_ohm * input_q, virtual_ohm / (input_q + output_q), output_ohm * output_q};
}

Real least_section_q(Real input_ohm, Real output_ohm) {
  return rounded_up(100 * q_of_ratio(input_ohm, output_ohm) + 1) / 100;
}

}  // namespace eterlab::circuits
