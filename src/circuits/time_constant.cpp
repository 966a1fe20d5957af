#include "circuits/time_constant.h"

namespace eterlab::circuits {

Real rc_time_constant_s(Real resistance_ohm, Real capacitance_f) {
  return resistance_ohm * capacitance_f;
}

Real rl_time_constant_s(Real inductance_h, Real resistance_ohm) {
  return inductance_h / resistance_ohm;
}

Real risen_to(Real final_value, Real time_s, Real time_constant_s) {
  return final_value * -expm1(-time_s / time_constant_s);
}

Real fallen_to(Real first_value, Real time_s, Real time_constant_s) {
  return first_value * exp(-time_s / time_constant_s);
}

Real time_constants_until(Real level, Real final_value) {
  return log1p(level / (final_value - level));
}

}  // namespace eterlab::circuits
