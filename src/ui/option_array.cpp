#include "ui/option_array.h"

#include <QApplication>
#include <QPalette>
#include <string>
#include <utility>

#include "ui/desktop.h"
#include "ui/text.h"
#include "ui/theme.h"
#include "ui/window.h"

namespace eterlab::ui {

Option::Option(Parent parent, std::string_view name, std::string_view caption)
    : QRadioButton{to_qt(caption), parent.widget()} {
  set_up(*this, name, {});
  connect(this, &QRadioButton::clicked, this, [this] { outdate_results(*this); });
}

Option::~Option() = default;

std::string Option::caption() const { return from_qt(text()); }

OptionArray::OptionArray(Parent parent, std::string_view name,
                         std::initializer_list<std::string_view> captions, int first_index)
    : group_{parent.widget()} {
  int index = first_index;
  for (const std::string_view caption : captions) {
    auto button =
        std::make_unique<Option>(parent, std::string{name} + "_" + std::to_string(index), caption);
    group_.addButton(button.get(), index);
    buttons_.push_back(std::move(button));
    ++index;
  }
}

OptionArray::~OptionArray() = default;

Option& OptionArray::operator[](int index) const {
  QAbstractButton* button = group_.button(index);
  Q_ASSERT(button != nullptr);
  return static_cast<Option&>(*button);
}

std::vector<Option*> OptionArray::buttons() const {
  std::vector<Option*> all;
  for (const auto& button : buttons_) {
    all.push_back(button.get());
  }
  return all;
}

void OptionArray::preset(int index) const { (*this)[index].setChecked(true); }

void OptionArray::mark(int index, Colour colour) const {
  const QPalette palette = QApplication::palette();
  const QColor system = palette.color(QPalette::ButtonText);
  for (const auto& button : buttons_) {
    set_text_colour(*button, {system.red(), system.green(), system.blue()});
  }
  set_text_colour((*this)[index], theme::legible(colour, palette.color(QPalette::Window)));
}

void OptionArray::on_click(std::function<void(int)> handler) {
  QObject::connect(&group_, &QButtonGroup::idClicked, &group_,
                   [handler = std::move(handler)](int index) {
                     Desktop::instance().run([&] { handler(index); });
                   });
}

}  // namespace eterlab::ui
