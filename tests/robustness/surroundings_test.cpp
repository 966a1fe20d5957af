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
#include <algorithm>
#include <ctime>
#include <tuple>

#include "support/layout_faults.h"
#include "support/window_test.h"
#include "ui/registry.h"
#include "ui/system_region.h"
#include "ui/text.h"

// What the program meets with other users and on other machines: huge texts, numbers of other
// countries, missing fonts, no screen, no home. (No printer: ui/printing_test.cpp.)

namespace eterlab {
namespace {

using ui::from_qt;
using ui::to_qt;
using Texts = std::vector<std::string>;

/// The program anew, with one window and its example.
class Session final : public test::WindowTest {
 public:
  explicit Session(const std::string& name, const char* country = "en_US") {
    set_regional_settings(ui::regional_settings_of(QLocale{country}));
    desktop().show(name);
    window_ = desktop().find(name);
    desktop().find(name)->show_example();
    settle();
  }

  /// Pastes into the first box and the others, then presses Enter; gives the most seconds of
  /// processor time that one of these took.
  double paste(const QString& text, const QString& text_of_others) {
    double most_s = 0;
    const auto send = [&](QWidget* to, Qt::Key key, Qt::KeyboardModifiers modifiers) {
      const std::clock_t start = std::clock();
      QTest::keyClick(to, key, modifiers);
      settle();
      most_s = std::max(most_s, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    };
    QApplication::clipboard()->setText(text);
    for (QLineEdit* box : window_->findChildren<QLineEdit*>()) {
      if (box->isVisible()) {
        box->selectAll();
        send(box, Qt::Key_V, Qt::ControlModifier);
        QApplication::clipboard()->setText(text_of_others);
      }
    }
    if (!has_ended()) {
      send(window_, Qt::Key_Return, Qt::NoModifier);
    }
    QApplication::clipboard()->clear();
    return most_s;
  }

  [[nodiscard]] Texts texts() const {
    Texts texts;
    if (window_ == nullptr) {
      return texts;
    }
    for (const QLabel* label : window_->findChildren<QLabel*>()) {
      texts.push_back(from_qt(label->text()));
    }
    return texts;
  }
  /// What came of it: texts, message boxes, whether the program has ended.
  auto outcome() { return std::tuple{texts(), boxes(), has_ended()}; }
  [[nodiscard]] Texts layout_faults() const { return test::layout_faults(*window_); }

 private:
  void TestBody() override {}

  QPointer<QWidget> window_;
};

constexpr int megabyte = 1 << 20;

/// That a long text in a window's first box is taken at once, and like a short one of that meaning.
void expect_alike(const std::string& window, const QString& pasted, const QString& typed) {
  SCOPED_TRACE(window + ": " + from_qt(pasted.left(4)) + "...");
  const auto outcome = [&](const QString& text) {
    Session session{window};
    constexpr double patience_s = 2;  // under the sanitizers
    EXPECT_LT(session.paste(text, typed), patience_s);
    return session.outcome();
  };
  EXPECT_EQ(outcome(pasted), outcome(typed));
}

TEST(Surroundings, AMegabyteInABoxOfEveryWindow) {
  for (const std::string& window : ui::registry::names()) {
    expect_alike(window, "7" + QString{megabyte, 'x'}, "7x");
  }
}

TEST(Surroundings, AMegabyteOfAnyKind) {
  const std::string window = "frmvoltwatt";
  expect_alike(window, QString{megabyte, 'x'}, "x");
  expect_alike(window, QString{megabyte, '0'}, "0");
  expect_alike(window, "4." + QString{megabyte, '0'}, "4");
  expect_alike(window, "4" + QString{megabyte, ' '}, "4");
  expect_alike(window, "0." + QString{megabyte, '9'}, "1");
  expect_alike(window, QString{megabyte, '9'}, "1e999");
}

/// The results of a window's example without the separators of their numbers.
Texts digits_of(const Session& session) {
  Texts texts = session.texts();
  for (std::string& text : texts) {
    text = from_qt(to_qt(text).remove(QRegularExpression{"[.,\u2019\u202f\u066b\u066c]"}));
  }
  return texts;
}

struct Country {
  const char* locale;
  const char* voltage;
};
constexpr Country countries[] = {
    {"de_CH", "7\u2019071\u2019067.812 VOLT rms"},
    {"fr_FR", "7\u202f071\u202f067,812 VOLT rms"},
    {"hi_IN", "70,71,067.812 VOLT rms"},
    {"ar_EG", "7\u066c071\u066c067\u066b812 VOLT rms"},
};

class SurroundingCountry : public test::WindowTest {};

// 10^12 W across 50 ohm are 7071067.811865 V.
TEST_F(SurroundingCountry, SeparatesDigitsInItsWay) {
  const test::Driven window = choose("mnuvoltwatt");
  for (const Country& country : countries) {
    set_regional_settings(ui::regional_settings_of(QLocale{country.locale}));
    window.click("Option1_1");
    window.type("txtinput txtohm", "1e12|50");
    window.press(Qt::Key_Return);
    EXPECT_EQ(window.text("lbloutput"), country.voltage);
  }
}

TEST(Surroundings, CountriesChangeNothingButSeparators) {
  for (const std::string& window : ui::registry::names()) {
    const Texts expected = digits_of(Session{window});
    for (const Country& country : countries) {
      SCOPED_TRACE(window + " in " + country.locale);
      const Session session{window, country.locale};
      EXPECT_EQ(digits_of(session), expected);
      EXPECT_EQ(session.layout_faults(), Texts{});
    }
  }
}

// Every letter is as wide as the widest.
TEST(Surroundings, AnotherFontThanTheUsual) {
  const QFont usual = QApplication::font();
  QFont odd{"DejaVu Sans Mono"};
  odd.setPointSizeF(usual.pointSizeF());
  QApplication::setFont(odd);
  for (const std::string& window : ui::registry::names()) {
    SCOPED_TRACE(window);
    EXPECT_EQ(Session{window}.layout_faults(), Texts{});
  }
  QApplication::setFont(usual);
}

#ifdef Q_OS_LINUX

/// The program itself, with these changes to the environment; an empty value takes a variable away.
class Program {
 public:
  using Changes = std::vector<std::pair<QString, QString>>;

