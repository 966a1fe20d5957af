#include <gtest/gtest.h>
#include <qpa/qwindowsysteminterface.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDebug>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPrinter>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <deque>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>

#include "common/leading_number.h"
#include "shell/menu_catalogue.h"
#include "support/layout_faults.h"
#include "support/random.h"
#include "ui/button.h"
#include "ui/desktop.h"
#include "ui/printing.h"
#include "ui/registry.h"
#include "ui/system_region.h"
#include "ui/text.h"
#include "ui/window.h"

// A monkey at the keyboard and the mouse. Whatever it does, the program shows results and message
// boxes, and ends only as it is meant to: with its last window, or by a fault of the arithmetic
// that the design leaves unguarded.
//
//   ETERLAB_MONKEY_EVENTS  how many keys and clicks in all
//   ETERLAB_MONKEY_SEED    the first seed; each seed is one session of some thousand events
//   ETERLAB_MONKEY_TRACE   set to anything: every action is printed before it is done
//
// A seed that fails is printed with what was done last. It replays with
//   ETERLAB_MONKEY_SEED=<seed> ETERLAB_MONKEY_EVENTS=1 robustness_tests --gtest_filter='*Monkey*'

namespace eterlab {
namespace {

using test::Random;
using ui::from_qt;
using ui::to_qt;

/// A window whose checks let numbers of everyday size end the program.
struct Unguarded {
  std::string_view window;
  std::string_view fault;
  std::string_view reason;
};
constexpr std::string_view division = "DIVISIONE PER ZERO";
constexpr std::string_view overflow = "NUMERO TROPPO GRANDE";
constexpr std::string_view invalid = "ARGOMENTO NON VALIDO";

constexpr Unguarded unguarded[] = {
    {"frmadattatoritoroidali", invalid, "two negative impedances make a positive product"},
    {"frmamidon", invalid, "a negative inductance"},
    {"frmattenuazionetratta", division, "no frequency"},
    {"frmattenuazionetratta", invalid, "a negative frequency or distance"},
    {"frmawg", overflow, "a negative gauge has no lower bound"},
    {"frmbobine", division, "turns that round to zero divide the length"},
    {"frmbobine", invalid, "two negative inputs make a positive product"},
    {"frmdipoloripiegato", invalid, "two negative measures make a positive product"},
    {"frmgammamatch", overflow, "a frequency so low that the capacitance is beyond 16 bits"},
    {"frmpassabandakcostante", division, "edges of the band that are equal"},
    {"frmreszener", division, "a negative current that cancels the standing one"},
    {"frmreszener", overflow, "a resistance beyond 16 bits"},
    {"frmretiaTePgreco", invalid, "two negative inputs make a positive product"},
    {"frmretiaTePgreco", overflow, "a loss of thousands of decibels"},
    {"frmretiaTponte", division, "a loss so small that the ratio is 1"},
    {"frmretiaTponte", overflow, "a loss of hundreds of decibels, in single precision"},
    {"frmretiadL", invalid, "two negative impedances make a positive product"},
    {"frmretiadLbilanciata", invalid, "two negative impedances make a positive product"},
    {"frmsintoniatoro", invalid, "a negative inductance"},
    {"frmvertaccorciata", invalid, "two negative inputs make a positive product"},
    {"frmvoltwatt", invalid, "a negative power and resistance make a positive product"},
};

bool may_end(std::string_view window, std::string_view report) {
  return std::any_of(std::begin(unguarded), std::end(unguarded), [&](const Unguarded& row) {
    return row.window == window && report.starts_with(row.fault);
  });
}

std::string name_of(const QWidget& widget) { return from_qt(widget.objectName()); }
std::string quoted(const QString& text) { return from_qt(QDebug::toString(text)); }

bool holds_number_between(double least, double most, const QLineEdit& box) {
  try {
    const double size = std::abs(leading_number(from_qt(box.text())).value());
    return size == 0 || (size >= least && size <= most);
  } catch (const ArithmeticFault&) {
    return false;
  }
}

bool hold_numbers_between(double least, double most, const QWidget& window) {
  const auto boxes = window.findChildren<QLineEdit*>();
  return std::all_of(boxes.begin(), boxes.end(),
                     [&](const QLineEdit* box) { return holds_number_between(least, most, *box); });
}

std::string inputs_of(const QWidget& window) {
  std::ostringstream inputs;
  for (const QLineEdit* box : window.findChildren<QLineEdit*>()) {
    inputs << ' ' << name_of(*box) << '=' << quoted(box->text());
  }
  return inputs.str();
}

QList<QLineEdit*> visible_boxes(const QWidget& window) {
  QList<QLineEdit*> boxes = window.findChildren<QLineEdit*>();
  boxes.removeIf([](const QLineEdit* box) { return !box->isVisible(); });
  return boxes;
}

/// Anything at all, also surrogates that stand alone and characters that do not exist.
QString any_of_unicode(Random& random) {
  QString text;
  for (int count = random.between(1, 8); count > 0; --count) {
    const auto code_point = static_cast<char32_t>(random.below(0x110000));
    text += random.one_in(2) ? QString{static_cast<char16_t>(code_point)}
                             : QString::fromUcs4(&code_point, 1);
  }
  return text;
}

QString any_text(Random& random) {
  if (random.one_in(100)) {
    return to_qt(test::garbage(random)).repeated(1000);
  }
  switch (random.below(10)) {
    case 0:
      return to_qt(test::garbage(random));
    case 1:
      return any_of_unicode(random);
    case 2:
      return to_qt(test::wild_number(random));
    case 3:
      return to_qt(test::ordinary_number(random) + test::garbage(random));
    default:
      return to_qt(test::ordinary_number(random));
  }
}

class Monkey final : public QObject {
 public:
  static constexpr int events_of_a_session = 2500;

