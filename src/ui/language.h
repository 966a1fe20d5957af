#pragma once

namespace eterlab::ui {

/// Makes the toolkit's own words, such as those of context menus, Italian like all others. Once,
/// when the application is made.
void speak_italian();

}  // namespace eterlab::ui
