#include "lines/geometry/uniform_line.h"

#include "common/physics.h"

namespace eterlab::lines {

Real velocity_factor(Real relative_permittivity) { return 1 / sqrt(relative_permittivity); }

Real single_ended_impedance_ohm(Real geometry_factor, Real velocity_factor) {
  return push_pull_impedance_ohm(geometry_factor, velocity_factor) / 2;
}

Real push_pull_impedance_ohm(Real geometry_factor, Real velocity_factor) {
  return free_space_impedance_ohm / pi * velocity_factor * geometry_factor;
}

Real single_ended_geometry_factor(Real impedance_ohm, Real velocity_factor) {
  return 2 * push_pull_geometry_factor(impedance_ohm, velocity_factor);
}

Real push_pull_geometry_factor(Real impedance_ohm, Real velocity_factor) {
  return pi * impedance_ohm / (free_space_impedance_ohm * velocity_factor);
}

LineConstants line_constants(Real impedance_ohm, Real velocity_factor) {
  const Real speed_m_per_s = speed_of_light_m_per_s * velocity_factor;
  return {1 / (impedance_ohm * speed_m_per_s), impedance_ohm / speed_m_per_s};
}

Real LinePiece::angle_degrees(Real frequency_hz) const {
  return 360 * frequency_hz * length_m / (speed_of_light_m_per_s * velocity_factor);
}

LineStub LinePiece::stub(Real frequency_hz) const {
  const Real tangent = tan(angle_degrees(frequency_hz) / 180 * pi);
  const Real angular_frequency = 2 * pi * frequency_hz;
  const Real shorted_ohm = impedance_ohm * tangent;
  const Real open_ohm = impedance_ohm / tangent;
  return {shorted_ohm, shorted_ohm / angular_frequency, open_ohm,
          1 / (angular_frequency * open_ohm)};
}

}  // namespace eterlab::lines
