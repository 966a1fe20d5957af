#include "ui/calculator.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>

#include "common/number_text.h"
#include "ui/desktop.h"
#include "ui/list.h"
#include "ui/text.h"

namespace eterlab::ui {

Calculator::Calculator(std::string_view name, std::string_view title, Computes when)
    : Window{name, title},
      is_live_{when == Computes::as_typed},
      hint_{std::make_unique<Note>(this, "Labelpunto",
                                   "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO")},
      cmdcalcola_{is_live_ ? nullptr : std::make_unique<ComputeButton>(this, "cmdcalcola")},
      cmdesci_{this, "cmdesci"} {
  if (cmdcalcola_ != nullptr) {
    cmdcalcola_->on_click([this] { calculate(); });
  }
}

Calculator::~Calculator() = default;

void Calculator::load() {
  // Behind the handlers of the window itself, which may change what is asked for.
  const auto react = [this] { Desktop::instance().run([this] { change(); }); };
  for (const QLineEdit* box : findChildren<QLineEdit*>()) {
    connect(box, &QLineEdit::textChanged, this, react);
  }
  for (const QButtonGroup* options : findChildren<QButtonGroup*>()) {
    connect(options, &QButtonGroup::idClicked, this, react);
  }
  for (const QComboBox* list : findChildren<QComboBox*>()) {
    connect(list, &QComboBox::currentIndexChanged, this, react);
  }
  change();
}

void Calculator::lay_out(const Item& contents, std::initializer_list<Button*> others,
                         int width_in_characters) {
  std::vector<Item> items{contents};
  if (findChildren<QLineEdit*>().empty()) {
    hint_.reset();
  } else {
    items.emplace_back(*hint_);
  }
  std::vector<Item> buttons;
  if (cmdcalcola_ != nullptr) {
    buttons.emplace_back(*cmdcalcola_);
  }
  for (Button* other : others) {
    buttons.emplace_back(*other);
  }
  buttons.emplace_back(cmdesci_);
  items.push_back(ui::buttons(buttons));
  arrange(column(items), width_in_characters);
}

void Calculator::name_hint(std::string_view name, std::string_view text) {
  hint_->setObjectName(to_qt(name));
  if (!text.empty()) {
    *hint_ = text;
  }
}

void Calculator::name_exit(std::string_view name, std::string_view caption) {
  cmdesci_.setObjectName(to_qt(name));
  cmdesci_.set_caption(caption);
}

void Calculator::change() {
  blank_results();
  if (!is_live_) {
    return;
  }
  try {
    compute();
  } catch (const Refusal&) {
    blank_results();
  } catch (const ArithmeticFault&) {
    blank_results();
  }
}

void Calculator::calculate() {
  blank_results();
  Refusal refusal;
  try {
    check();
    return compute();
  } catch (const Refusal& failed) {
    refusal = failed;
  } catch (const ArithmeticFault&) {
    const std::vector<Input*> inputs = shown_inputs();
    QWidget& focus = inputs.empty() ? static_cast<QWidget&>(*cmdcalcola_) : *inputs.front();
    refusal = {&focus, "DATI NON CONGRUI", message_title_};
  }
  blank_results();
  refuse(*refusal.focus, refusal.text, refusal.title);
}

std::vector<Input*> Calculator::shown_inputs() const {
  std::vector<Input*> inputs;
  for (QWidget* at = nextInFocusChain(); at != nullptr && at != this; at = at->nextInFocusChain()) {
    if (auto* input = dynamic_cast<Input*>(at); input != nullptr && input->isVisibleTo(this)) {
      inputs.push_back(input);
    }
  }
  return inputs;
}

void Calculator::check() {
  check_presence();
  check_ranges();
}

void Calculator::check_presence() const {
  for (Input* input : shown_inputs()) {
    check_presence(*input);
  }
}

void Calculator::check_ranges() const {
  for (Input* input : shown_inputs()) {
    check_range(*input);
  }
}

void Calculator::check_presence(Input& input) const {
  require(input.is_told(), input, "MANCANO DATI");
}

void Calculator::check_range(Input& input) const {
  if (!input.negative().empty()) {
    require(input.value() >= 0, input, input.negative());
  }
  const Range range = input.range();
  require(input.is_in_range(), input,
          "VALORI AMMESSI: DA " + as_typed(range.lowest) + " A " + as_typed(range.highest));
}

void Calculator::require(bool holds, QWidget& focus, std::string_view text) const {
  require(holds, focus, text, message_title_);
}

void Calculator::require(bool holds, QWidget& focus, std::string_view text,
                         std::string_view title) {
  if (!holds) {
    throw Refusal{&focus, std::string{text}, std::string{title}};
  }
}

void Calculator::advise(bool holds, QWidget& focus, std::string_view text) {
  require(holds, focus, text, "MESSAGGIO DI AVVISO");
}

void Calculator::fill_in(std::initializer_list<std::string_view> texts) {
  const std::vector<Input*> inputs = shown_inputs();
  Q_ASSERT(texts.size() == inputs.size());
  auto input = inputs.begin();
  for (const std::string_view text : texts) {
    **input++ = text;
  }
  if (cmdcalcola_ != nullptr) {
    cmdcalcola_->click();
  }
}

void Calculator::clear_inputs() const {
  for (Input* input : shown_inputs()) {
    *input = "";
  }
}

}  // namespace eterlab::ui
