#include "lines/matching/tube_transformer.h"

#include "lines/geometry/coaxial_line.h"
#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/uniform_line.h"

namespace eterlab::lines {

TubeSection tube_section(TubeForm form, Real given_mm, Real impedance_ohm) {
  constexpr double in_air = 1;
  if (form == TubeForm::side_by_side) {
    return {given_mm,
            wire_pair_spacing(given_mm, push_pull_geometry_factor(impedance_ohm, in_air))};
  }
  constexpr double square = 1.0787;
  const Real round_mm = form == TubeForm::round_in_square ? square * given_mm : given_mm;
  const Real factor = single_ended_geometry_factor(impedance_ohm, in_air);
  return {coaxial_inner_diameter(round_mm, factor), given_mm};
}

}  // namespace eterlab::lines
