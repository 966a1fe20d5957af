#include "common/regional_settings.h"

namespace eterlab {

namespace {

RegionalSettings& current() {
  static RegionalSettings settings;
  return settings;
}

}  // namespace

const RegionalSettings& regional_settings() { return current(); }

void set_regional_settings(const RegionalSettings& settings) { current() = settings; }

}  // namespace eterlab
