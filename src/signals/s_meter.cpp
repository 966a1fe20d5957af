#include "signals/s_meter.h"

#include <algorithm>

namespace eterlab::signals {

namespace {

constexpr double db_in_s_unit = 6;
constexpr int highest_s_unit = 9;
/// Levels computed from voltages miss whole decibels by their last digit.
constexpr double same_level_db = 1e-9;

}  // namespace

std::optional<SMeterReading> s_meter_reading(const SMeter& meter, Real level_dbm) {
  const Real over_s9 = level_dbm - meter.s9_dbm;
  if (over_s9 > same_level_db) {
    return SMeterReading{highest_s_unit, over_s9};
  }
  const Real s_units = highest_s_unit + over_s9 / db_in_s_unit;
  if (s_units < -same_level_db / db_in_s_unit) {
    return std::nullopt;
  }
  return SMeterReading{std::max(s_units, Real{0}), 0};
}

std::vector<SMeterMark> s_meter_marks(const SMeter& meter) {
  std::vector<SMeterMark> marks;
  for (int s_units = 1; s_units <= highest_s_unit; ++s_units) {
    marks.push_back({s_units, 0, meter.s9_dbm - db_in_s_unit * (highest_s_unit - s_units)});
  }
  for (int over_s9 = 10; over_s9 <= 60; over_s9 += 10) {
    marks.push_back({highest_s_unit, over_s9, meter.s9_dbm + over_s9});
  }
  return marks;
}

std::optional<int> highest_mark_reached(const std::vector<SMeterMark>& marks, Real level_dbm) {
  const auto above =
      std::ranges::upper_bound(marks, level_dbm + same_level_db, {}, &SMeterMark::level_dbm);
  if (above == marks.begin()) {
    return std::nullopt;
  }
  return static_cast<int>(above - marks.begin()) - 1;
}

}  // namespace eterlab::signals
