#include "resistors/power_rating.h"

namespace eterlab::resistors {

PowerRating power_rating(Real resistance_ohm, Real rated_power_w) {
  return {sqrt(rated_power_w / resistance_ohm), sqrt(rated_power_w * resistance_ohm),
          sqrt(rated_power_w / (2 * resistance_ohm))};
}

}  // namespace eterlab::resistors
