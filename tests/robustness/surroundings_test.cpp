#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <ctime>
#include <map>
#include <tuple>

#include "support/layout_faults.h"
#include "support/window_test.h"
#include "ui/system_region.h"
#include "ui/text.h"

// What the program meets with other users and on other machines: huge texts, numbers of other
// countries, missing fonts, no screen, no home. (No printer: ui/printing_test.cpp.)

namespace eterlab::test {
namespace {

using ui::from_qt;

Texts texts_on(const QWidget& window) {
  Texts texts;
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    texts.push_back(from_qt(label->text()));
  }
  return texts;
}

constexpr int megabyte = 1 << 20;

/// Processor time, which a busy machine does not stretch.
std::clock_t time_for(QWidget* to, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  const std::clock_t start = std::clock();
  QTest::keyClick(to, key, modifiers);
  QApplication::processEvents();
  return std::clock() - start;
}

/// What pasting a megabyte takes by itself.
std::clock_t time_of_the_toolkit() {
  QLineEdit box;
  box.show();
  QApplication::clipboard()->setText(QString{megabyte, 'x'});
  return time_for(&box, Qt::Key_V, Qt::ControlModifier);
}

class Surroundings : public WindowTest {
 protected:
  /// That a long text in a window's first box is taken at once, and like a short one of that
  /// meaning.
  void expect_alike(const std::string& window, const QString& pasted, const QString& typed) {
    SCOPED_TRACE(window + ": " + from_qt(pasted.left(4)) + "...");
    EXPECT_EQ(outcome(window, pasted, typed), outcome(window, typed, typed));
  }

 private:
  /// Of pasting into the first box and the others, and of Enter: texts, message boxes, whether the
  /// program has ended.
  std::tuple<Texts, Boxes, bool> outcome(const std::string& name, const QString& text,
                                         const QString& text_of_others) {
    start_anew();
    ui::Window& opened = open(name);
    opened.show_example();
    const QPointer<QWidget> window = &opened;
    QApplication::clipboard()->setText(text);
    for (QLineEdit* box : visible<QLineEdit>(opened)) {
      if (!has_ended()) {
        box->selectAll();
        press(box, Qt::Key_V, Qt::ControlModifier);
        QApplication::clipboard()->setText(text_of_others);
      }
    }
    if (!has_ended()) {
      press(window, Qt::Key_Return);
    }
    return {window == nullptr ? Texts{} : texts_on(*window), boxes(), has_ended()};
  }

  void press(QWidget* to, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    EXPECT_LT(time_for(to, key, modifiers), patience_);
  }

