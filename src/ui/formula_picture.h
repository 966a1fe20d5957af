#pragma once

#include <QFont>
#include <QPainterPath>
#include <QPointF>
#include <QString>
#include <vector>

#include "common/formula.h"

class QPainter;

namespace eterlab::ui {

/// A formula as a book sets it: quotients stacked, roots under their sign, symbols in italics.
class FormulaPicture {
 public:
  /// In about the size of a text in this font.
  FormulaPicture(const Formula& formula, const QFont& font);

  [[nodiscard]] double width() const { return box_.width; }
  /// Above the line on which letters stand, and below it.
  [[nodiscard]] double ascent() const { return box_.ascent; }
  [[nodiscard]] double descent() const { return box_.descent; }

  /// In the painter's pen, from this point on the line on which letters stand.
  void draw(QPainter& painter, QPointF left) const;

 private:
  friend class Typesetter;

  struct Letters {
    QPointF left;
    QString text;
    QFont font;
  };
  /// What is set already, around the point where it begins on the line.
  struct Box {
    double width = 0;
    double ascent = 0;
    double descent = 0;
    std::vector<Letters> letters = {};
    QPainterPath filled = {};
    QPainterPath drawn = {};
  };

  Box box_;
  double line_width_ = 1;
};

}  // namespace eterlab::ui
