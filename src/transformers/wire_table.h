#pragma once

#include "ui/companion_button.h"

namespace eterlab::transformers {

/// The table of winding wires beside the window that is being filled in.
inline constexpr ui::Companion wire_table{
    .window = "frmuniel", .caller_corner = {180, 300}, .corner = {6100, 6000}};

}  // namespace eterlab::transformers
