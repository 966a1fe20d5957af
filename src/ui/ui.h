#pragma once

// What every window file needs of the layer over the toolkit. Those with drawings and plots also
// include ui/schematic.h and ui/plot.h.

#include "ui/button.h"         // IWYU pragma: export
#include "ui/combo_box.h"      // IWYU pragma: export
#include "ui/control_array.h"  // IWYU pragma: export
#include "ui/frame.h"          // IWYU pragma: export
#include "ui/label.h"          // IWYU pragma: export
#include "ui/layout.h"         // IWYU pragma: export
#include "ui/option_array.h"   // IWYU pragma: export
#include "ui/registry.h"       // IWYU pragma: export
#include "ui/text_box.h"       // IWYU pragma: export
#include "ui/window.h"         // IWYU pragma: export
