#include "signals/waveform.h"

#include "common/number_text.h"

namespace eterlab::signals {

namespace {

constexpr int decimals = 2;

struct FormFactors {
  double peak_from_rms;
  double rms_from_peak;
  double peak_to_peak_from_rms;
  double average_from_peak;
};

constexpr FormFactors sine{1.414, 0.707, 2.828, 0.637};
constexpr FormFactors triangle{1.732, 0.577, 3.464, 0.5};
constexpr FormFactors square{1, 1, 2, 1};

constexpr const FormFactors& factors_of(Waveform wave) {
  switch (wave) {
    case Waveform::triangle:
      return triangle;
    case Waveform::square:
      return square;
    case Waveform::sine:
      break;
  }
  return sine;
}

}  // namespace

WaveVoltages from_rms(Real rms_v, Waveform wave) {
  const Real peak_v = rounded(rms_v * factors_of(wave).peak_from_rms, decimals);
  return {rms_v, peak_v, rounded(2 * peak_v, decimals)};
}

WaveVoltages from_peak(Real peak_v, Waveform wave) {
  return {rounded(peak_v * factors_of(wave).rms_from_peak, decimals), peak_v,
          rounded(peak_v * 2, decimals)};
}

WaveVoltages from_peak_to_peak(Real peak_to_peak_v, Waveform wave) {
  return {rounded(peak_to_peak_v / factors_of(wave).peak_to_peak_from_rms, decimals),
          rounded(peak_to_peak_v / 2, decimals), peak_to_peak_v};
}

Real average_v(Real peak_v, Waveform wave) {
  return rounded(peak_v * factors_of(wave).average_from_peak, decimals);
}

}  // namespace eterlab::signals
