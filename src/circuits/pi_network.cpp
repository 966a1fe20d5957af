#include "circuits/pi_network.h"

#include <algorithm>

#include "circuits/lc_matching.h"
#include "common/complex.h"
#include "common/physics.h"

namespace eterlab::circuits {

namespace {

Real angular(Real frequency_hz) { return 2 * pi * frequency_hz; }

/// Output voltage over the current of the source.
Real transfer_ohm(const PiNetwork& network, Real output_ohm, Real omega) {
  const Complex input{0, omega * network.input_f};
  const Complex output{1 / output_ohm, omega * network.output_f};
  const Complex coil{0, omega * network.inductance_h};
  return 1 / abs(input + output + input * output * coil);
}

}  // namespace

Real PiTerminations::higher_ohm() const { return std::max(input_ohm, output_ohm); }
Real PiTerminations::lower_ohm() const { return std::min(input_ohm, output_ohm); }

PiNetwork pi_network(const PiTerminations& ends, Real quality_factor) {
  const Real omega = angular(ends.frequency_hz);
  const ThreePartSection section = pi_section(ends.input_ohm, ends.output_ohm, quality_factor);
  return {.input_f = 1 / (omega * section.first_ohm),
          .inductance_h = section.middle_ohm / omega,
          .output_f = 1 / (omega * section.last_ohm)};
}

Real pi_coil_current_a(const PiTerminations& ends, Real quality_factor, Real power_w) {
  return sqrt(power_w * (1 + quality_factor * quality_factor) / ends.higher_ohm());
}

Real second_harmonic_attenuation_db(const PiTerminations& ends, const PiNetwork& network) {
  const Real omega = angular(ends.frequency_hz);
  return 20 * log10(transfer_ohm(network, ends.output_ohm, omega) /
                    transfer_ohm(network, ends.output_ohm, 2 * omega));
}

}  // namespace eterlab::circuits
