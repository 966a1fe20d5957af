#include <gtest/gtest.h>

#include <QApplication>

#include "ui/language.h"
#include "ui/theme.h"

namespace {

// The offscreen platform tells at every turn what it cannot do, the fonts of the system which
// scripts they lack; whatever else the toolkit complains of is a fault of ours.
void report(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
  const bool is_platform_talk = message.startsWith("This plugin does not support") ||
                                message.contains("OpenType support missing") ||
                                message.contains("XDG_RUNTIME_DIR");
  if (!is_platform_talk) {
    ADD_FAILURE() << message.toStdString();
  }
}

}  // namespace

// Asked for by the leak sanitizer: the font database of the system keeps its memory to the end.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }  // NOLINT

int main(int argc, char* argv[]) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  qInstallMessageHandler(report);
  QApplication application{argc, argv};
  QApplication::setQuitOnLastWindowClosed(false);
  // Windows are judged in the same letters on every platform.
  QApplication::setFont({"DejaVu Sans", 10});
  eterlab::ui::theme::apply();
  eterlab::ui::speak_italian();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
