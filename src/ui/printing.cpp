#include "ui/printing.h"

#include <QPainter>
#include <QPicture>
#include <QPrinter>
#include <QPrinterInfo>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "ui/message_box.h"
#include "ui/theme.h"

namespace eterlab::ui {

namespace {

PrinterSource& other_source() {
  static PrinterSource source;
  return source;
}

std::unique_ptr<QPrinter> default_printer() {
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  return info.isNull() ? nullptr : std::make_unique<QPrinter>(info, QPrinter::HighResolution);
}

/// The window as drawing commands, so that lines and letters are as sharp as the printer can make
/// them; rendered straight onto a printer it would be a picture of the screen's pixels. In the
/// colours of paper: a dark desktop's would be a sheet of ink.
QPicture picture_of(QWidget& window) {
  QPicture picture;
  QPainter painter{&picture};
  window.setPalette(theme::paper_palette());
  window.render(&painter);
  window.setPalette({});
  return picture;
}

/// As large as the page allows in both directions, in the middle of its top.
bool print(QWidget& window, QPrinter& printer) {
  printer.setDocName(window.windowTitle());
  const QPicture picture = picture_of(window);
  QPainter painter;
  if (!painter.begin(&printer)) {
    return false;
  }
  // The painter shows a picture in its size on the screen, whatever the printer's dots are.
  const QSizeF image{1.0 * window.width() * printer.logicalDpiX() / picture.logicalDpiX(),
                     1.0 * window.height() * printer.logicalDpiY() / picture.logicalDpiY()};
  const QSizeF page = printer.pageRect(QPrinter::DevicePixel).size();
  const double scale = std::min(page.width() / image.width(), page.height() / image.height());
  painter.translate((page.width() - image.width() * scale) / 2, 0);
  painter.scale(scale, scale);
  painter.setClipRect(QRectF{{}, image});
  painter.drawPicture(0, 0, picture);
  return painter.end() && printer.printerState() != QPrinter::Error;
}

}  // namespace

void print_window(QWidget& window) {
  const std::unique_ptr<QPrinter> printer = other_source() ? other_source()() : default_printer();
  if (printer == nullptr) {
    message_box(&window, Icon::exclamation, "MESSAGGIO DI ERRORE", "NESSUNA STAMPANTE DISPONIBILE");
  } else if (!print(window, *printer)) {
    message_box(&window, Icon::exclamation, "MESSAGGIO DI ERRORE", "STAMPA NON RIUSCITA");
  }
}

void set_printer_source(PrinterSource source) { other_source() = std::move(source); }

}  // namespace eterlab::ui
