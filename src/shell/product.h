#pragma once

#include <string_view>

// What the program tells of itself. The build knows it: version, licence and libraries stand in
// the project and its LICENSE.

namespace eterlab::shell {

/// The handbook's name and edition, as windows show them.
inline constexpr std::string_view title = "ETERLAB";
inline constexpr std::string_view edition = " vers. 2.13";

extern const std::string_view program_version;
/// The first line of the licence.
extern const std::string_view licence_name;
/// All of it, a line for each paragraph.
extern const std::string_view licence;
extern const std::string_view qt_version;
extern const std::string_view boost_version;

}  // namespace eterlab::shell
