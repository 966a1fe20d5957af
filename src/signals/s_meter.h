#pragma once

#include <optional>
#include <vector>

#include "common/arithmetic.h"

namespace eterlab::signals {

/// @name Signal strength
/// What the S meter of a receiver of 50 ohm reads: 6 dB to an S unit. Source: IARU Region 1,
/// recommendation R.1 (Brighton 1981).
/// @{

/// A scale, told by the level of its S 9.
struct SMeter {
  double s9_dbm;  ///< level at the antenna input
};

/// The scale of the short waves: S 9 are 50 uV.
inline constexpr SMeter s_meter_below_30_mhz{-73};
/// The scale of the bands from 30 MHz on: S 9 are 5 uV.
inline constexpr SMeter s_meter_above_30_mhz{-93};
/// Of the receivers that the scales are made for.
inline constexpr double s_meter_impedance_ohm = 50;

/// A reading: S units up to S 9, then decibels over S 9.
struct SMeterReading {
  Real s_units;     ///< 0 to 9, with fractions
  Real db_over_s9;  ///< 0 up to S 9
};

/// The reading at a level; none below S 0. Levels are told apart by 1E-9 dB.
std::optional<SMeterReading> s_meter_reading(const SMeter& meter, Real level_dbm);

/// A mark of a scale.
struct SMeterMark {
  int s_units;     ///< 1 to 9
  int db_over_s9;  ///< 0, or from S 9 on in steps of 10 up to 60
  Real level_dbm;  ///< that it stands for
};

/// The marks of a scale, from S 1 to 60 dB over S 9.
std::vector<SMeterMark> s_meter_marks(const SMeter& meter);
/// The place of the highest mark that a level reaches, to 1E-9 dB; none below S 1.
std::optional<int> highest_mark_reached(const std::vector<SMeterMark>& marks, Real level_dbm);

/// @}

}  // namespace eterlab::signals
