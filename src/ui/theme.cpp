#include "ui/theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGroupBox>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>

#include "ui/icons.h"
#include "ui/text_box.h"

namespace eterlab::ui::theme {

namespace {

constexpr double smallest_readable_points = 10;
constexpr double usual_line_height = 15;
constexpr double heading_scale = 1.15;
constexpr double note_scale = 0.92;
constexpr double result_scale = 1.08;
/// Opacity of quiet text out of 255, dark enough for tired eyes on a light window.
constexpr int quiet_alpha = 200;

constexpr Colour not_read{0xc8, 0x50, 0x00};  // the edge of a box that holds more than is read

/// Opacity of outlines that the style leaves too faint.
constexpr int outline_alpha = 150;
constexpr int frame_alpha = 60;

/// Shares of the colour of text in the parts of a scroll bar.
constexpr double groove_share = 0.1;
constexpr double slider_share = 0.45;
constexpr double held_slider_share = 0.65;

bool is_dark(const QColor& ground) { return ground.lightness() < 128; }

QColor text_colour_at(int alpha, const QPalette& palette) {
  QColor colour = palette.color(QPalette::WindowText);
  colour.setAlpha(alpha);
  return colour;
}

/// Fusion darkens the colour of the window for outlines: on a dark one they would not be seen.
template <typename Option>
Option with_visible_outline(Option option) {
  if (is_dark(option.palette.color(QPalette::Window))) {
    option.palette.setColor(QPalette::Window, text_colour_at(outline_alpha, option.palette));
  }
  return option;
}

class Style final : public QProxyStyle {
 public:
  Style() : QProxyStyle{"Fusion"} {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    const auto* box = qobject_cast<const QGroupBox*>(widget);
    if (element == PE_IndicatorRadioButton && button != nullptr) {
      const QStyleOptionButton visible = with_visible_outline(*button);
      QProxyStyle::drawPrimitive(element, &visible, painter, widget);
    } else if (element == PE_PanelLineEdit && frame != nullptr &&
               frame->state.testFlag(State_ReadOnly)) {
      QStyleOptionFrame flat{*frame};  // as the window: nothing to type here
      flat.palette.setBrush(QPalette::Base, frame->palette.window());
      QProxyStyle::drawPrimitive(element, &flat, painter, widget);
    } else if (element == PE_FrameLineEdit && frame != nullptr) {
      const auto* text_box = dynamic_cast<const TextBox*>(widget);
      if (text_box != nullptr && text_box->has_unread_text()) {
        draw_edge(*painter, frame->rect, to_qt_colour(legible(not_read, window_of(*option))));
      } else if (frame->state.testFlag(State_HasFocus)) {
        draw_edge(*painter, frame->rect, frame->palette.color(QPalette::Highlight));
      } else {
        const QStyleOptionFrame visible = with_visible_outline(*frame);
        QProxyStyle::drawPrimitive(element, &visible, painter, widget);
      }
    } else if (element == PE_PanelButtonCommand) {
      QProxyStyle::drawPrimitive(element, option, painter, widget);
      if (option->state.testFlag(State_HasFocus)) {
        draw_edge(*painter, option->rect, option->palette.color(QPalette::Highlight));
      }
    } else if (element == PE_FrameFocusRect) {
      draw_edge(*painter, option->rect, option->palette.color(QPalette::Highlight));
    } else if (element == PE_FrameGroupBox && box != nullptr) {
      draw_frame(*option, *painter, *box);
    } else {
      QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_ComboBox && combo != nullptr) {
      const QStyleOptionComboBox visible = with_visible_outline(*combo);
      QProxyStyle::drawComplexControl(control, &visible, painter, widget);
    } else if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
               bar != nullptr && control == CC_ScrollBar) {
      draw_scroll_bar(*bar, *painter, widget);
    } else {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    // The main window's ten menus stand in one row.
    return metric == PM_MenuBarItemSpacing ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* menu = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuBarItem && menu != nullptr) {
      // Fusion marks an open menu, but not the one that the keyboard has arrived at.
      QStyleOptionMenuItem marked{*menu};
      marked.state.setFlag(State_Sunken, marked.state.testFlag(State_Selected));
      QProxyStyle::drawControl(element, &marked, painter, widget);
    } else if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
               button != nullptr && element == CE_PushButtonBevel) {
      // What stands out is the control that has the focus, not the one that Enter presses.
      QStyleOptionButton plain{*button};
      plain.features.setFlag(QStyleOptionButton::DefaultButton, false);
      QProxyStyle::drawControl(element, &plain, painter, widget);
    } else {
      QProxyStyle::drawControl(element, option, painter, widget);
    }
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
    switch (hint) {
      case SH_DialogButtonBox_ButtonsHaveIcons:  // "OK" needs no picture
      case SH_ScrollBar_ContextMenu:             // it would hold up all else until it is closed
        return 0;
      default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
  }

