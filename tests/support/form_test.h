#pragma once

#include <string>

#include "support/window_test.h"

namespace eterlab::test {

/// A window of boxes, options and lists to fill in and of results, which Enter asks for or each key
/// gives. Names and contents of several controls are one text each, as in Driven:
///
///     use("mnuattimpcost", "Option1 txtohm txtdb", "lblr1 lblr2");
///     expect("2|8|3", "R1 (IN SERIE) = 2,336 Ohm|R2 = 19,39 Ohm");
class FormTest : public WindowTest {
 protected:
  /// Opens the window of a menu entry; all that is typed and expected is of these controls.
  void use(std::string_view menu_entry, std::string_view boxes, std::string_view results);

  /// The same of a window that no entry names.
  void use_opened(const Driven& opened, std::string_view boxes, std::string_view results);

  /// Types into the boxes and presses Enter.
  void enter(std::string_view typed) const;
  [[nodiscard]] std::string results() const { return window.text(results_); }

  /// That Enter then shows these results, without a message.
  void expect(std::string_view typed, std::string_view results);
  /// That Enter, or the last key, then brings this message, moves the focus and leaves the results
  /// as they are.
  void expect_refusal(std::string_view typed, std::string_view focus,
                      std::string_view text = "MANCANO DATI",
                      std::string_view title = "MESSAGGIO DI ERRORE");
  /// That this is a fault which ends the program. It is started anew, the window as well.
  void expect_end(std::string_view typed);
  /// That, once something was computed, an edit of any box leaves these results.
  void expect_edits_leave(std::string_view results, std::string_view typed,
                          std::string_view edit = "5");

  Driven window = main_window();

 private:
  std::string menu_entry_;
  std::string boxes_;
  std::string results_;
};

}  // namespace eterlab::test
