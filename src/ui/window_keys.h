#pragma once

namespace eterlab::ui {

class Window;

/// The keys that do the same in every window: F1 opens its page of the handbook, Ctrl+F and F3 find
/// a calculation, F6 goes round the results, Ctrl+Shift+C copies all that the window tells, Ctrl+P
/// prints it.
void add_keys_of_every_window(Window& window);

}  // namespace eterlab::ui
