#pragma once

#include <gtest/gtest.h>

#include <QObject>
#include <QPoint>
#include <QString>
#include <QWidget>
#include <initializer_list>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "common/regional_settings.h"
#include "ui/desktop.h"
#include "ui/showing.h"
#include "ui/window.h"

namespace eterlab::test {

inline RegionalSettings italian() { return {",", ".", 3, 3, 2}; }
inline RegionalSettings english() { return {".", ",", 3, 3, 2}; }

using Texts = std::vector<std::string>;

/// A message box that came up and was answered with OK.
struct Box {
  std::string title;
  std::string text;
  bool is_critical = false;
  friend bool operator==(const Box&, const Box&) = default;
};
std::ostream& operator<<(std::ostream& out, const Box& box);

Box error(std::string_view text);  ///< the usual title
Box notice(std::string_view text);

/// Records message boxes and answers them, so that a test can go on.
class BoxWatcher final : public QObject {
 public:
  BoxWatcher();
  bool eventFilter(QObject* watched, QEvent* event) override;
  std::vector<Box> boxes;
};

/// A window as a user has it before him: controls are found by their names, used with key and mouse
/// events, and read.
class Driven {
 public:
  explicit Driven(QWidget& window) : window_{&window} {}

  [[nodiscard]] QWidget& window() const { return *window_; }
  /// Fails the test when there is no control of that name.
  [[nodiscard]] QWidget& control(std::string_view name) const;

  /// Replaces the text of a box, key by key.
  void type(std::string_view box, std::string_view text) const;
  struct Input {
    std::string_view box;
    std::string_view text;
  };
  /// Types into box after box, then presses Return.
  void enter(std::initializer_list<Input> inputs) const;
  void clear(std::string_view box) const { type(box, ""); }
  void press(Qt::Key key) const;
  void click(std::string_view name) const;
  /// Opens a drop-down list and clicks on the entry at that place.
  void pick(std::string_view combo_box, int entry) const;

  /// Text of a label, box, option or button; title of a frame.
  [[nodiscard]] std::string text(std::string_view name) const;
  [[nodiscard]] Texts texts(std::initializer_list<std::string_view> names) const;
  [[nodiscard]] std::string tooltip(std::string_view name) const;
  [[nodiscard]] bool shows(std::string_view name) const;
  /// Text colour as "#rrggbb".
  [[nodiscard]] std::string colour(std::string_view name) const;
  [[nodiscard]] std::string focus() const;

 private:
  QWidget* window_;
};

/// Each test starts the program anew, with English settings and without a printer.
class WindowTest : public ::testing::Test {
 public:
  ~WindowTest() override;

 protected:
  WindowTest();

  /// Chooses an entry of the main window's menu bar and gives the window that it opened.
  Driven choose(std::string_view menu_entry);
  Driven main_window() { return driven("FRMETERLAB"); }
  Driven driven(std::string_view window);
  [[nodiscard]] bool is_open(std::string_view window) const;
  void close(std::string_view window);
  /// That a window has been shown beside another, at this place; or the notice that takes its place
  /// as long as there is none of that name.
  void expect_companion(std::string_view window, QPoint corner);
  /// Lets the event loop do what it was asked for. A text that grows inside a frame moves first the
  /// frame's layout, then the window's.
  static void settle();

  /// The boxes since the last call.
  std::vector<Box> boxes();
  /// That this box alone has come up since then, and that the focus is there now.
  void expect_refusal(const Driven& window, const Box& box, std::string_view focus);
  [[nodiscard]] bool has_ended() const { return has_ended_; }
  ui::Desktop& desktop() { return desktop_; }

 private:
  BoxWatcher watcher_;
  bool has_ended_ = false;
  ui::Desktop desktop_;
};

}  // namespace eterlab::test
