#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/arithmetic.h"
#include "ui/button.h"
#include "ui/input.h"
#include "ui/label.h"
#include "ui/window.h"

namespace eterlab::ui {

/// A window of the regular shape: inputs with their ranges, checked in one order, and results that
/// any change of an input, option or list empties. Nothing typed into it ends the program.
class Calculator : public Window {
 public:
  enum class Computes : std::uint8_t {
    on_request,  ///< by its button CALCOLA, or Enter; what fails a check is told
    as_typed,    ///< with every change; results that cannot be computed are empty
  };

  Calculator(std::string_view name, std::string_view title, Computes when = Computes::on_request);
  ~Calculator() override;

  /// A window that does more than this here does it before.
  void load() override;

  /// There are none: every change empties the results.
  void outdate_results() final {}

 protected:
  /// Computes from inputs that have passed their checks (as the user types: from those that are
  /// usable) and writes the results. A check that fails in here ends it. So does a fault of the
  /// arithmetic: the user is told that the numbers do not go together.
  virtual void compute() = 0;

  /// The checks of the inputs that are shown, both in tab order: what is required must be above
  /// zero, then all must be in their ranges. A window with another order says so.
  virtual void check();
  void check_presence() const;
  void check_ranges() const;
  void check_presence(Input& input) const;
  void check_range(Input& input) const;
  /// Those that the user sees, in tab order.
  [[nodiscard]] std::vector<Input*> shown_inputs() const;

  /// Unless this holds, the computation ends with a message and the focus in the box.
  void require(bool holds, QWidget& focus, std::string_view text) const;
  static void require(bool holds, QWidget& focus, std::string_view text, std::string_view title);

  /// As require(), with a message that does not call it an error.
  static void advise(bool holds, QWidget& focus, std::string_view text);

  /// Lays out the window: what stands above, the hint how decimals are written (where there are
  /// boxes), then the buttons, others between CALCOLA and E S C I.
  void lay_out(const Item& contents, std::initializer_list<Button*> others = {},
               int width_in_characters = default_width);

  /// Types into the inputs that are shown, in tab order, and computes.
  void fill_in(std::initializer_list<std::string_view> texts);
  /// Empties the inputs that are shown.
  void clear_inputs() const;
  /// Where a chapter names the hint otherwise than Labelpunto, or words it otherwise; before the
  /// layout.
  void name_hint(std::string_view name, std::string_view text = {});
  /// Where the button that closes the window is another than cmdesci "E S C I".
  void name_exit(std::string_view name, std::string_view caption);
  /// Of every message that is not given one.
  void set_message_title(std::string_view title) { message_title_ = title; }

 private:
  /// A check that failed.
  struct Refusal {
    QWidget* focus = nullptr;
    std::string text;
    std::string title;
  };

  void change();
  void calculate();

  bool is_live_;
  std::string message_title_ = "MESSAGGIO DI ERRORE";
  std::unique_ptr<Note> hint_;
  std::unique_ptr<ComputeButton> cmdcalcola_;
  ExitButton cmdesci_;
};

}  // namespace eterlab::ui
