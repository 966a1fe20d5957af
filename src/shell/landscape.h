#pragma once

#include <QSize>

class QPainter;

namespace eterlab::shell {

/// The picture behind the main window: a beam antenna on its tower above hills at dawn, sending.
void draw_landscape(QPainter& painter, QSize size);

}  // namespace eterlab::shell