  explicit Program(const Changes& changes) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [variable, value] : changes) {
      environment.insert(variable, value);
      if (value.isEmpty()) {
        environment.remove(variable);
      }
    }
    process_.setProcessEnvironment(environment);
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start(ETERLAB_PROGRAM, {});
  }
  ~Program() {
    process_.kill();
    process_.waitForFinished();
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  Program(Program&&) = delete;
  Program& operator=(Program&&) = delete;

  /// Waits for this in its output.
  bool says(const QByteArray& text) {
    while (!output_.contains(text) && process_.waitForReadyRead()) {
      output_ += process_.readAll();
    }
    return output_.contains(text);
  }
  /// Waits for its end; -1 for a crash.
  int exit_code() {
    process_.waitForFinished();
    output_ += process_.readAll();
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
  }
  [[nodiscard]] const QByteArray& output() const { return output_; }

 private:
  QProcess process_;
  QByteArray output_;
};

TEST(Surroundings, WithoutAScreenTheProgramSaysSoAndEnds) {
  const Program::Changes screens[] = {
      {{"DISPLAY", {}}},
      {{"DISPLAY", ":4711"}},
      {{"DISPLAY", {}}, {"QT_QPA_PLATFORM", "nessuna"}},
  };
  for (const Program::Changes& screen : screens) {
    Program::Changes changes{
        {"QT_QPA_PLATFORM", {}}, {"WAYLAND_DISPLAY", {}}, {"XDG_RUNTIME_DIR", {}}};
    changes.insert(changes.end(), screen.begin(), screen.end());
    Program program{changes};
    EXPECT_EQ(program.exit_code(), EXIT_FAILURE);
    EXPECT_TRUE(program.output().startsWith("eterlab: nessuno schermo disponibile: "));
    EXPECT_EQ(program.output().count('\n'), 1) << program.output().data();
  }
}

TEST(Surroundings, TheProgramStartsInPoorSurroundings) {
  const QTemporaryDir folder;
  QFile no_fonts{folder.filePath("fonts.conf")};
  ASSERT_TRUE(no_fonts.open(QIODevice::WriteOnly));
  no_fonts.write("<fontconfig/>");
  no_fonts.close();
  const QString no_folder = "/dev/null/nowhere";
  const Program::Changes poor[] = {
      {{"FONTCONFIG_FILE", no_fonts.fileName()}},
      {{"HOME", {}}},
      {{"HOME", no_folder}, {"XDG_CACHE_HOME", no_folder}, {"TMPDIR", no_folder}},
      {{"LC_ALL", "ar_EG.UTF-8"}},
      {{"LC_ALL", "C"}},
      {{"LC_ALL", "nessuna"}},
  };
  for (Program::Changes changes : poor) {
    changes.insert(changes.end(), {{"QT_QPA_PLATFORM", "offscreen"},
                                   {"QT_LOGGING_RULES", "qt.widgets.painting=true"}});
    Program program{changes};
    EXPECT_TRUE(program.says("qt.widgets.painting: Flushing")) << program.output().data();
  }
}

#endif

}  // namespace
}  // namespace eterlab
