#pragma once

#include <QIcon>

namespace eterlab::ui {

/// Logical pixels along each side of a button's picture, which grows with the user's font.
int icon_size();

/// The program's own, as its desktop entry has it.
QIcon program_icon();

/// A door standing open and an arrow leaving through it.
QIcon open_door_icon();

}  // namespace eterlab::ui
