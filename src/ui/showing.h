#pragma once

#include <cstdint>

namespace eterlab::ui {

/// How a window stands towards the others: a modal one blocks them until it is closed.
enum class Showing : std::uint8_t { modal, modeless };

}  // namespace eterlab::ui