  explicit Monkey(std::uint64_t seed) : random_{seed} {
    constexpr const char* locales[] = {"it_IT", "en_US", "de_CH", "fr_FR", "hi_IN", "ar_EG"};
    const char* locale = random_.any_of(locales);
    set_regional_settings(ui::regional_settings_of(QLocale{locale}));
    ui::set_printer_source([] { return std::unique_ptr<QPrinter>{}; });
    QApplication::clipboard()->clear();
    qApp->installEventFilter(this);
  }
  ~Monkey() override { set_regional_settings({}); }
  Monkey(const Monkey&) = delete;
  Monkey& operator=(const Monkey&) = delete;
  Monkey(Monkey&&) = delete;
  Monkey& operator=(Monkey&&) = delete;

  void play() {
    while (events_ < events_of_a_session && !::testing::Test::HasFailure()) {
      if (!desktop_) {
        start_program();
      }
      act();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      check();
    }
  }

  [[nodiscard]] const std::deque<std::string>& last_actions() const { return last_actions_; }

  /// Answers message boxes in one of the ways that users have.
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (box == nullptr || event->type() != QEvent::Show) {
      return false;
    }
    note("box ", quoted(box->windowTitle()), ": ", quoted(box->text()));
    EXPECT_NE(box->windowTitle(), "");
    EXPECT_NE(box->text(), "");
    if (box->windowTitle() == "ERRORE DI CALCOLO") {
      judge(from_qt(box->text()));
    }
    QTimer::singleShot(0, box, [this, box] {
      switch (random_.below(3)) {
        case 0:
          return QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
        case 1:
          return QTest::keyClick(box, Qt::Key_Return);
        default:
          box->close();
      }
    });
    return false;
  }

 private:
  template <class... Words>
  void note(const Words&... words) {
    std::ostringstream action;
    (action << ... << words);
    static const bool is_traced = qEnvironmentVariableIsSet("ETERLAB_MONKEY_TRACE");
    if (is_traced) {
      std::cout << action.str() << std::endl;
    }
    constexpr std::size_t kept = 40;
    last_actions_.push_back(action.str());
    if (last_actions_.size() > kept) {
      last_actions_.pop_front();
    }
  }

  void start_program() {
    note("start");
    faults_ = 0;
    has_ended_ = false;
    desktop_.emplace([this] { has_ended_ = true; });
    desktop_->show("FRMETERLAB");
  }

