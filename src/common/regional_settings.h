#pragma once

#include <string>

namespace eterlab {

/// How the user's country writes numbers. Only results are written so; input always uses ".".
struct RegionalSettings {
  std::string decimal_separator = ".";  ///< UTF-8
  std::string group_separator = ",";    ///< UTF-8; empty: digits are not grouped
  int first_group = 3;                  ///< digits in the group next to the decimal separator
  int other_groups = 3;                 ///< digits in every group before it
  int default_decimals = 2;             ///< decimals of a number shown "with the regional default"
};

/// The settings in force: those of the English language until set_regional_settings.
const RegionalSettings& regional_settings();

/// Called once at start, and by tests.
void set_regional_settings(const RegionalSettings& settings);

}  // namespace eterlab