  const std::clock_t patience_ = 20 * time_of_the_toolkit();
};

TEST_F(Surroundings, AMegabyteInABoxOfEveryWindow) {
  // Under the sanitizers the toolkit takes time with the square of the letters.
  constexpr int many = ETERLAB_SANITIZED ? megabyte / 64 : megabyte;
  for (const std::string& window : windows()) {
    expect_alike(window, "7" + QString{many, 'x'}, "7x");
  }
}

TEST_F(Surroundings, AMegabyteOfAnyKind) {
  const std::string window = "frmvoltwatt";
  expect_alike(window, QString{megabyte, 'x'}, "x");
  expect_alike(window, QString{megabyte, '0'}, "0");
  expect_alike(window, "4." + QString{megabyte, '0'}, "4");
  expect_alike(window, "4" + QString{megabyte, ' '}, "4");
  expect_alike(window, "0." + QString{megabyte, '9'}, "1");
  expect_alike(window, QString{megabyte, '9'}, "1e999");
  expect_alike(window, "0." + QString{30'000, '0'} + "1e30001", "1");  // a box holds not much more
}

// How each country separates digits is for ui/system_region_test.cpp.
TEST_F(Surroundings, CountriesChangeNothingButSeparators) {
  std::map<std::string, Texts> digits_of;  // the first country's
  const std::vector<const char*> countries =
      ETERLAB_SANITIZED ? std::vector{"it_IT", "hi_IN"}
                        : std::vector{"it_IT", "en_US", "de_CH", "fr_FR", "hi_IN", "ar_EG"};
  for (const char* country : countries) {
    SCOPED_TRACE(country);
    set_regional_settings(ui::regional_settings_of(QLocale{country}));
    for_each_window([&](ui::Window& window) {
      window.show_example();
      settle();
      EXPECT_EQ(layout_faults(window), Texts{});
      Texts digits = texts_on(window);
      for (std::string& text : digits) {
        text = from_qt(ui::to_qt(text).remove(QRegularExpression{"[.,\u2019\u202f\u066b\u066c]"}));
      }
      EXPECT_EQ(digits_of.emplace(name_of(window), digits).first->second, digits);
    });
  }
}

// Every letter is as wide as the widest.
TEST_F(Surroundings, AnotherFontThanTheUsual) {
  const QFont usual = QApplication::font();
  QFont odd{"DejaVu Sans Mono"};
  odd.setPointSizeF(usual.pointSizeF());
  QApplication::setFont(odd);
  for_each_window([](ui::Window& window) {
    window.show_example();
    settle();
    EXPECT_EQ(layout_faults(window), Texts{});
  });
  QApplication::setFont(usual);
}

#ifdef Q_OS_LINUX

/// To the environment; an empty value takes a variable away.
using Changes = std::vector<std::pair<QString, QString>>;

/// The usual 30 seconds would be a hurry on a busy machine.
constexpr int patience_ms = 600'000;

/// Starts the program itself.
void start(QProcess& program, const Changes& changes) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const auto& [variable, value] : changes) {
    environment.insert(variable, value);
    if (value.isEmpty()) {
      environment.remove(variable);
    }
  }
  program.setProcessEnvironment(environment);
  program.setProcessChannelMode(QProcess::MergedChannels);
  program.start(ETERLAB_PROGRAM, {});
}

TEST(Program, WithoutAScreenSaysSoAndEnds) {
  const Changes screens[] = {
      {{"DISPLAY", {}}},
      {{"DISPLAY", ":4711"}},
      {{"DISPLAY", {}}, {"QT_QPA_PLATFORM", "nessuna"}},
  };
  for (const Changes& screen : screens) {
    Changes changes{{"QT_QPA_PLATFORM", {}}, {"WAYLAND_DISPLAY", {}}, {"XDG_RUNTIME_DIR", {}}};
    changes.insert(changes.end(), screen.begin(), screen.end());
    QProcess program;
    start(program, changes);
    ASSERT_TRUE(program.waitForFinished(patience_ms));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), EXIT_FAILURE);
    const QByteArray output = program.readAll();
    EXPECT_TRUE(output.startsWith("eterlab: nessuno schermo disponibile: "));
    EXPECT_EQ(output.count('\n'), 1) << output.data();
  }
}

TEST(Program, StartsInPoorSurroundings) {
  const QTemporaryDir folder;
  QFile no_fonts{folder.filePath("fonts.conf")};
  ASSERT_TRUE(no_fonts.open(QIODevice::WriteOnly));
  no_fonts.write("<fontconfig/>");
  no_fonts.close();
  const QString no_folder = "/dev/null/nowhere";
  const Changes poor[] = {
      {{"FONTCONFIG_FILE", no_fonts.fileName()}},
      {{"HOME", {}}},
      {{"HOME", no_folder}, {"XDG_CACHE_HOME", no_folder}, {"TMPDIR", no_folder}},
      {{"LC_ALL", "ar_EG.UTF-8"}},
      {{"LC_ALL", "C"}},
      {{"LC_ALL", "nessuna"}},
  };
  for (Changes changes : poor) {
    changes.insert(changes.end(), {{"QT_QPA_PLATFORM", "offscreen"},
                                   {"QT_LOGGING_RULES", "qt.widgets.painting=true"}});
    QProcess program;
    start(program, changes);
    QByteArray output;
    const char* const painted = "qt.widgets.painting: Flushing";
    while (!output.contains(painted) && program.waitForReadyRead(patience_ms)) {
      output += program.readAll();
    }
    EXPECT_TRUE(output.contains(painted)) << output.data();
    program.kill();
    program.waitForFinished(patience_ms);
  }
}

#endif

}  // namespace
}  // namespace eterlab::test
