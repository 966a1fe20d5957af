#pragma once

#include "common/arithmetic.h"

namespace eterlab::coils {

/// A round air coil wound in layers, as it follows from its wire and bobbin. Neither turns per
/// layer nor layers are whole numbers.
struct MultilayerCoil {
  Real turns_per_layer;  ///< between the flanges
  Real layers;           ///< that all turns ask for
  Real thickness_cm;     ///< of the winding
  Real outer_radius_cm;  ///< of the winding
  Real wire_length_m;    ///< rounded to the regional default number of decimals
  Real inductance_uh;    ///< rounded to two decimals
  Real resistance_ohm;   ///< of the copper, to direct current
};

/// The inner radius is that of the winding, the width that between the bobbin's flanges. All values
/// should be positive. Source: Wheeler's formula for a multilayer coil, with lengths in centimetre:
/// L = 0.315 a^2 N^2 / (6 a + 9 b + 10 c), where a is the mean radius, b the width, c the
/// thickness. Good to some percent when the three terms of the divisor are about alike.
MultilayerCoil multilayer_coil(Real turns, Real width_cm, Real inner_radius_cm, Real wire_cm);

}  // namespace eterlab::coils
