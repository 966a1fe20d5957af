#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::circuits {

enum class Waveform : std::uint8_t { sine, triangle, square };

/// The measures of an alternating voltage, in volt. The average is that of a half wave.
struct WaveVoltages {
  Real rms_v;
  Real peak_v;
  Real peak_to_peak_v;
};

// One measure turned into the others, with the form factors of the waves to three decimals (sine:
// peak = 1.414 rms, rms = 0.707 peak, peak to peak = 2.828 rms). Every derived voltage is rounded
// to two decimals; any input is valid.

/// The peak-to-peak voltage is twice the rounded peak.
WaveVoltages from_rms(Real rms_v, Waveform wave);
/// The peak is the given one, not rounded.
WaveVoltages from_peak(Real peak_v, Waveform wave);
WaveVoltages from_peak_to_peak(Real peak_to_peak_v, Waveform wave);

/// Average of a half wave of this peak; 0.637 of it for a sine.
Real average_v(Real peak_v, Waveform wave);

}  // namespace eterlab::circuits
