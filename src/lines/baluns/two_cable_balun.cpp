#include "lines/baluns/two_cable_balun.h"

#include "lines/line_section.h"

namespace eterlab::lines {

TwoCableBalun two_cable_balun(Real antenna_ohm, Real line_ohm) {
  const Real impedance_ohm = quarter_wave_impedance_ohm(antenna_ohm, line_ohm);
  const LineOnSale& cable = nearest_line(single_cables(), impedance_ohm);
  return {impedance_ohm, &cable, quarter_wave_input_ohm(cable.impedance_ohm, antenna_ohm)};
}

}  // namespace eterlab::lines
