#include "ui/system_region.h"

#include "ui/text.h"

namespace eterlab::ui {

RegionalSettings regional_settings_of(const QLocale& locale) {
  RegionalSettings settings;
  settings.decimal_separator = from_qt(locale.decimalPoint());
  const QString separator = locale.groupSeparator();
  settings.group_separator = from_qt(separator);
  if (separator.isEmpty()) {
    return settings;
  }
  // The toolkit tells the sizes of the groups only by grouping.
  QLocale grouping{locale};
  grouping.setNumberOptions(QLocale::DefaultNumberOptions);
  constexpr qlonglong three_groups_at_least = 1'234'567'890;
  const QStringList groups = grouping.toString(three_groups_at_least).split(separator);
  if (groups.size() > 2) {
    settings.first_group = static_cast<int>(groups.last().size());
    settings.other_groups = static_cast<int>(groups[groups.size() - 2].size());
  }
  return settings;
}

RegionalSettings system_regional_settings() {
  RegionalSettings settings = regional_settings_of(QLocale::system());
  // The toolkit groups in the way of the language, also where LC_NUMERIC names another country.
  const QString country = qEnvironmentVariable("LC_NUMERIC");
  if (!country.isEmpty() && qEnvironmentVariableIsEmpty("LC_ALL")) {
    const RegionalSettings grouping = regional_settings_of(QLocale{country});
    settings.first_group = grouping.first_group;
    settings.other_groups = grouping.other_groups;
  }
  return settings;
}

}  // namespace eterlab::ui
