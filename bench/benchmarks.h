#pragma once

namespace eterlab::bench {

/// Reading and writing numbers, beside the standard library doing the nearest work.
void register_numbers();

/// Every function of the engineering.
void register_engineering();

/// Opening every window, and one keystroke in every box that computes as the user types, beside
/// bare widgets of the toolkit.
void register_windows();

}  // namespace eterlab::bench
