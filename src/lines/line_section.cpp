#include "lines/line_section.h"

namespace eterlab::lines {

Real wavelength_in_line_m(Real frequency_mhz, Real velocity_factor) {
  return velocity_factor * (speed_of_light_m_per_s / 1e6) / frequency_mhz;
}

Complex LineSection::input_impedance_ohm(Complex load_ohm, Real frequency_ratio) const {
  const Real along = cos(angle * frequency_ratio);
  const Complex across = imaginary_unit * sin(angle * frequency_ratio);
  return impedance_ohm * ((load_ohm * along + impedance_ohm * across) /
                          (impedance_ohm * along + load_ohm * across));
}

Real quarter_wave_input_ohm(Real impedance_ohm, Real load_ohm) {
  return impedance_ohm * impedance_ohm / load_ohm;
}

Real quarter_wave_impedance_ohm(Real load_ohm, Real input_ohm) {
  return sqrt(load_ohm * input_ohm);
}

Complex Stub::admittance(Real frequency_ratio) const {
  const Real tangent = tan(line.angle * frequency_ratio);
  const Real susceptance =
      end == StubEnd::open ? tangent / line.impedance_ohm : -1 / (line.impedance_ohm * tangent);
  return imaginary_unit * susceptance;
}

}  // namespace eterlab::lines