 private:
  static QColor window_of(const QStyleOption& option) {
    return option.palette.color(QPalette::Window);
  }
  static QColor to_qt_colour(Colour colour) { return {colour.red, colour.green, colour.blue}; }

  static void draw_edge(QPainter& painter, const QRect& rect, const QColor& colour) {
    constexpr double width = 2;
    constexpr double corner_radius = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen({colour, width});
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF{rect}.adjusted(width / 2, width / 2, -width / 2, -width / 2),
                            corner_radius, corner_radius);
    painter.restore();
  }

  /// Flat and opaque: to shade a tall one line by line takes longer than the rows beside it.
  void draw_scroll_bar(const QStyleOptionSlider& bar, QPainter& painter,
                       const QWidget* widget) const {
    constexpr int margin = 3;
    const bool is_upright = bar.orientation == Qt::Vertical;
    const auto fill = [&](const QRect& part, double share) {
      painter.fillRect(part, mixed(window_of(bar), bar.palette.color(QPalette::WindowText), share));
    };
    fill(bar.rect, groove_share);
    if (bar.state.testFlag(State_Enabled)) {
      const bool is_held = bar.activeSubControls.testFlag(SC_ScrollBarSlider);
      const QRect slider = subControlRect(CC_ScrollBar, &bar, SC_ScrollBarSlider, widget);
      fill(is_upright ? slider.adjusted(margin, 0, -margin, 0)
                      : slider.adjusted(0, margin, 0, -margin),
           is_held ? held_slider_share : slider_share);
    }
    draw_arrow(bar, SC_ScrollBarSubLine, is_upright ? PE_IndicatorArrowUp : PE_IndicatorArrowLeft,
               painter, widget);
    draw_arrow(bar, SC_ScrollBarAddLine,
               is_upright ? PE_IndicatorArrowDown : PE_IndicatorArrowRight, painter, widget);
  }

  void draw_arrow(QStyleOptionSlider bar, SubControl end, PrimitiveElement arrow, QPainter& painter,
                  const QWidget* widget) const {
    constexpr int margin = 4;
    bar.rect =
        subControlRect(CC_ScrollBar, &bar, end, widget).adjusted(margin, margin, -margin, -margin);
    drawPrimitive(arrow, &bar, &painter, widget);
  }

  static void draw_frame(const QStyleOption& option, QPainter& painter, const QGroupBox& box) {
    constexpr double half_a_line = 0.5;
    constexpr double corner_radius = 3;
    constexpr int gap = 3;
    const int title_height = box.title().isEmpty() ? 0 : option.fontMetrics.height();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(text_colour_at(frame_alpha, option.palette));
    painter.setBrush(text_colour_at(frame_alpha / 12, option.palette));
    painter.drawRoundedRect(QRectF{option.rect.adjusted(0, title_height + gap, 0, 0)}.adjusted(
                                half_a_line, half_a_line, -half_a_line, -half_a_line),
                            corner_radius, corner_radius);
    painter.restore();
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

QPalette with_quiet_text(QPalette palette) {
  palette.setColor(QPalette::PlaceholderText, text_colour_at(quiet_alpha, palette));
  return palette;
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

void set_palette(const QPalette& palette) { QApplication::setPalette(with_quiet_text(palette)); }

QPalette paper_palette() {
  const QColor ground{0xef, 0xef, 0xef};
  const QColor accent{0x30, 0x8c, 0xc6};
  QPalette palette{ground};
  palette.setColor(QPalette::Highlight, accent);
  return with_quiet_text(palette);
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

Colour legible(Colour colour, const QColor& ground) {
  if (!is_dark(ground)) {
    return colour;
  }
  constexpr float readable_lightness = 0.78F;
  QColor lighter{colour.red, colour.green, colour.blue};
  lighter.setHslF(lighter.hslHueF(), lighter.hslSaturationF(),
                  std::max(lighter.lightnessF(), readable_lightness));
  return {lighter.red(), lighter.green(), lighter.blue()};
}

QColor mixed(const QColor& ground, const QColor& ink, double share) {
  const auto channel = [share](int from, int to) { return qRound(from + (to - from) * share); };
  return {channel(ground.red(), ink.red()), channel(ground.green(), ink.green()),
          channel(ground.blue(), ink.blue())};
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
    case Label::Role::cell:
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

int title_width(const QString& title) {
  constexpr int characters_of_buttons = 22;
  QFont bold = QApplication::font();
  bold.setBold(true);
  return QFontMetrics{bold}.horizontalAdvance(title) + characters(characters_of_buttons);
}

int characters(int count) { return QFontMetrics{QApplication::font()}.averageCharWidth() * count; }

double font_scale() {
  // Fonts of one size differ in the height of their lines, which drawings are made of.
  return std::max({1.0, QApplication::font().pointSizeF() / smallest_readable_points,
                   spacing() / usual_line_height});
}

int spacing() { return QFontMetrics{QApplication::font()}.height(); }

int margin() { return spacing() * 3 / 4; }

}  // namespace eterlab::ui::theme
