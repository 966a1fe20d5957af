#include "ui/system_region.h"

#include <gtest/gtest.h>

#include "common/number_text.h"

namespace eterlab {
namespace {

TEST(SystemRegion, NumbersAsEachCountryWritesThem) {
  const char* const table[][2] = {{"it_IT", "1.234.567,9"},
                                  {"en_US", "1,234,567.9"},
                                  {"de_CH", "1\u2019234\u2019567.9"},
                                  {"fr_FR", "1\u202f234\u202f567,9"},
                                  {"hi_IN", "12,34,567.9"},
                                  {"ar_EG", "1\u066c234\u066c567\u066b9"},
                                  {"C", "1,234,567.9"}};
  for (const auto& [locale, text] : table) {
    set_regional_settings(ui::regional_settings_of(QLocale{locale}));
    EXPECT_EQ(fixed(1234567.89, 1), text) << locale;
  }
  set_regional_settings({});
}

TEST(SystemRegion, NumbersOfACountryInTheLanguageOfAnother) {
  const QByteArray all = qgetenv("LC_ALL");
  const QByteArray numeric = qgetenv("LC_NUMERIC");
  const auto groups = [] { return ui::system_regional_settings().other_groups; };
  qputenv("LC_ALL", "");
  qputenv("LC_NUMERIC", "hi_IN.UTF-8");
  EXPECT_EQ(groups(), 2);
  qputenv("LC_ALL", "it_IT.UTF-8");
  EXPECT_EQ(groups(), 3);
  qputenv("LC_ALL", all);
  qputenv("LC_NUMERIC", numeric);
}

}  // namespace
}  // namespace eterlab
