#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <QTextStream>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "common/regional_settings.h"
#include "ui/desktop.h"
#include "ui/language.h"
#include "ui/registry.h"
#include "ui/system_region.h"
#include "ui/text.h"
#include "ui/theme.h"
#include "ui/window.h"

namespace eterlab {

namespace {

struct Picture {
  QString name;
  QPixmap pixels;
};

Picture picture_of(ui::Window& window, bool with_example) {
  window.show();
  if (with_example) {
    window.show_example();
  }
  // A text that grows inside a frame moves first the frame's layout, then the window's.
  QApplication::processEvents();
  QApplication::processEvents();
  Picture picture{window.objectName(), window.grab()};
  window.close();
  return picture;
}

/// All pictures side by side at half their size, each over its name.
QPixmap contact_sheet(const std::vector<Picture>& pictures) {
  constexpr int sheet_width = 2400;
  constexpr int gap = 16;
  const int name_height = QFontMetrics{QApplication::font()}.height();
  struct Place {
    QRect picture;
    const Picture* of;
  };
  std::vector<Place> places;
  QPoint corner{gap, gap};
  int row_height = 0;
  for (const Picture& picture : pictures) {
    const QSize size = picture.pixels.deviceIndependentSize().toSize() / 2;
    if (corner.x() + size.width() + gap > sheet_width) {
      corner = {gap, corner.y() + row_height + name_height + gap};
      row_height = 0;
    }
    places.push_back({{corner, size}, &picture});
    corner.rx() += size.width() + gap;
    row_height = std::max(row_height, size.height());
  }

  QPixmap sheet{sheet_width, corner.y() + row_height + name_height + gap};
  sheet.fill(QApplication::palette().color(QPalette::Mid));
  QPainter painter{&sheet};
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setPen(QApplication::palette().color(QPalette::WindowText));
  for (const Place& place : places) {
    painter.drawPixmap(place.picture, place.of->pixels);
    painter.drawText(QRect{place.picture.bottomLeft(), QSize{place.picture.width(), name_height}},
                     Qt::AlignHCenter, place.of->name);
  }
  return sheet;
}

int render(const QDir& folder, bool with_examples, QTextStream& out) {
  folder.mkpath(".");
  ui::Desktop desktop;
  std::vector<Picture> pictures;
  for (const std::string& name : ui::registry::names()) {
    pictures.push_back(picture_of(desktop.load(name), with_examples));
  }
  const auto save = [&](const QString& name, const QPixmap& pixels) {
    const QString file = folder.filePath(name + ".png");
    const bool is_saved = pixels.save(file);
    if (!is_saved) {
      out << "cannot write " << file << '\n';
    }
    return is_saved;
  };
  for (const Picture& picture : pictures) {
    if (!save(picture.name, picture.pixels)) {
      return EXIT_FAILURE;
    }
  }
  if (!save("contact-sheet", contact_sheet(pictures))) {
    return EXIT_FAILURE;
  }
  out << pictures.size() << " windows and a contact sheet rendered to " << folder.absolutePath()
      << '\n';
  return EXIT_SUCCESS;
}

}  // namespace

}  // namespace eterlab

// Renders every window, with a worked example typed in or as it opens, to the PNG files of a
// folder.
int main(int argc, char* argv[]) {
  using namespace eterlab;

  QApplication application{argc, argv};
  QCommandLineParser parser;
  parser.addHelpOption();
  const QCommandLineOption dark{"dark", "Render in the colours of a dark desktop."};
  const QCommandLineOption opening{"opening", "Render windows as they open, without an example."};
  parser.addOptions({dark, opening});
  parser.addPositionalArgument("folder", "Where the pictures go.");
  parser.process(application);
  if (parser.positionalArguments().size() != 1) {
    parser.showHelp(EXIT_FAILURE);
  }
  ui::theme::apply();
  ui::speak_italian();
  if (parser.isSet(dark)) {
    ui::theme::set_palette(ui::theme::dark_palette());
  }
  set_regional_settings(ui::regional_settings_of(QLocale{QLocale::Italian, QLocale::Italy}));

  QTextStream out{stdout};
  const QDir folder{parser.positionalArguments().constFirst()};
  return render(folder, !parser.isSet(opening), out);
}
