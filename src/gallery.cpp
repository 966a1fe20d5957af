#include <QApplication>
#include <QDir>
#include <QTextStream>
#include <cstdlib>

#include "common/regional_settings.h"
#include "ui/desktop.h"
#include "ui/registry.h"
#include "ui/system_region.h"
#include "ui/text.h"
#include "ui/theme.h"
#include "ui/window.h"

// Renders every window, with a worked example typed in, to the PNG files of a folder:
//
//     eterlab-gallery FOLDER
int main(int argc, char* argv[]) {
  using namespace eterlab;

  QApplication application{argc, argv};
  QTextStream out{stdout};
  if (QApplication::arguments().size() != 2) {
    out << "usage: eterlab-gallery FOLDER\n";
    return EXIT_FAILURE;
  }
  const QDir folder{QApplication::arguments().at(1)};
  ui::theme::apply(application);
  set_regional_settings(ui::regional_settings_of(QLocale{QLocale::Italian, QLocale::Italy}));

  folder.mkpath(".");
  ui::Desktop desktop;
  int pictures = 0;
  for (const std::string& name : ui::registry::names()) {
    ui::Window& window = *desktop.load(name);
    window.show();
    window.show_example();
    // A text that grows inside a frame moves first the frame's layout, then the window's.
    QApplication::processEvents();
    QApplication::processEvents();
    const QString file = folder.filePath(window.objectName() + ".png");
    if (!window.grab().save(file)) {
      out << "cannot write " << file << '\n';
      return EXIT_FAILURE;
    }
    window.close();
    ++pictures;
  }
  out << pictures << " windows rendered to " << folder.absolutePath() << '\n';
  return EXIT_SUCCESS;
}
