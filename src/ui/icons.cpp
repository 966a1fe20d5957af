#include "ui/icons.h"

#include <QApplication>
#include <QDir>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "ui/theme.h"

namespace eterlab::ui {

namespace {

constexpr int drawn_size = 32;

/// In a square of the size drawn.
void draw_open_door(QPainter& painter) {
  const QColor wood{0x9c, 0x5f, 0x2e};
  const QColor dark_wood{0x5d, 0x36, 0x18};
  const QColor daylight{0xff, 0xf3, 0xc4};
  const QColor arrow{0x1f, 0x7a, 0x3d};

  painter.setPen(QPen{dark_wood, 2});
  painter.setBrush(daylight);
  painter.drawRect(QRectF{5, 3, 16, 26});

  painter.setPen(QPen{dark_wood, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
  painter.setBrush(wood);
  painter.drawPolygon(QPolygonF{{{5, 3}, {13, 6.5}, {13, 31}, {5, 29}}});
  painter.setBrush(daylight);
  painter.drawEllipse(QPointF{11, 18.5}, 1, 1.2);

  QPainterPath path;
  path.moveTo(15.5, 13.5);
  path.lineTo(22, 13.5);
  path.lineTo(22, 9);
  path.lineTo(31, 16);
  path.lineTo(22, 23);
  path.lineTo(22, 18.5);
  path.lineTo(15.5, 18.5);
  path.closeSubpath();
  painter.setPen(QPen{arrow.darker(150), 1});
  painter.setBrush(arrow);
  painter.drawPath(path);
}

QIcon stored_icon() {
  QIcon icon;
  const QDir sizes{":/icons"};
  for (const QString& file : sizes.entryList()) {
    icon.addPixmap(QPixmap{sizes.filePath(file), "png"});
  }
  return icon;
}

/// Reads its pictures when the first of them is asked for, which not every desktop does.
class StoredIcon final : public QIconEngine {
 public:
  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
    return icon().availableSizes(mode, state);
  }
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return icon().actualSize(size, mode, state);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return icon().pixmap(size, 1, mode, state);
  }
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    icon().paint(painter, rect, Qt::AlignCenter, mode, state);
  }
  [[nodiscard]] QIconEngine* clone() const override { return new StoredIcon{*this}; }

 private:
  [[nodiscard]] const QIcon& icon() {
    if (icon_.isNull()) {
      icon_ = stored_icon();
    }
    return icon_;
  }

  QIcon icon_;
};

}  // namespace

int icon_size() { return qRound(drawn_size * theme::font_scale()); }

QIcon program_icon() { return QIcon{new StoredIcon}; }

QIcon open_door_icon() {
  const double scale = qApp->devicePixelRatio();  // of the finest screen
  QPixmap picture{QSize{icon_size(), icon_size()} * scale};
  picture.fill(Qt::transparent);
  picture.setDevicePixelRatio(scale);
  QPainter painter{&picture};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(theme::font_scale(), theme::font_scale());
  draw_open_door(painter);
  painter.end();
  return QIcon{picture};
}

}  // namespace eterlab::ui
