#include "ui/text_box.h"

#include <QKeyEvent>
#include <utility>

#include "common/leading_number.h"
#include "ui/desktop.h"
#include "ui/text.h"
#include "ui/theme.h"

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

}  // namespace

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
}

TextBox& TextBox::operator=(std::string_view text) {
  setText(to_qt(text));
  return *this;
}

std::string TextBox::content() const { return from_qt(text()); }

Real TextBox::number() const { return leading_number(content()); }

void TextBox::on_change(Handler handler) {
  connect(this, &QLineEdit::textChanged, this,
          [handler = std::move(handler)] { Desktop::instance().run(handler); });
}

}  // namespace eterlab::ui
