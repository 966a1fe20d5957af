#include "ui/printing.h"

#include <QApplication>
#include <QDate>
#include <QLocale>
#include <QPainter>
#include <QPicture>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QWidget>
#include <algorithm>
#include <cstdint>
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

enum class Above : std::uint8_t { none, title_and_date };

/// As large as the page allows in both directions, in the middle of its top.
bool print(QWidget& window, QPrinter& printer, Above above = Above::none) {
  printer.setDocName(window.windowTitle());
  const QPicture picture = picture_of(window);
  QPainter painter;
  if (!painter.begin(&printer)) {
    return false;
  }
  // The painter shows a picture in its size on the screen, whatever the printer's dots are.
  const QSizeF image{1.0 * window.width() * printer.logicalDpiX() / picture.logicalDpiX(),
                     1.0 * window.height() * printer.logicalDpiY() / picture.logicalDpiY()};
  QSizeF page = printer.pageRect(QPrinter::DevicePixel).size();
  if (above == Above::title_and_date) {
    const double taken = print_heading(painter, page.width(), window.windowTitle());
    painter.translate(0, taken);
    page.rheight() -= taken;
  }
  const double scale = std::min(page.width() / image.width(), page.height() / image.height());
  painter.translate((page.width() - image.width() * scale) / 2, 0);
  painter.scale(scale, scale);
  painter.setClipRect(QRectF{{}, image});
  painter.drawPicture(0, 0, picture);
  return painter.end() && printer.printerState() != QPrinter::Error;
}

void print_or_say_so(QWidget& window, QPrinter* printer, const Printing& printing) {
  if (printer == nullptr) {
    message_box(&window, Icon::exclamation, "MESSAGGIO DI ERRORE", "NESSUNA STAMPANTE DISPONIBILE");
  } else if (!printing(*printer)) {
    message_box(&window, Icon::exclamation, "MESSAGGIO DI ERRORE", "STAMPA NON RIUSCITA");
  }
}

}  // namespace

double print_heading(QPainter& painter, double page_width, const QString& title) {
  painter.setFont(QFont{QApplication::font().family(), QApplication::font().pointSize()});
  const double line = painter.fontMetrics().height();
  const QString date = QLocale{QLocale::Italian}.toString(QDate::currentDate(), "d MMMM yyyy");
  const QRectF room{0, 0, page_width, line};
  const double title_width = page_width - painter.fontMetrics().horizontalAdvance(date) - line;
  painter.drawText(room, Qt::AlignRight, date);
  painter.drawText(room, Qt::AlignLeft,
                   painter.fontMetrics().elidedText(title.simplified(), Qt::ElideRight,
                                                    static_cast<int>(title_width)));
  painter.drawLine(QPointF{0, 1.3 * line}, QPointF{page_width, 1.3 * line});
  return 2 * line;
}

void print_window(QWidget& window) {
  const std::unique_ptr<QPrinter> printer = other_source() ? other_source()() : default_printer();
  print_or_say_so(window, printer.get(), [&window](QPrinter& onto) { return print(window, onto); });
}

void print_with_dialog(QWidget& window) {
  print_with_dialog(
      window, window.width() > window.height() ? QPageLayout::Landscape : QPageLayout::Portrait,
      [&window](QPrinter& onto) { return print(window, onto, Above::title_and_date); });
}

void print_with_dialog(QWidget& window, QPageLayout::Orientation orientation,
                       const Printing& printing) {
  if (other_source()) {
    const std::unique_ptr<QPrinter> printer = other_source()();
    if (printer != nullptr) {
      printer->setPageOrientation(orientation);
    }
    print_or_say_so(window, printer.get(), printing);
    return;
  }
  QPrinter printer{QPrinter::HighResolution};
  printer.setPageOrientation(orientation);
  QPrintDialog dialog{&printer, &window};
  dialog.setWindowTitle("STAMPA");
  if (dialog.exec() == QDialog::Accepted) {
    print_or_say_so(window, &printer, printing);
  }
}

void set_printer_source(PrinterSource source) { other_source() = std::move(source); }

}  // namespace eterlab::ui
