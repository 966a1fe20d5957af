#include "ui/window_keys.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include "support/window_test.h"
#include "ui/label.h"
#include "ui/printing.h"

namespace eterlab::test {
namespace {

class WindowKeys : public WindowTest {
 protected:
  static std::string copied() { return QApplication::clipboard()->text().toStdString(); }
};

TEST_F(WindowKeys, CopyAllThatAWindowTells) {
  const Driven window = choose("mnuLL");
  window.type("txtl1 txtl2", "10|22");
  window.press(Qt::Key_Return);
  QTest::keyClick(&window.window(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  const std::string text = copied();
  EXPECT_TRUE(text.starts_with("DUE INDUTTANZE IN SERIE E IN PARALLELO\n")) << text;
  const auto has_line = [&](const std::string& line) {
    return text.find('\n' + line + '\n') != std::string::npos;
  };
  for (const QLabel* child : window.window().findChildren<QLabel*>()) {
    const auto* label = dynamic_cast<const ui::Label*>(child);
    const bool is_result = label != nullptr && label->can_be_copied() && label->isVisible();
    EXPECT_TRUE(!is_result || label->text().isEmpty() || has_line(label->content()))
        << name_of(*child) << " in " << text;
  }
  EXPECT_NE(text.find(": 22\n"), std::string::npos) << text;
}

TEST_F(WindowKeys, F6GoesRoundTheResults) {
  const Driven window = choose("mnuohm");
  EXPECT_EQ(window.focus(), "txtinput1");
  QTest::keyClick(&window.window(), Qt::Key_F6);  // no result yet
  EXPECT_EQ(window.focus(), "txtinput1");
  auto& shown = dynamic_cast<ui::Window&>(window.window());
  shown.show_example();
  settle();
  std::vector<std::string> visited;
  do {
    QTest::keyClick(&window.window(), Qt::Key_F6);
    QTest::keyClick(window.window().focusWidget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copied(), window.text(window.focus()));
    visited.push_back(window.focus());
    ASSERT_LE(visited.size(), 20U);
  } while (visited.size() == 1 || visited.front() != visited.back());
  EXPECT_GE(visited.size(), 3U);
}

TEST_F(WindowKeys, PrintUnderTitleAndDate) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("finestra.pdf");
  for (const char* entry : {"mnuLL", "mnuyagi5"}) {
    const Driven window = choose(entry);
    ui::set_printer_source([&] {
      auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
      printer->setOutputFormat(QPrinter::PdfFormat);
      printer->setOutputFileName(file);
      return printer;
    });
    QTest::keyClick(&window.window(), Qt::Key_P, Qt::ControlModifier);
    QFile pdf{file};
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    const QByteArray printed = pdf.readAll();
    EXPECT_EQ(printed.count("/Type /Page\n"), 1);
    const bool is_wide = printed.contains("/MediaBox [0 0 842");
    EXPECT_EQ(is_wide, window.window().width() > window.window().height()) << entry;
  }
  ui::set_printer_source({});
}

}  // namespace
}  // namespace eterlab::test
