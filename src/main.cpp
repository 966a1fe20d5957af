#include <QApplication>

#include "common/regional_settings.h"
#include "ui/desktop.h"
#include "ui/language.h"
#include "ui/system_region.h"
#include "ui/theme.h"

int main(int argc, char* argv[]) {
  using namespace eterlab;

  QApplication application{argc, argv};
  QApplication::setDesktopFileName("eterlab");
  ui::theme::apply();
  ui::speak_italian();
  set_regional_settings(ui::regional_settings_of(QLocale::system()));

  ui::Desktop desktop;
  desktop.show("FRMETERLAB");
  return QApplication::exec();
}
