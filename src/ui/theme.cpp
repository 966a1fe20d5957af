#include "ui/theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>

#include "ui/icons.h"

namespace eterlab::ui::theme {

namespace {

constexpr double smallest_readable_points = 10;
constexpr double heading_scale = 1.15;
constexpr double note_scale = 0.92;
constexpr double result_scale = 1.08;
/// Opacity of quiet text out of 255, dark enough for tired eyes on a light window.
constexpr int quiet_alpha = 200;

class Style final : public QProxyStyle {
 public:
  Style() : QProxyStyle{"Fusion"} {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    // The main window's ten menus stand in one row.
    return metric == PM_MenuBarItemSpacing ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (type == CT_PushButton && button != nullptr && !button->text.isEmpty()) {
      // Air between a caption and the border.
      size.rwidth() = std::max(size.width(), contents.width() + spacing());
    }
    return size;
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    // "OK" needs no picture.
    return hint == SH_DialogButtonBox_ButtonsHaveIcons
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

QFont scaled(QFont font, double factor) {
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * factor);
  } else {
    font.setPixelSize(qRound(font.pixelSize() * factor));
  }
  return font;
}

}  // namespace

void apply() {
  QApplication::setStyle(new Style);
  QFont font = QApplication::font();
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(std::max(font.pointSizeF(), smallest_readable_points));
    QApplication::setFont(font);
  }
  set_palette(QApplication::palette());
  QApplication::setWindowIcon(program_icon());
}

void set_palette(QPalette palette) {
  QColor quiet = palette.color(QPalette::WindowText);
  quiet.setAlpha(quiet_alpha);
  palette.setColor(QPalette::PlaceholderText, quiet);
  QApplication::setPalette(palette);
}

QPalette dark_palette() {
  const QColor ground{0x2b, 0x2d, 0x30};
  const QColor button{0x3c, 0x3f, 0x43};
  const QColor box{0x1e, 0x1f, 0x22};
  const QColor ink{0xdf, 0xe1, 0xe5};
  const QColor accent{0x4a, 0x88, 0xc7};
  const QColor faded{0x8a, 0x8d, 0x93};
  QPalette palette{
      ink, button, button.lighter(), button.darker(), button.lighter(120), ink, Qt::white,
      box, ground};
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, button);
  palette.setColor(QPalette::ToolTipText, ink);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faded);
  }
  return palette;
}

QFont font_of(Label::Role role) {
  QFont font = QApplication::font();
  switch (role) {
    case Label::Role::heading:
      font.setWeight(QFont::Medium);
      return scaled(font, heading_scale);
    case Label::Role::note:
      return scaled(font, note_scale);
    case Label::Role::result:
      font.setWeight(QFont::DemiBold);
      return scaled(font, result_scale);
    case Label::Role::drawing:
      font.setWeight(QFont::DemiBold);
      return font;
    case Label::Role::text:
      break;
  }
  return font;
}

QString installed_family(const QString& designed) {
  if (QFontDatabase::families().contains(designed)) {
    return designed;
  }
  return designed == "Times New Roman" ? "Liberation Serif" : QApplication::font().family();
}

int characters(int count) { return QFontMetrics{QApplication::font()}.averageCharWidth() * count; }

double font_scale() {
  return std::max(1.0, QApplication::font().pointSizeF() / smallest_readable_points);
}

int spacing() { return QFontMetrics{QApplication::font()}.height(); }

int margin() { return spacing() * 3 / 4; }

}  // namespace eterlab::ui::theme
