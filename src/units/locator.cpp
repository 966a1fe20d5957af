#include "units/locator.h"

#include <cstdint>
#include <vector>

#include "common/windows_1252.h"

namespace eterlab::units {

namespace {

/// The character that stands so many codes after another one.
std::string character_after(char first, Real steps) {
  const Real code = steps + first;
  return code < 0 || code > UINT8_MAX
             ? "?"
             : windows_1252_character(static_cast<std::uint8_t>(code.value()));
}

}  // namespace

std::optional<Position> position_of(std::string_view locator) {
  std::vector<std::uint8_t> codes = windows_1252_codes(locator);
  if (codes.size() != 6) {
    return std::nullopt;
  }
  for (std::uint8_t& code : codes) {
    code = windows_1252_upper_case(code);
  }
  // The middle of a subsquare is half a step after its border.
  const int west_deg = (codes[0] - 'A') * 20 - 180 + (codes[2] - '0') * 2;
  const int south_deg = (codes[1] - 'A') * 10 - 90 + (codes[3] - '0');
  return Position{west_deg + (codes[4] - 64.5) / 12, Single{south_deg + (codes[5] - 64.5) / 24}};
}

std::string locator_of(const Position& position) {
  const Real x = (position.longitude_deg + 180) / 20;
  const Single y{(position.latitude_deg + 90) / 10};
  const Real field_x = floor(x);
  const Real field_y = floor(y);
  const Real x_in_field = (x - field_x) * 10;
  const Single y_in_field{(y - field_y) * 10};
  const Real square_x = floor(x_in_field);
  const Real square_y = floor(y_in_field);
  const Real subsquare_x = floor((x_in_field - square_x) * 24);
  const Real subsquare_y = floor((y_in_field - square_y) * 24);
  return character_after('A', field_x) + character_after('A', field_y) +
         character_after('0', square_x) + character_after('0', square_y) +
         character_after('A', subsquare_x) + character_after('A', subsquare_y);
}

Real degrees_of(Real degrees, Real minutes, Real seconds) {
  return degrees + (minutes * 60 + seconds) / 3600;
}

DegreesAndMinutes degrees_and_minutes(Real angle_deg) {
  const Real degrees = floor(angle_deg);
  const Real minutes = (angle_deg - degrees) * 60;
  const Real whole_minutes = floor(minutes);
  return {degrees, whole_minutes, floor((minutes - whole_minutes) * 100)};
}

}  // namespace eterlab::units
