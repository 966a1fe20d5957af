#include "ui/printing.h"

#include <gtest/gtest-spi.h>

#include <QApplication>
#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include "support/window_test.h"
#include "ui/plot.h"
#include "ui/theme.h"

namespace eterlab::test {
namespace {

class Printing : public WindowTest {
 protected:
  Driven window = choose("mnupassabanda2");
  QTemporaryDir folder;
  QString file = folder.filePath("scheda.pdf");

  /// Printers in this test write to that file.
  static void print_to(const QString& path) {
    ui::set_printer_source([path] {
      auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
      printer->setOutputFormat(QPrinter::PdfFormat);
      printer->setOutputFileName(path);
      return printer;
    });
  }
  [[nodiscard]] QByteArray printed() const {
    QFile pdf{file};
    return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray{};
  }
};

TEST_F(Printing, OnePageWithTheLettersAsLetters) {
  print_to(file);
  window.click("cmdstampa");
  EXPECT_EQ(boxes(), Boxes{});
  const QByteArray pdf = printed();
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_EQ(pdf.count("/Type /Page\n"), 1);
  EXPECT_GT(pdf.count("/Type /Font\n"), 0);
  // The largest picture on the page is that of a button, not of the window.
  const QByteArray width = "/Width ";
  for (qsizetype at = pdf.indexOf(width); at >= 0; at = pdf.indexOf(width, at + 1)) {
    const QByteArray pixels = pdf.mid(at + width.size()).split('\n').first();
    EXPECT_LT(pixels.toInt(), window.window().width() / 2);
  }
}

TEST_F(Printing, APlotIsLinesAndLetters) {
  ui::Window window_of_plot{"banco", "BANCO"};
  ui::Plot plot{&window_of_plot, "plot", {"x"}, {"y"}};
  plot.curve([](Real x) { return x; }, 0, 1, "retta").marker(0.5, "centro");
  print_to(file);
  ui::print_window(window_of_plot);
  EXPECT_EQ(printed().count("/Subtype /Image"), 0);
  EXPECT_GT(printed().count("/Type /Font\n"), 0);
}

TEST_F(Printing, OfADarkDesktopIsInTheColoursOfPaper) {
  const QPalette usual = QApplication::palette();
  print_to(file);
  const auto page_of_desktop_in = [&](const QPalette& colours) {
    ui::theme::set_palette(colours);
    close("frmpassabasso2");
    choose("mnupassabanda2").click("cmdstampa");
    const QByteArray pdf = printed();  // its head tells the time
    return pdf.mid(pdf.indexOf("/Type /Page\n"));
  };
  const QByteArray on_paper = page_of_desktop_in(ui::theme::paper_palette());
  EXPECT_TRUE(page_of_desktop_in(ui::theme::dark_palette()) == on_paper);
  ui::theme::set_palette(usual);
}

TEST_F(Printing, WithoutAPrinterItSaysSoAndGoesOn) {
  window.type("txtf", "7");
  window.click("cmdstampa");
  EXPECT_EQ(boxes(), Boxes{"MESSAGGIO DI ERRORE: NESSUNA STAMPANTE DISPONIBILE"});
  EXPECT_EQ(window.text("txtf"), "7");
}

TEST_F(Printing, APrinterThatDoesNotTakeThePage) {
  print_to(folder.filePath("missing/scheda.pdf"));
  const Driven band_pass = choose("mnupbk");
  EXPECT_NONFATAL_FAILURE(band_pass.click("Command1"), "QPainter::begin");  // the toolkit grumbles
  EXPECT_EQ(boxes(), Boxes{"MESSAGGIO DI ERRORE: STAMPA NON RIUSCITA"});
}

}  // namespace
}  // namespace eterlab::test
