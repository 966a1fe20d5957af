#include "signals/radio_horizon.h"

namespace eterlab::signals {

std::int16_t radio_horizon_km(Real antenna_height_m) {
  return round_to_int16(4.124 * sqrt(antenna_height_m));
}

}  // namespace eterlab::signals
