#pragma once

#include "ui/schematic.h"

namespace eterlab::coils {

/// Where a bobbin stands on a drawing, cut along its axis, which runs across.
struct BobbinPlace {
  double left;
  double right;
  double axis;
  double inner = 6;   ///< from the axis
  double outer = 11;  ///< of the winding
  double flange = 12.5;
};

/// The bobbin with the section of its winding on both sides of the axis.
void draw_bobbin(ui::Schematic& drawing, const BobbinPlace& place);

}  // namespace eterlab::coils
