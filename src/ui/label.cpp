#include "ui/label.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/desktop.h"
#include "ui/laid_text.h"
#include "ui/text.h"
#include "ui/theme.h"
#include "ui/window.h"
#include "ui/window_text.h"

namespace eterlab::ui {

namespace {

constexpr int on_one_line = QWIDGETSIZE_MAX;

}  // namespace

Label::Label(Parent parent, std::string_view name, std::string_view text, Tooltip tip)
    : QLabel{parent.widget()} {
  set_up(*this, name, tip);
  setTextFormat(Qt::PlainText);
  setText(to_qt(text));
}

Label::~Label() = default;

Label& Label::operator=(std::string_view new_text) {
  const bool is_new = from_qt(text()) != new_text;
  setText(to_qt(new_text));
  is_fresh_ = true;
  if (std::exchange(is_dimmed_, false)) {
    setPalette({});
  }
  name_prompted();
  if (is_new && tells_result()) {
    announce();
  }
  return *this;
}

std::string Label::content() const { return from_qt(text()); }

void Label::dim_if_outdated() {
  const bool has_own_colour = testAttribute(Qt::WA_SetPalette);
  if (is_fresh_ || has_own_colour || text().isEmpty()) {
    return;
  }
  constexpr int dimmed_alpha = 120;
  QPalette dimmed;
  QColor colour = palette().color(foregroundRole());
  colour.setAlpha(dimmed_alpha);
  dimmed.setColor(foregroundRole(), colour);
  setPalette(dimmed);
  is_dimmed_ = true;
}

void Label::reserve(std::string_view text) {
  ensurePolished();
  setMinimumWidth(std::max(width_of_line(to_qt(text), font()), minimumWidth()));
}

void Label::set_prompt_of(QWidget& control) {
  setBuddy(&control);
  prompted_ = &control;
  unprompted_name_ = control.accessibleName();
  name_prompted();
}

void Label::name_prompted() {
  if (prompted_ == nullptr) {
    return;
  }
  const QString prompt = text().trimmed();
  if (qobject_cast<QLabel*>(prompted_) != nullptr) {
    prompted_->setAccessibleDescription(prompt);
  } else {
    // A prompt that a mode has yet to write leaves the box the name it was made with.
    prompted_->setAccessibleName(prompt.isEmpty() ? unprompted_name_ : prompt);
  }
}

bool Label::tells_result() const { return role_ == Role::result || role_ == Role::drawing; }

void Label::announce() {
  is_to_be_announced_ = !isVisible() && !text().isEmpty();
  if (isVisible() && !text().isEmpty()) {
    QAccessibleEvent spoken{this, QAccessible::Alert};
    QAccessible::updateAccessibility(&spoken);
  }
}

void Label::showEvent(QShowEvent* event) {
  QLabel::showEvent(event);
  if (is_to_be_announced_) {
    announce();
  }
}

// A text that can be selected is a document of its own, ten times as slow to lay out and to paint,
// so it becomes one when it is to be selected. It has no focus policy before, which would do the
// same.
void Label::become_selectable() {
  if (can_be_copied() && textInteractionFlags() != Qt::TextSelectableByMouse) {
    setTextInteractionFlags(Qt::TextSelectableByMouse);
  }
}

void Label::mousePressEvent(QMouseEvent* event) {
  become_selectable();
  QLabel::mousePressEvent(event);
}

void Label::select_all() {
  become_selectable();
  setSelection(0, static_cast<int>(text().size()));
}

void Label::on_click(Handler handler) {
  click_handler_ = std::move(handler);
  setCursor(Qt::PointingHandCursor);
}

void Label::set_font(std::string_view family, double points, QFont::Weight weight) {
  QFont font{theme::installed_family(to_qt(family))};
  font.setPointSizeF(points);
  font.setWeight(weight);
  setFont(font);
}

void Label::set_role(Role role) {
  role_ = role;
  setWordWrap(role == Role::heading || role == Role::note || role == Role::result);
  setFont(theme::font_of(role));
  setForegroundRole(role == Role::note ? QPalette::PlaceholderText : QPalette::WindowText);
  setAlignment(role == Role::drawing ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
  if (can_be_copied()) {
    setCursor(Qt::IBeamCursor);
  }
}

QSize Label::sizeHint() const {
  constexpr int letters_of_a_line = 40;
  if (wordWrap() && text().size() > letters_of_a_line) {
    // How many lines that makes is for heightForWidth to tell.
    return {theme::characters(letters_of_a_line), at_least_a_line(0)};
  }
  return measured(on_one_line).expandedTo(minimumSize());
}

QSize Label::minimumSizeHint() const {
  if (!wordWrap()) {
    return sizeHint();
  }
  // A number of three hundred digits is no reason for a window as wide as the screen.
  constexpr int characters_of_a_word = 12;
  return {std::min(sizeHint().width(), theme::characters(characters_of_a_word)),
          at_least_a_line(0)};
}

int Label::heightForWidth(int width) const { return measured(width).height(); }

QSize Label::measured(int width) const {
  // To measure texts is most of the work of a layout, and every layout asks for it repeatedly.
  forget_other_text();
  const int limit = wordWrap() ? width : on_one_line;
  if (!measured_.sizes.contains(limit)) {
    const QSize size = laid(limit).size();
    measured_.sizes[limit] = {limit != on_one_line ? limit : size.width(),
                              at_least_a_line(size.height())};
  }
  return measured_.sizes[limit];
}

const LaidText& Label::laid(int width) const {
  forget_other_text();
  const int limit = wordWrap() ? width : on_one_line;
  const bool fits_on_one_line =
      measured_.limit == on_one_line && measured_.lines->size().width() <= limit;
  if (measured_.limit != limit && !fits_on_one_line) {
    measured_.lines = limit == on_one_line ? std::make_unique<LaidText>(text(), font())
                                           : std::make_unique<LaidText>(text(), font(), limit);
    measured_.limit = limit;
  }
  return *measured_.lines;
}

void Label::forget_other_text() const {
  if (measured_.text != text() || measured_.font != font()) {
    ensurePolished();
    measured_ = {text(), font(), {}, nullptr};
  }
}

void Label::paintEvent(QPaintEvent* event) {
  const bool is_document = textInteractionFlags() == Qt::TextSelectableByMouse;
  QPainter painter{this};
  // On paper letters have other widths.
  if (is_document || painter.device()->logicalDpiY() != logicalDpiY()) {
    painter.end();
    QLabel::paintEvent(event);
    return;
  }
  painter.setPen(palette().color(foregroundRole()));
  laid(width()).paint(painter, rect(), alignment());
}

int Label::at_least_a_line(int height) const {
  return std::max(height, static_cast<int>(std::ceil(QFontMetricsF{font()}.height())));
}

void Label::contextMenuEvent(QContextMenuEvent* event) {
  if (!can_be_copied() || text().isEmpty()) {
    QLabel::contextMenuEvent(event);
    return;
  }
  auto* menu = new QMenu{this};
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction("&Copia", this, &Label::copy);
  const QString number = to_qt(number_in(from_qt(hasSelectedText() ? selectedText() : text())));
  menu->addAction("Copia il &numero", this,
                  [number] { QApplication::clipboard()->setText(number); })
      ->setEnabled(!number.isEmpty());
  if (const auto* around = dynamic_cast<const Window*>(window()); around != nullptr) {
    menu->addAction("Copia &tutto", this,
                    [around] { QApplication::clipboard()->setText(to_qt(window_text(*around))); });
  }
  menu->addAction("&Seleziona tutto", this, &Label::select_all);
  menu->popup(event->globalPos());
}

void Label::keyPressEvent(QKeyEvent* event) {
  if (event == QKeySequence::Copy && can_be_copied()) {
    copy();
  } else {
    QLabel::keyPressEvent(event);
  }
}

void Label::copy() const {
  QApplication::clipboard()->setText(hasSelectedText() ? selectedText() : text());
}

void Label::mouseReleaseEvent(QMouseEvent* event) {
  QLabel::mouseReleaseEvent(event);
  if (click_handler_ && event->button() == Qt::LeftButton && rect().contains(event->pos())) {
    Desktop::instance().run(click_handler_);
  }
}

Heading::Heading(Parent parent, std::string_view name, std::string_view text, Tooltip tip)
    : Label{parent, name, text, tip} {
  set_role(Role::heading);
}

Heading::~Heading() = default;

Note::Note(Parent parent, std::string_view name, std::string_view text, Tooltip tip)
    : Label{parent, name, text, tip} {
  set_role(Role::note);
}

Note::~Note() = default;

Result::Result(Parent parent, std::string_view name, std::string_view text, Tooltip tip)
    : Label{parent, name, text, tip} {
  set_role(Role::result);
}

Result::~Result() = default;

Value::Value(Parent drawing, std::string_view name, std::string_view letter, Tooltip tip)
    : Label{drawing, name, letter, tip}, letter_{letter} {
  set_role(Role::drawing);
}

Value::~Value() = default;

}  // namespace eterlab::ui
