#include "lines/geometry/section_drawing.h"

namespace eterlab::lines {

void plane(ui::Schematic& drawing, ui::At left, ui::At right) {
  drawing.wire({left, right}).ground(right);
}

}  // namespace eterlab::lines
