#include "lines/electrical_length.h"

#include <algorithm>

#include "common/physics.h"
#include "common/rounding.h"
#include "lines/line_section.h"

namespace eterlab::lines {

Real LineRun::radians() const { return degrees / degrees_in_radian; }

Real LineRun::delay_s() const { return length_in_air_m() / speed_of_light_m_per_s; }

Real LineRun::wavelength_m() const { return wavelength_in_line_m(frequency_mhz, velocity_factor); }

LineRun run_of_length(Real frequency_mhz, Real length_m, Real velocity_factor) {
  const Real degrees = 360 * length_m / wavelength_in_line_m(frequency_mhz, velocity_factor);
  return {frequency_mhz, length_m, degrees, velocity_factor};
}

LineRun run_of_degrees(Real frequency_mhz, Real degrees, Real velocity_factor) {
  const Real length_m = wavelength_in_line_m(frequency_mhz, velocity_factor) * degrees / 360;
  return {frequency_mhz, length_m, degrees, velocity_factor};
}

LineRun run_of_length_and_degrees(Real length_m, Real degrees, Real velocity_factor) {
  const Real frequency_at_one_wave_mhz = wavelength_in_line_m(1, velocity_factor) / length_m;
  return {frequency_at_one_wave_mhz * degrees / 360, length_m, degrees, velocity_factor};
}

CableCut half_wave_cut(const LineRun& run) {
  const Real half_wave_m = run.wavelength_m() / 2;
  const Real halves = std::max<Real>(rounded_up(run.length_m / half_wave_m), 1);
  return {halves, halves * half_wave_m};
}

CableCut odd_quarter_wave_cut(const LineRun& run) {
  const Real quarter_wave_m = run.wavelength_m() / 4;
  const Real enough = std::max<Real>(rounded_up(run.length_m / quarter_wave_m), 1);
  const Real quarters = 2 * floor(enough / 2) + 1;
  return {quarters, quarters * quarter_wave_m};
}

}  // namespace eterlab::lines
