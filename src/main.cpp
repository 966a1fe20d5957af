#include <QApplication>
#include <QStringList>
#include <cstdlib>
#include <iostream>

#include "common/regional_settings.h"
#include "ui/desktop.h"
#include "ui/language.h"
#include "ui/system_region.h"
#include "ui/theme.h"

namespace {

QStringList& messages_held_back() {
  static QStringList messages;
  return messages;
}

// The toolkit aborts where it finds no screen. That is no crash: one line says why it cannot be.
void hold_back(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type == QtFatalMsg) {
    const QString reasons = messages_held_back().join("; ");
    std::cerr << "eterlab: nessuno schermo disponibile: " << reasons.toStdString() << std::endl;
    std::_Exit(EXIT_FAILURE);
  }
  messages_held_back() += qFormatLogMessage(type, context, message).simplified();
}

}  // namespace

int main(int argc, char* argv[]) {
  using namespace eterlab;

  qInstallMessageHandler(hold_back);
  QApplication application{argc, argv};
  qInstallMessageHandler(nullptr);
  for (const QString& message : messages_held_back()) {
    std::cerr << message.toStdString() << '\n';
  }
  QApplication::setDesktopFileName("eterlab");
  ui::theme::apply();
  ui::speak_italian();
  set_regional_settings(ui::system_regional_settings());

  ui::Desktop desktop;
  desktop.show("FRMETERLAB");
  return QApplication::exec();
}
