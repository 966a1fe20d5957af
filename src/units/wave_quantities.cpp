#include "units/wave_quantities.h"

#include "common/physics.h"

namespace eterlab::units {

WaveQuantities wave_of_frequency(Real frequency_hz) {
  return {.wavelength_m = speed_of_light_m_per_s / frequency_hz,
          .frequency_hz = frequency_hz,
          .angular_frequency_rad_per_s = 2 * pi * frequency_hz,
          .period_s = 1 / frequency_hz};
}

WaveQuantities wave_of_wavelength(Real wavelength_m) {
  WaveQuantities wave = wave_of_frequency(speed_of_light_m_per_s / wavelength_m);
  wave.wavelength_m = wavelength_m;
  return wave;
}

WaveQuantities wave_of_angular_frequency(Real angular_frequency_rad_per_s) {
  WaveQuantities wave = wave_of_frequency(angular_frequency_rad_per_s / (2 * pi));
  wave.angular_frequency_rad_per_s = angular_frequency_rad_per_s;
  return wave;
}

WaveQuantities wave_of_period(Real period_s) {
  WaveQuantities wave = wave_of_frequency(1 / period_s);
  wave.period_s = period_s;
  return wave;
}

}  // namespace eterlab::units
