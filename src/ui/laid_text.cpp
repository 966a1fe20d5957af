#include "ui/laid_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace eterlab::ui {

namespace {

constexpr qreal unlimited = QWIDGETSIZE_MAX;

QString with_line_separators(QString text) {
  return text.replace('\n', QChar{QChar::LineSeparator});
}

}  // namespace

int width_of_line(const QString& text, const QFont& font) {
  return static_cast<int>(std::ceil(QFontMetricsF{font}.horizontalAdvance(text)));
}

LaidText::LaidText(const QString& text, const QFont& font, int line_width)
    : layout_{with_line_separators(text), font} {
  break_lines(line_width);
}

LaidText::LaidText(const QString& text, const QFont& font)
    : layout_{with_line_separators(text), font} {
  QTextOption option;
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  layout_.setTextOption(option);
  break_lines(unlimited);
}

void LaidText::break_lines(qreal line_width) {
  const qreal leading = QFontMetricsF{layout_.font()}.leading();
  size_ = {0, -leading};
  layout_.setCacheEnabled(true);
  layout_.beginLayout();
  for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
    line.setLineWidth(line_width);
    const qreal top = std::ceil(size_.height() + leading);  // lines stand on whole pixels
    line.setPosition({0, top});
    size_ = {std::max(size_.width(), line.naturalTextWidth()),
             top + line.ascent() + line.descent()};
  }
  layout_.endLayout();
}

QSize LaidText::size() const { return QRectF{{}, size_}.toAlignedRect().size(); }

void LaidText::paint(QPainter& painter, const QRectF& room, Qt::Alignment alignment) const {
  const auto spared = [alignment](Qt::Alignment far, Qt::Alignment middle, qreal length) {
    return alignment.testAnyFlags(far) ? length : alignment.testAnyFlags(middle) ? length / 2 : 0;
  };
  const qreal y =
      room.y() + spared(Qt::AlignBottom, Qt::AlignVCenter, room.height() - size_.height());
  for (int i = 0; i < layout_.lineCount(); ++i) {
    const QTextLine line = layout_.lineAt(i);
    const qreal x = room.x() + spared(Qt::AlignRight, Qt::AlignHCenter,
                                      room.width() - line.horizontalAdvance());
    line.draw(&painter, {x, y});
  }
}

}  // namespace eterlab::ui
