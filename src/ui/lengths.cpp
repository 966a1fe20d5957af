#include "ui/lengths.h"

#include "common/number_text.h"

namespace eterlab::ui {

std::string centimetres(Real length_m) { return fixed(100 * length_m, 1) + " cm."; }

}  // namespace eterlab::ui
