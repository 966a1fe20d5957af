#pragma once

#include <span>
#include <string_view>

namespace eterlab::shell {

/// English abbreviations and terms of radio and electronics with their Italian meanings, each one
/// whole line as it is shown: "FM = modulazione di frequenza". In the order of the list.
std::span<const std::string_view> dictionary();

}  // namespace eterlab::shell
