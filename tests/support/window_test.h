#pragma once

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QObject>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/desktop.h"
#include "ui/window.h"

namespace eterlab::test {

using Texts = std::vector<std::string>;

/// Message boxes as texts: "MESSAGGIO DI ERRORE: MANCANO DATI", critical ones with "! " before.
using Boxes = Texts;

/// Records message boxes and answers them, so that a test can go on.
class BoxWatcher final : public QObject {
 public:
  BoxWatcher();
  bool eventFilter(QObject* watched, QEvent* event) override;
  Boxes boxes;
  std::function<void(QMessageBox&)> answer;
};

[[nodiscard]] std::string name_of(const QWidget& widget);

/// The names of the program's windows, without those that a test makes up.
const Texts& windows();

/// A window as a user has it before him: controls are found by their names, used with key and mouse
/// events, and read. Several names are one text with blanks between them, their contents one with
/// "|" between them.
class Driven {
 public:
  explicit Driven(QWidget& window) : window_{&window} {}

  [[nodiscard]] QWidget& window() const { return *window_; }
  /// Fails the test when there is no control of that name.
  [[nodiscard]] QWidget& control(std::string_view name) const;

  /// Replaces the contents of boxes, one after the other and key by key. Of an array of options it
  /// clicks the one of that index ("2" for "Option1" is "Option1_2"), of a list the entry of that
  /// text. A hidden box has nothing to type.
  void type(std::string_view controls, std::string_view texts) const;
  void press(Qt::Key key) const;
  void click(std::string_view name) const;
  /// Opens a drop-down list and clicks on the entry at that place.
  void pick(std::string_view combo_box, int entry) const;

  /// Contents of labels, boxes, options or buttons; nothing of what is hidden.
  [[nodiscard]] std::string text(std::string_view names) const;
  /// Those that the user sees.
  [[nodiscard]] std::string shown(std::string_view names) const;
  [[nodiscard]] bool shows(std::string_view name) const { return control(name).isVisible(); }
  /// Text colour as "#rrggbb".
  [[nodiscard]] std::string colour(std::string_view name) const;
  [[nodiscard]] std::string focus() const;

 private:
  static void type_into(QWidget& box, const QString& text);

  QWidget* window_;
};

/// Each test starts the program anew, with Italian settings and without a printer.
class WindowTest : public ::testing::Test {
 public:
  ~WindowTest() override;

 protected:
  WindowTest();

  /// Opens a window by its name.
  ui::Window& open(std::string_view window);
  /// Opens every window of the program, each in the program anew.
  void for_each_window(const std::function<void(ui::Window&)>& check);
  /// Chooses an entry of the main window's menu bar and gives the window that it opened.
  Driven choose(std::string_view menu_entry);
  Driven main_window() { return driven("FRMETERLAB"); }
  Driven driven(std::string_view window);
  [[nodiscard]] bool is_open(std::string_view window) const;
  void close(std::string_view window);
  /// Lets the event loop do what it was asked for, and destroy what was closed. A text that grows
  /// inside a frame moves first the frame's layout, then the window's.
  static void settle();

  /// The boxes since the last call.
  Boxes boxes();
  /// Boxes are answered so instead of by a click on OK.
  void answer_boxes(std::function<void(QMessageBox&)> answer) {
    watcher_.answer = std::move(answer);
  }
  [[nodiscard]] bool has_ended() const { return has_ended_; }
  void start_anew();
  ui::Desktop& desktop() { return *desktop_; }

 private:
  BoxWatcher watcher_;
  bool has_ended_ = false;
  std::optional<ui::Desktop> desktop_;
};

}  // namespace eterlab::test
