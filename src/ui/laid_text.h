#pragma once

#include <QFont>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QTextLayout>

class QPainter;

namespace eterlab::ui {

/// In whole pixels, of a text that is measured only: faster than to lay it.
int width_of_line(const QString& text, const QFont& font);

/// A plain text in lines, measured and painted as the toolkit's labels do it. They find the glyphs
/// of each letter again for either, which is most of the work.
class LaidText {
 public:
  /// In lines no wider than this, or as the text is broken.
  LaidText(const QString& text, const QFont& font, int line_width);
  LaidText(const QString& text, const QFont& font);

  [[nodiscard]] QSizeF exact_size() const { return size_; }
  /// In whole pixels.
  [[nodiscard]] QSize size() const;
  /// With the painter's pen.
  void paint(QPainter& painter, const QRectF& room, Qt::Alignment alignment) const;

 private:
  void break_lines(qreal line_width);

  QTextLayout layout_;
  QSizeF size_;
};

}  // namespace eterlab::ui
