#pragma once

#include <QLocale>

#include "common/regional_settings.h"

namespace eterlab::ui {

/// How a locale writes numbers. Digits stay 0 to 9; the default number of decimals, which the
/// toolkit does not tell, stays 2.
RegionalSettings regional_settings_of(const QLocale& locale);

/// How the user's system writes numbers.
RegionalSettings system_regional_settings();

}  // namespace eterlab::ui
