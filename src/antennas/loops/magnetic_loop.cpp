#include "antennas/loops/magnetic_loop.h"

#include <numbers>

#include "common/physics.h"
#include "materials/skin_effect.h"

namespace eterlab::antennas {

namespace {

constexpr double sqrt2 = std::numbers::sqrt2;

Real squared(Real x) { return x * x; }

Real area_m2(const MagneticLoop& loop) {
  const Real width_m = loop_width_m(loop);
  switch (loop.shape) {
    case LoopShape::octagon:
      return 2 * (1 + sqrt2) * squared(width_m);
    case LoopShape::square:
      return squared(width_m);
    default:
      return pi / 4 * squared(width_m);
  }
}

Real inductance_h(const MagneticLoop& loop) {
  const Real width_in_radii = loop_width_m(loop) / (loop.tube_mm / 2000);
  const auto per_length = [&] {
    switch (loop.shape) {
      case LoopShape::octagon:
        return ln(width_in_radii) + 0.21198;
      case LoopShape::square:
        return ln(width_in_radii) - 0.77401;
      default:
        return ln(4 * width_in_radii) - 2;
    }
  };
  return vacuum_permeability_h_per_m * loop.conductor_m / (2 * pi) * per_length();
}

}  // namespace

Real loop_width_m(const MagneticLoop& loop) {
  switch (loop.shape) {
    case LoopShape::octagon:
      return loop.conductor_m / 8;
    case LoopShape::square:
      return loop.conductor_m / 4;
    default:
      return loop.conductor_m / pi;
  }
}

Real coupling_loop_m(const MagneticLoop& loop) { return loop.conductor_m / 5; }

TunedLoop tuned_loop(const MagneticLoop& loop, Real frequency_hz) {
  const Real omega = 2 * pi * frequency_hz;
  const Real wavenumber = omega / speed_of_light_m_per_s;
  const Real turns_of_phase = loop.conductor_m * wavenumber / (2 * pi);
  const Real theta = pi * turns_of_phase;  // from opposite the capacitor to it
  const Real sinc = sin(theta) / theta;
  const Real area = area_m2(loop);

  const Real first_harmonic = 2 / pi * turns_of_phase * sin(theta) / (1 - squared(turns_of_phase));
  const Real radiation_ohm = 20 * (squared(squared(wavenumber) * area * sinc) +
                                   squared(pi * wavenumber * sqrt(area / pi) * first_harmonic));
  // The mean of cos^2 along the tube.
  const Real mean_square = (1 + sinc * cos(theta)) / 2;
  const Real loss_ohm = materials::surface_resistance_ohm(loop.resistivity_ohm_m, frequency_hz) *
                        loop.conductor_m / (pi * loop.tube_mm / 1000) * mean_square;

  const Real inductance = inductance_h(loop);
  const Real reactance_ohm = omega * inductance;
  const Real resistance_ohm = radiation_ohm + loss_ohm;
  const Real q = reactance_ohm * mean_square / resistance_ohm;
  return {.inductance_h = inductance,
          .capacitance_f = theta / (omega * reactance_ohm * tan(theta)),
          .radiation_ohm = radiation_ohm,
          .loss_ohm = loss_ohm,
          .efficiency = radiation_ohm / resistance_ohm,
          .q = q,
          .bandwidth_hz = frequency_hz / (sqrt2 * q),
          .capacitor_ohm = reactance_ohm * sinc};
}

LoopLoad loop_load(const TunedLoop& tuned, Real power_w) {
  const Real current_a = sqrt(power_w / (tuned.radiation_ohm + tuned.loss_ohm));
  return {current_a, sqrt2 * current_a * tuned.capacitor_ohm};
}

}  // namespace eterlab::antennas
