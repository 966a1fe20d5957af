#pragma once

#include <span>

#include "common/arithmetic.h"

namespace eterlab::materials {

/// @name Cables that feed a load
/// Flexible copper cables of two conductors.
/// @{

/// A cable as it is sold.
struct CableSection {
  double section_mm2;  ///< of a conductor, after IEC 60228
  double ampacity_a;   ///< what it carries
};

/// The sections by size. What they carry: from 1.5 mm2 as PVC cables of a single circuit, clipped
/// to a wall at 30 degrees Celsius (IEC 60364-5-52, table B.52.2, method C), below as flexible
/// cords.
std::span<const CableSection> cable_sections();

/// Section of the conductors across which a voltage drops on the way to a load and back. The drop
/// must be above zero.
Real section_for_drop_mm2(Real current_a, Real one_way_m, Real drop_v);

/// Drop on the way to a load and back along conductors of a section, which must not be zero. The
/// resistivity, 0.0195 ohm mm2/m, is that of flexible conductors, within 3 % of the greatest
/// resistances of IEC 60228, class 5.
Real cable_drop_v(Real current_a, Real one_way_m, Real section_mm2);

/// The smallest cable that carries a current and is not below a section, but for 1E-9 of it; null
/// where none is.
const CableSection* smallest_cable(Real section_mm2, Real current_a);

/// @}

}  // namespace eterlab::materials
