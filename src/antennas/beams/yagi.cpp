#include "antennas/beams/yagi.h"

#include "common/number_text.h"

namespace eterlab::antennas {

namespace {

YagiElement element(double length_cm_mhz, double spacing_wavelengths, Real frequency_mhz) {
  return {rounded(length_cm_mhz / frequency_mhz, 0),
          rounded(spacing_wavelengths * 30000 / frequency_mhz, 0)};
}

}  // namespace

std::array<YagiElement, 3> three_element_yagi(Real frequency_mhz) {
  return {
      element(14850, 0, frequency_mhz),
      element(14100, 0.2, frequency_mhz),
      element(13400, 0.1, frequency_mhz),
  };
}

std::array<YagiElement, 5> five_element_yagi(Real frequency_mhz) {
  return {
      element(15000, 0, frequency_mhz),   element(14200, 0.2, frequency_mhz),
      element(13300, 0.1, frequency_mhz), element(13100, 0.15, frequency_mhz),
      element(12900, 0.2, frequency_mhz),
  };
}

}  // namespace eterlab::antennas
