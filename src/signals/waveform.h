#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::signals {

/// The form of an alternating voltage, with equal half waves.
enum class Waveform : std::uint8_t { sine, triangle, square };

/// The measures of an alternating voltage.
struct WaveVoltages {
  Real rms_v;           ///< root mean square
  Real peak_v;          ///< from zero to the highest point
  Real peak_to_peak_v;  ///< from the lowest point to the highest
};

/// @name One measure turned into the others
/// With the form factors of the waves to three decimals (sine: peak = 1.414 rms, rms = 0.707 peak,
/// peak to peak = 2.828 rms). Every derived voltage is rounded to two decimals; any input is valid.
/// @{

/// The peak-to-peak voltage is twice the rounded peak.
WaveVoltages from_rms(Real rms_v, Waveform wave);
/// The peak is the given one, not rounded.
WaveVoltages from_peak(Real peak_v, Waveform wave);
/// The peak is half of the given one, rounded.
WaveVoltages from_peak_to_peak(Real peak_to_peak_v, Waveform wave);

/// Average of a half wave of this peak; 0.637 of it for a sine.
Real average_v(Real peak_v, Waveform wave);

/// @}

}  // namespace eterlab::signals
