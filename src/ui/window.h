#pragma once

#include <QSize>
#include <QWidget>
#include <initializer_list>
#include <string_view>

#include "ui/layout.h"
#include "ui/showing.h"
#include "ui/twips.h"

class QPushButton;

namespace eterlab::ui {

class FixedArea;
class Label;
class TextBox;

/// A top-level window. Each kind is a class of its own, named as the window, that is created by the
/// Desktop in its design-time state and destroyed when it is closed.
///
/// Enter presses the window's compute button, Esc closes the window; window_keys.h tells the
/// others.
class Window : public QWidget {
 public:
  Window(std::string_view name, std::string_view title);
  ~Window() override;

  /// Runs once, when the window has been created and laid out and is not shown yet.
  virtual void load() {}
  /// Uses the window as a user would for a telling example; for the gallery and for tests.
  virtual void show_example() {}

  /// In front of the other windows, also from a minimized state. A window that stands with another
  /// one extends this.
  virtual void bring_forward();

  /// Ctrl+P: lets the user choose the printer and prints the window, or what it shows.
  virtual void print();
  /// For a window that tells of others: shows what it has about one of them.
  virtual void turn_to(std::string_view window);

  /// The user has changed an input: results that are not computed anew by that are dimmed until
  /// they are.
  virtual void outdate_results();

  /// Moves this window, moves the companion, shows it.
  void open_companion(std::string_view companion, TwipsPoint caller_corner,
                      TwipsPoint companion_corner);

 protected:
  static constexpr int default_width = 64;

  /// What stands on the window. It is wide enough for its contents and for so many average
  /// characters, to which the notes are wrapped, and as high as that asks for.
  void arrange(const Item& contents, int width_in_characters = default_width);
  /// The same for a window that is one fixed area up to its edges.
  void arrange(FixedArea& area);
  /// For a window whose size the design gives: at least so much, more where the user's font asks
  /// for it; called again, it may also shrink. A menu bar does not count.
  void set_client_area(TwipsSize size);

  /// For a window that the user may make larger.
  void allow_resizing();

  /// For a window that Esc does not close.
  void keep_open_on_escape() { escape_closes_ = false; }

  /// A box with an exclamation icon; afterwards the focus goes to `focus`.
  void refuse(QWidget& focus, std::string_view text = "MANCANO DATI",
              std::string_view title = "MESSAGGIO DI ERRORE");

  /// Shows another window beside this one.
  static void open(std::string_view window, Showing showing = Showing::modeless);
  /// Moves another window, loading it if needed.
  static void place(std::string_view window, TwipsPoint corner);
  void move_to(TwipsPoint corner) { move(corner.pixels()); }
  /// In the middle of the screen's width, so far from its top.
  void centre_across_screen(int top_twips);
  void centre_on_screen();

  /// Any change of these boxes empties these labels, so that no result stands beside inputs that
  /// did not produce it.
  static void blank_on_change(std::initializer_list<TextBox*> boxes,
                              std::initializer_list<Label*> results);
  /// Empties every result: labels, values on drawings, cells of tables, plots.
  void blank_results() const;

  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  /// Takes the size that the contents ask for.
  void fit();
  [[nodiscard]] QPushButton* button_for_enter() const;
  void focus_first_input();

  int least_width_ = 0;
  QSize least_;
  bool was_shown_ = false;
  bool can_be_resized_ = false;
  bool escape_closes_ = true;
};

/// The same for the window that a control stands in.
void outdate_results(const QWidget& control);

}  // namespace eterlab::ui