  // What the monkey does

  void act() {
    if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) {
      use_popup(*popup);
      return;
    }
    QWidget& window = any_window();
    under_hand_ = &window;
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != &window) {
      click_control(window);  // which the modal window blocks
      return;
    }
    window.activateWindow();  // as the user's desktop does
    QApplication::processEvents();
    const int chance = random_.below(100);
    if (chance < 12) {
      fill_in(window);
    } else if (chance < 25) {
      type_somewhere(window);
    } else if (chance < 50) {
      click_control(window);
    } else if (chance < 70) {
      press_any_key();
    } else if (chance < 77) {
      click_anywhere(window);
    } else if (chance < 80) {
      drag(window);
    } else if (chance < 83) {
      turn_wheel(window);
    } else if (chance < 86) {
      close(window);
    } else {
      choose_menu_entry();
    }
  }

  QWidget& any_window() {
    std::vector<QWidget*> open;
    for (const std::string& name : ui::registry::names()) {
      QWidget* window = desktop_->find(name);
      if (window != nullptr && window->isVisible()) {
        open.push_back(window);
      }
    }
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && !random_.one_in(8) ? *modal : *random_.any_of(open);
  }

  QPoint any_point(const QRect& area) {
    return area.topLeft() + QPoint{random_.below(area.width()), random_.below(area.height())};
  }
  QPoint any_point(const QWidget& widget) { return any_point(widget.rect()); }

  // Each event goes to the window that has the focus by then: what is pressed may close windows.
  static void send_key(bool is_pressed, int key, Qt::KeyboardModifier modifier,
                       const QString& text = {}) {
    if (QWindow* focused = QGuiApplication::focusWindow(); focused != nullptr) {
      QTest::simulateEvent(focused, is_pressed, key, modifier, text, false);
    }
  }

  void press(int key, Qt::KeyboardModifier modifier = Qt::NoModifier, const QString& text = {}) {
    ++events_;
    const int held = modifier == Qt::ShiftModifier     ? Qt::Key_Shift
                     : modifier == Qt::ControlModifier ? Qt::Key_Control
                     : modifier == Qt::AltModifier     ? Qt::Key_Alt
                                                       : 0;
    if (held != 0) {
      send_key(true, held, Qt::NoModifier);
    }
    send_key(true, key, modifier, text);
    send_key(false, key, modifier, text);
    if (held != 0) {
      send_key(false, held, modifier);
    }
  }

  void click(const QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton) {
    ++events_;
    const QWidget& window = *widget.window();
    QTest::mouseClick(window.windowHandle(), button, {}, widget.mapTo(&window, place));
  }

  void use_popup(QWidget& popup) {
    constexpr int keys[] = {Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,
                            Qt::Key_Right, Qt::Key_Return, Qt::Key_Escape};
    note("popup of ", name_of(*under_hand_));
    if (random_.one_in(2)) {
      click(popup, any_point(popup));
    } else {
      press(random_.any_of(keys));
    }
  }

  void fill_in(QWidget& window) {
    for (QLineEdit* box : visible_boxes(window)) {
      if (has_ended_) {
        return;
      }
      type(*box, to_qt(test::ordinary_number(random_)));
    }
    note("Enter");
    press(Qt::Key_Return);
  }

  void type_somewhere(QWidget& window) {
    const QList<QLineEdit*> boxes = visible_boxes(window);
    if (!boxes.empty()) {
      type(*random_.any_of(boxes), any_text(random_));
    }
  }

  void type(QLineEdit& box, const QString& text) {
    note("type ", quoted(text.left(60)), " in ", name_of(*box.window()), ".", name_of(box));
    click(box, box.rect().center());
    if (!random_.one_in(4)) {
      press(Qt::Key_A, Qt::ControlModifier);
    }
    constexpr int longest_typed = 20;
    if (text.size() > longest_typed) {
      QApplication::clipboard()->setText(text);
      press(Qt::Key_V, Qt::ControlModifier);
      return;
    }
    for (const QChar character : text) {
      if (has_ended_) {
        return;
      }
      press(Qt::Key_unknown, Qt::NoModifier, character);
    }
  }

  void click_control(QWidget& window) {
    QWidget* control = random_.any_of(test::visible_controls(window));
    const bool closes = dynamic_cast<ui::ExitButton*>(control) != nullptr ||
                        dynamic_cast<ui::DoorButton*>(control) != nullptr;
    // The place of an overlong result may be outside the window.
    const QRect seen = control->visibleRegion().boundingRect();
    if (seen.isEmpty() || (closes && !random_.one_in(4))) {
      return;
    }
    note("click ", name_of(window), ".", name_of(*control));
    click(*control, random_.one_in(2) ? seen.center() : any_point(seen));
  }

  void press_any_key() {
    constexpr int keys[] = {
        Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Return,   Qt::Key_Enter,  Qt::Key_Space,
        Qt::Key_Up,        Qt::Key_Down,    Qt::Key_Left,     Qt::Key_Right,  Qt::Key_Home,
        Qt::Key_End,       Qt::Key_PageUp,  Qt::Key_PageDown, Qt::Key_Insert, Qt::Key_Delete,
        Qt::Key_Backspace, Qt::Key_Escape,  Qt::Key_F1,       Qt::Key_F4,     Qt::Key_F10,
        Qt::Key_Menu,      Qt::Key_A,       Qt::Key_C,        Qt::Key_V,      Qt::Key_X,
        Qt::Key_Z,         Qt::Key_0,       Qt::Key_Period,   Qt::Key_Comma,
    };
    constexpr Qt::KeyboardModifier modifiers[] = {
        Qt::NoModifier,  Qt::NoModifier,      Qt::NoModifier,      Qt::ShiftModifier,
        Qt::AltModifier, Qt::ControlModifier, Qt::ControlModifier, Qt::KeypadModifier};
    const int key = random_.any_of(keys);
    const Qt::KeyboardModifier modifier = random_.any_of(modifiers);
    note("press ",
         from_qt(QKeySequence{QKeyCombination{modifier, static_cast<Qt::Key>(key)}}.toString()));
    const bool is_character = key <= Qt::Key_AsciiTilde && modifier != Qt::ControlModifier;
    press(key, modifier, is_character ? QString{QChar{key}} : QString{});
  }

  void click_anywhere(QWidget& window) {
    constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    const QPoint place = any_point(window);
    note("click anywhere in ", name_of(window));
    if (random_.one_in(4)) {
      ++events_;
      QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, place);
    } else {
      click(window, place, random_.any_of(buttons));
    }
  }

  void drag(QWidget& window) {
    note("drag in ", name_of(window));
    ++events_;
    QWindow* handle = window.windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, {}, any_point(window));
    QTest::mouseMove(handle, any_point(window));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, any_point(window));
  }

  void turn_wheel(QWidget& window) {
    note("wheel in ", name_of(window));
    ++events_;
    constexpr int notch = 120;
    const QPoint place = any_point(window);
    QWidget* at = window.childAt(place);
    QWidget& target = at == nullptr ? window : *at;
    QWheelEvent event{QPointF{target.mapFrom(&window, place)},
                      QPointF{window.mapToGlobal(place)},
                      {},
                      {0, random_.one_in(2) ? notch : -notch},
                      Qt::NoButton,
                      Qt::NoModifier,
                      Qt::NoScrollPhase,
                      false};
    QApplication::sendEvent(&target, &event);
  }

  void close(QWidget& window) {
    note("close ", name_of(window));
    ++events_;
    QWindowSystemInterface::handleCloseEvent<QWindowSystemInterface::SynchronousDelivery>(
        window.windowHandle());
  }

  void choose_menu_entry() {
    QWidget* main_window = desktop_->find("FRMETERLAB");
    if (main_window == nullptr || QApplication::activeModalWidget() != nullptr) {
      return;
    }
    static const std::vector<shell::MenuEntry> entries = [] {
      std::vector<shell::MenuEntry> leaves;
      for (const shell::MenuEntry& entry : shell::menu_catalogue()) {
        if (!entry.is_submenu() && ui::registry::contains(entry.window)) {
          leaves.push_back(entry);
        }
      }
      return leaves;
    }();
    const shell::MenuEntry& entry = random_.any_of(entries);
    note("choose ", entry.name);
    ++events_;
    under_hand_ = main_window;
    main_window->findChild<QAction*>(to_qt(entry.name))->trigger();
  }

  // What must hold

  /// The program is about to end with this report: may it?
  void judge(const std::string& report) {
    ++faults_;
    // Beyond these, products and powers may leave the range of a double in every window: above it,
    // or below it, which makes them zero.
    const bool leaves_range =
        !hold_numbers_between(1e-9, 1e9, *under_hand_) && !report.starts_with(invalid);
    if (!leaves_range && !may_end(name_of(*under_hand_), report)) {
      ADD_FAILURE() << name_of(*under_hand_) << " ended the program with " << report
                    << inputs_of(*under_hand_);
    }
  }

  void check() {
    EXPECT_EQ(faults_, has_ended_ ? 1 : 0);
    EXPECT_EQ(desktop_->is_ending(), has_ended_);
    bool is_any_visible = false;
    bool is_any_modal = false;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->isVisible() && widget->windowType() == Qt::Window) {
        EXPECT_EQ(desktop_->find(name_of(*widget)), widget) << name_of(*widget);
        is_any_visible = true;
        is_any_modal = is_any_modal || widget->isModal();
      }
    }
    EXPECT_FALSE(has_ended_ && is_any_visible);
    EXPECT_EQ(is_any_modal, QApplication::activeModalWidget() != nullptr);
    const QWidget* focused = QApplication::focusWidget();
    EXPECT_TRUE(focused == nullptr || (focused->isVisible() && focused->isEnabled()))
        << name_of(*focused);
    if (!is_any_visible) {
      desktop_.reset();
    } else if (random_.one_in(100)) {
      check_layout();
    }
  }

  void check_layout() {
    const QWidget& window = any_window();
    // Beyond these some results are longer than any place kept for them.
    if (hold_numbers_between(0.1, 200, window)) {
      QApplication::processEvents();
      std::vector<std::string> faults = test::layout_faults(window);
      // A value longer than its place in a drawing may come over a line or a neighbour.
      std::erase_if(faults, [](const std::string& fault) {
        return fault.find(" stands on a line of ") != std::string::npos ||
               fault.find(" overlaps ") != std::string::npos;
      });
      EXPECT_EQ(faults, std::vector<std::string>{}) << name_of(window) << inputs_of(window);
    }
  }

  Random random_;
  std::optional<ui::Desktop> desktop_;
  QPointer<QWidget> under_hand_;
  bool has_ended_ = false;
  int faults_ = 0;
  int events_ = 0;
  std::deque<std::string> last_actions_;
};

