#pragma once

#include <QFont>
#include <QPalette>

#include "ui/control.h"
#include "ui/label.h"

// The one place that says how the program looks: style, type scale, distances.

namespace eterlab::ui::theme {

/// Sets style, font, colours and icon; once, when the application is made and before its first
/// window.
void apply();

/// Gives the whole program these colours, and quiet text its own out of them.
void set_palette(const QPalette& palette);

/// Light letters on a dark ground, as a dark desktop gives them; for the gallery and for tests.
QPalette dark_palette();

/// Dark letters on a light ground, whatever the desktop's colours are.
QPalette paper_palette();

/// A colour of the design as it can be read on a ground: itself on a light one, lighter on a dark.
Colour legible(Colour colour, const QColor& ground);

/// A share of ink, from 0 to 1, in the colour of the ground.
QColor mixed(const QColor& ground, const QColor& ink, double share);

QFont font_of(Label::Role role);

/// A font family of the design or, where that is not installed, what stands for it. The toolkit
/// would find the same, but long searches for each family that is missing.
QString installed_family(const QString& designed);

/// Width of a text of so many average characters in the user's font.
int characters(int count);

/// A window so wide shows its title whole, between the buttons that a desktop puts beside it.
int title_width(const QString& title);

/// How much larger the user's font is than the usual one, at least 1; what the design places at
/// given coordinates moves apart with it.
double font_scale();

/// Distance between unrelated things; related ones stand at half of it.
int spacing();

/// Around what a window or frame holds.
int margin();

}  // namespace eterlab::ui::theme
