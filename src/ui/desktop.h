#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "common/arithmetic.h"
#include "ui/showing.h"
#include "ui/twips.h"

namespace eterlab::ui {

class Window;

/// The windows that are open, at most one of each name, and the program's end.
///
/// A window is created when it is first asked for and destroyed when it is closed, so that its next
/// opening starts from the design-time contents. The program ends with its last visible window, or
/// at once with a fault that no window guarded against.
class Desktop {
 public:
  /// `end_program` is called after a fault, when all windows are closed; by default it leaves the
  /// event loop with a failure code.
  explicit Desktop(std::function<void()> end_program = {});
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  Desktop(Desktop&&) = delete;
  Desktop& operator=(Desktop&&) = delete;

  /// The one desktop; it must have been made before any window.
  static Desktop& instance();

  /// Shows a window, or brings it forward where it is open already.
  void show(std::string_view name, Showing showing = Showing::modeless);
  /// Shows a window that helps with others, which is modal where a modal one would block it.
  void show_in_reach(std::string_view name);
  /// Makes sure that a window of the registry exists, without showing it.
  Window& load(std::string_view name);
  /// Loads a window if needed and moves it.
  void place(std::string_view name, TwipsPoint corner);
  /// The window of that name if it is loaded, else null.
  [[nodiscard]] Window* find(std::string_view name) const;

  /// Runs a handler. An ArithmeticFault that leaves it is reported to the user and ends the
  /// program.
  void run(const std::function<void()>& handler);
  /// True from the moment of a fault; handlers and message boxes do nothing any more.
  [[nodiscard]] bool is_ending() const { return is_ending_; }

  /// Called by a window that the user closed.
  void forget(Window& window);

 private:
  void end_with(const ArithmeticFault& fault);
  void close_all();

  /// Windows are destroyed by the event loop: the one that closes is often still running a handler.
  struct DestroyLater {
    void operator()(Window* window) const;
  };

  std::map<std::string, std::unique_ptr<Window, DestroyLater>, std::less<>> windows_;
  std::function<void()> end_program_;
  bool is_ending_ = false;
};

}  // namespace eterlab::ui
