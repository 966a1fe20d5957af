#pragma once

// All that a window file needs of the layer over the toolkit, but for drawings and plots.

#include "ui/button.h"            // IWYU pragma: export
#include "ui/calculator.h"        // IWYU pragma: export
#include "ui/combo_box.h"         // IWYU pragma: export
#include "ui/companion_button.h"  // IWYU pragma: export
#include "ui/control_array.h"     // IWYU pragma: export
#include "ui/frame.h"             // IWYU pragma: export
#include "ui/input.h"             // IWYU pragma: export
#include "ui/label.h"             // IWYU pragma: export
#include "ui/layout.h"            // IWYU pragma: export
#include "ui/list.h"              // IWYU pragma: export
#include "ui/option_array.h"      // IWYU pragma: export
#include "ui/registry.h"          // IWYU pragma: export
#include "ui/result_table.h"      // IWYU pragma: export
#include "ui/text_box.h"          // IWYU pragma: export
#include "ui/window.h"            // IWYU pragma: export
