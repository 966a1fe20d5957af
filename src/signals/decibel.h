#pragma once

#include "common/arithmetic.h"

namespace eterlab::signals {

/// @name Decibels
/// A gain or an attenuation: 20 lg of a ratio of voltages across equal impedances, 10 lg of a ratio
/// of powers.
/// @{

/// What a device does to a signal. Equal input and output are a gain of 0 dB.
struct SignalChange {
  Real decibels;  ///< never negative
  bool is_gain;   ///< else an attenuation
};

/// From what is measured before and after the device, in the same unit; both must be positive.
SignalChange from_voltages(Real input, Real output);
/// @copydoc from_voltages
SignalChange from_powers(Real input, Real output);

/// Larger value over smaller one.
struct SignalRatios {
  Real voltage;  ///< rounded to three decimals
  Real power;    ///< square of the voltage ratio before its rounding
};

/// The ratios of a gain or an attenuation of so many decibels.
SignalRatios ratios_from_decibels(Real decibels);

/// @}

}  // namespace eterlab::signals
