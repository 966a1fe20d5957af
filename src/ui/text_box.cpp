#include "ui/text_box.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <string>
#include <utility>

#include "common/leading_number.h"
#include "common/number_text.h"
#include "ui/desktop.h"
#include "ui/text.h"
#include "ui/theme.h"
#include "ui/window.h"

namespace eterlab::ui {

namespace {

constexpr int box_characters = 16;

bool is_keypad_decimal(const QKeyEvent& event) {
  // Without Num Lock the same key is Delete, and arrives without a text.
  const bool is_separator = event.key() == Qt::Key_Comma || event.key() == Qt::Key_Period ||
                            event.text() == "," || event.text() == "." ||
                            event.text() == QChar{0x066B};
  return event.modifiers().testFlag(Qt::KeypadModifier) && is_separator;
}

/// A text in the colours of tooltips over the window, under what it belongs to or above it.
class Bubble final : public QWidget {
 public:
  Bubble(const QWidget& owner, const QString& text) : QWidget{owner.window()}, text_{text} {
    setObjectName(owner.objectName() + "_letto");
    setAccessibleName(text);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    const int margin = theme::spacing() / 2;
    resize(fontMetrics().size(0, text).grownBy({margin, margin / 2, margin, margin / 2}));
    const QPoint corner = owner.mapTo(owner.window(), QPoint{0, owner.height() + 1});
    const bool fits_below = corner.y() + height() <= owner.window()->height();
    move(std::clamp(corner.x(), 0, std::max(0, owner.window()->width() - width())),
         fits_below ? corner.y() : corner.y() - owner.height() - height() - 2);
    raise();
    show();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter{this};
    painter.setPen(palette().color(QPalette::ToolTipText));
    painter.setBrush(palette().brush(QPalette::ToolTipBase));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawText(rect(), Qt::AlignCenter, text_);
  }

 private:
  QString text_;
};

}  // namespace

PointLineEdit::~PointLineEdit() = default;

void PointLineEdit::keyPressEvent(QKeyEvent* event) {
  if (is_keypad_decimal(*event) && !isReadOnly()) {
    insert(".");
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

TextBox::TextBox(Parent parent, std::string_view name, Tooltip tip)
    : PointLineEdit{parent.widget()} {
  set_up(*this, name, tip);
  setFixedWidth(theme::characters(box_characters));
  setAccessibleName(tip.text.empty() ? "immissione dato" : toolTip());
  connect(this, &QLineEdit::textChanged, this, &TextBox::tell_what_is_read);
  connect(this, &QLineEdit::textEdited, this, [this] { outdate_results(*this); });
}

TextBox::~TextBox() = default;

TextBox& TextBox::operator=(std::string_view text) {
  setText(to_qt(text));
  return *this;
}

std::string TextBox::content() const { return from_qt(text()); }

Real TextBox::number() const { return leading_number(content()); }

void TextBox::tell_what_is_read() {
  const std::string unread = unread_text(content());
  const bool had_unread_text =
      std::exchange(has_unread_text_, holds_number_ && !isReadOnly() && !unread.empty());
  if (has_unread_text_ != had_unread_text) {
    update();
  }
  delete bubble_;
  setAccessibleDescription({});
  if (!has_unread_text_) {
    return;
  }
  try {
    const char* const advice = unread.starts_with(',') ? "  -  I DECIMALI VOGLIONO IL PUNTO" : "";
    setAccessibleDescription(to_qt("LETTO: " + as_typed(number()) + advice));
  } catch (const ArithmeticFault&) {
    return;  // too large a number to be told
  }
  show_bubble();
  QAccessibleEvent spoken{this, QAccessible::Alert};
  QAccessible::updateAccessibility(&spoken);
}

void TextBox::show_bubble() {
  if (hasFocus() && has_unread_text_ && bubble_ == nullptr && !accessibleDescription().isEmpty()) {
    bubble_ = new Bubble{*this, accessibleDescription()};
  }
}

void TextBox::focusInEvent(QFocusEvent* event) {
  PointLineEdit::focusInEvent(event);
  show_bubble();
}

void TextBox::focusOutEvent(QFocusEvent* event) {
  PointLineEdit::focusOutEvent(event);
  delete bubble_;
}

void TextBox::on_change(Handler handler) {
  connect(this, &QLineEdit::textChanged, this,
          [handler = std::move(handler)] { Desktop::instance().run(handler); });
}

}  // namespace eterlab::ui
