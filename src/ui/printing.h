#pragma once

#include <functional>
#include <memory>

class QPrinter;
class QWidget;

// The image of a window on paper.

namespace eterlab::ui {

/// Prints a window on the system's default printer. Where there is none, or where it does not take
/// the page, says so in a message box.
void print_window(QWidget& window);

/// Gives the printer to print on, null where there is none.
using PrinterSource = std::function<std::unique_ptr<QPrinter>()>;
/// Prints on another printer than the system's default one from now on; an empty source goes back
/// to that.
void set_printer_source(PrinterSource source);

}  // namespace eterlab::ui
