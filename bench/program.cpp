#include "program.h"

#include <QLocale>

#include "common/regional_settings.h"
#include "ui/language.h"
#include "ui/system_region.h"
#include "ui/theme.h"

namespace eterlab::bench {

Program::Program(int& argc, char** argv) : application_{argc, argv} {
  QApplication::setQuitOnLastWindowClosed(false);
  ui::theme::apply();
  ui::speak_italian();
  set_regional_settings(ui::regional_settings_of(QLocale{QLocale::Italian, QLocale::Italy}));
}

}  // namespace eterlab::bench
