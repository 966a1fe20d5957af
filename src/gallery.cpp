#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTextStream>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <utility>
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

/// In its most frequent colours: an eighth of the bytes, and hardly to be told from the picture.
QImage in_few_colours(const QImage& picture) {
  constexpr std::size_t colours = 64;
  std::map<QRgb, int> count_of;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      ++count_of[picture.pixel(x, y)];
    }
  }
  std::vector<std::pair<int, QRgb>> by_count;
  by_count.reserve(count_of.size());
  for (const auto& [colour, count] : count_of) {
    by_count.emplace_back(-count, colour);
  }
  std::ranges::sort(by_count);
  QList<QRgb> table;
  for (std::size_t i = 0; i < std::min(colours, by_count.size()); ++i) {
    table.push_back(by_count[i].second);
  }
  return picture.convertToFormat(QImage::Format_Indexed8, table);
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

enum class Purpose : std::uint8_t { to_look_at, for_the_handbook };

int render(const QDir& folder, bool with_examples, Purpose purpose, QTextStream& out) {
  folder.mkpath(".");
  ui::Desktop desktop;
  std::vector<Picture> pictures;
  for (const std::string& name : ui::registry::names()) {
    pictures.push_back(picture_of(desktop.load(name), with_examples));
  }
  const auto save = [&](const QString& name, const QPixmap& pixels) {
    const QString file = folder.filePath(name + ".png");
    const QImage picture = pixels.toImage();
    const bool is_saved = purpose == Purpose::for_the_handbook ? in_few_colours(picture).save(file)
                                                               : picture.save(file);
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
  if (purpose == Purpose::to_look_at && !save("contact-sheet", contact_sheet(pictures))) {
    return EXIT_FAILURE;
  }
  out << pictures.size() << " windows rendered to " << folder.absolutePath() << '\n';
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
  const QCommandLineOption handbook{"handbook",
                                    "Render in few colours, for the pages of the guide."};
  parser.addOptions({dark, opening, handbook});
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
  const Purpose purpose = parser.isSet(handbook) ? Purpose::for_the_handbook : Purpose::to_look_at;
  return render(folder, !parser.isSet(opening), purpose, out);
}
