#include <gtest/gtest.h>

#include <QApplication>

#include "ui/theme.h"

namespace {

// The offscreen platform tells at every turn what it cannot do; whatever else the toolkit complains
// of is a fault of ours.
void report(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
  const bool is_platform_talk =
      message.startsWith("This plugin does not support") || message.contains("XDG_RUNTIME_DIR");
  if (!is_platform_talk) {
    ADD_FAILURE() << message.toStdString();
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  qInstallMessageHandler(report);
  QApplication application{argc, argv};
  QApplication::setQuitOnLastWindowClosed(false);
  eterlab::ui::theme::apply();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
