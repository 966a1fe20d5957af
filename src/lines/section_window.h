#pragma once

#include <string>
#include <string_view>

#include "common/arithmetic.h"
#include "lines/geometry/line_window.h"
#include "ui/lengths.h"
#include "ui/ui.h"

// What the windows of line sections and baluns have in common.

namespace eterlab::lines {

// What their boxes take
inline constexpr ui::Range section_frequency_range_mhz{0.1, 3000};
inline constexpr ui::Range section_impedance_range_ohm{1, 10'000};
inline constexpr ui::Range section_velocity_range{0.3, 1};
inline constexpr ui::Range conductor_range_mm{0.1, 1000};
inline constexpr ui::Range balun_impedance_range_ohm{10, 600};

/// The box for the frequency of a window.
ui::Input section_frequency_input(ui::Parent parent);

// Results and values on drawings
using ui::centimetres;
std::string ohms(Real impedance_ohm);      ///< "74,8 Ohm"
std::string tenths_of_mm(Real length_mm);  ///< "22,7 mm"

/// Where the catalogue of cables opens, beside a window that names it.
inline constexpr ui::Companion cable_catalogue{"frmcaviRG", {180, 180}, {4100, 2800}};

}  // namespace eterlab::lines
