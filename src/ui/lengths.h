#pragma once

#include <string>

#include "common/arithmetic.h"

namespace eterlab::ui {

/// A length as a tape measures it: "147,6 cm."
std::string centimetres(Real length_m);

}  // namespace eterlab::ui