int number_from_environment(const char* variable, int otherwise) {
  bool is_number = false;
  const int number = qEnvironmentVariableIntValue(variable, &is_number);
  return is_number ? number : otherwise;
}

// Sessions take turns, so that these can run beside each other.
constexpr int shards = 4;
class MonkeyTest : public ::testing::TestWithParam<int> {};

TEST_P(MonkeyTest, BreaksNothing) {
  const int first_seed = number_from_environment("ETERLAB_MONKEY_SEED", 1);
  const int events = number_from_environment("ETERLAB_MONKEY_EVENTS", MONKEY_EVENTS);
  const int sessions = (events + Monkey::events_of_a_session - 1) / Monkey::events_of_a_session;
  for (int session = GetParam(); session < sessions && !HasFailure(); session += shards) {
    const int seed = first_seed + session;
    std::cout << "seed " << seed << std::endl;
    Monkey monkey{static_cast<std::uint64_t>(seed)};
    monkey.play();
    if (HasFailure()) {
      for (const std::string& action : monkey.last_actions()) {
        std::cout << "  " << action << '\n';
      }
      std::cout << "ETERLAB_MONKEY_SEED=" << seed << '\n';
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Shard, MonkeyTest, ::testing::Range(0, shards));

}  // namespace
}  // namespace eterlab
