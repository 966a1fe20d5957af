#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace eterlab::ui {

class Label;
class Window;

/// What a window tells, as plain text: its title, the inputs with their prompts, the options that
/// are chosen, all results; in reading order, a line each.
std::string window_text(const Window& window);

/// The results that can be copied: those in sight that are not empty.
std::vector<Label*> results_in_reading_order(const Window& window);

/// The number that a result tells, behind its "=" where it has one, as one types it into a box:
/// "C = 1.234,5 pF" is "1234.5". Empty without a number.
std::string number_in(std::string_view result);

}  // namespace eterlab::ui
