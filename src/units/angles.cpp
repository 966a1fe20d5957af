#include "units/angles.h"

#include <cmath>

#include "common/number_text.h"
#include "common/physics.h"

namespace eterlab::units {

Real degrees(Real angle, AngleUnit unit) {
  switch (unit) {
    case AngleUnit::radians:
      return angle * 180 / pi;
    case AngleUnit::gons:
      return angle * 9 / 10;
    case AngleUnit::degrees:
      break;
  }
  return angle;
}

Real angle_in(AngleUnit unit, Real degrees) {
  switch (unit) {
    case AngleUnit::radians:
      return degrees / 180 * pi;
    case AngleUnit::gons:
      return degrees * 10 / 9;
    case AngleUnit::degrees:
      break;
  }
  return degrees;
}

SexagesimalAngle sexagesimal(Real degrees) {
  constexpr double tenths_in_minute = 600;
  constexpr double tenths_in_degree = 36000;
  const Real tenths = rounded(abs(degrees) * tenths_in_degree, 0);
  const Real whole_degrees = floor(tenths / tenths_in_degree);
  const Real of_degree = tenths - whole_degrees * tenths_in_degree;
  const Real minutes = floor(of_degree / tenths_in_minute);
  return {.is_negative = degrees < 0 && tenths > 0,
          .degrees = whole_degrees,
          .minutes = static_cast<int>(minutes.value()),
          .seconds = (of_degree - minutes * tenths_in_minute) / 10};
}

Real within_a_turn(Real degrees) { return std::fmod(degrees.value(), 360); }

}  // namespace eterlab::units
