#include "ui/printing.h"

#include <gtest/gtest-spi.h>

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include "support/window_test.h"

namespace eterlab::test {
namespace {

class Printing : public WindowTest {
 protected:
  Driven window = choose("mnupassabanda2");
  QTemporaryDir folder;

  /// Printers in this test write to that file.
  static void print_to(const QString& path) {
    ui::set_printer_source([path] {
      auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
      printer->setOutputFormat(QPrinter::PdfFormat);
      printer->setOutputFileName(path);
      return printer;
    });
  }
};

TEST_F(Printing, OnePageWithTheLettersAsLetters) {
  QFile file{folder.filePath("scheda.pdf")};
  print_to(file.fileName());
  window.click("cmdstampa");
  EXPECT_EQ(boxes(), Boxes{});
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray pdf = file.readAll();
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
