#pragma once

#include <QPageLayout>
#include <functional>
#include <memory>

class QPainter;
class QPrinter;
class QString;
class QWidget;

// The image of a window on paper.

namespace eterlab::ui {

/// Prints a window on the system's default printer. Where there is none, or where it does not take
/// the page, says so in a message box.
void print_window(QWidget& window);

/// Lets the user choose the printer, or a file, and the paper; then prints the window under its
/// title and the date. Upright or across, as suits the window's shape.
void print_with_dialog(QWidget& window);

/// Puts something on a printer; false where that does not take it.
using Printing = std::function<bool(QPrinter& printer)>;
/// The same for what is not just the window.
void print_with_dialog(QWidget& window, QPageLayout::Orientation orientation,
                       const Printing& printing);

/// Title and date, over a line across the page; returns the room that they take.
double print_heading(QPainter& painter, double page_width, const QString& title);

/// Gives the printer to print on, null where there is none.
using PrinterSource = std::function<std::unique_ptr<QPrinter>()>;
/// Prints on another printer than the system's default one from now on, and without asking; an
/// empty source goes back to that.
void set_printer_source(PrinterSource source);

}  // namespace eterlab::ui
