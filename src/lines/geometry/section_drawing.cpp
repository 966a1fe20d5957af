#include "lines/geometry/section_drawing.h"

namespace eterlab::lines {

void plane(ui::Schematic& drawing, At left, At right) { drawing.wire({left, right}).ground(right); }

}  // namespace eterlab::lines
