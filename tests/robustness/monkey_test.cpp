#include <gtest/gtest.h>
#include <qpa/qwindowsysteminterface.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDebug>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <iostream>

#include "common/leading_number.h"
#include "shell/menu_catalogue.h"
#include "support/layout_faults.h"
#include "support/random.h"
#include "support/window_test.h"
#include "ui/button.h"
#include "ui/system_region.h"
#include "ui/text.h"

// A monkey at the keyboard and the mouse. Whatever it does, the program shows results and message
// boxes, and ends only as it is meant to: with its last window, or by a fault of the arithmetic
// that the design leaves unguarded.
//
//   ETERLAB_MONKEY_EVENTS  how many keys and clicks in all, instead of a share for each window
//   ETERLAB_MONKEY_SEED    the first seed; each seed is one session of some thousand events
//   ETERLAB_MONKEY_TRACE   set to anything: every action is printed before it is done
//
// A seed that fails is printed with all that was done. It replays with
//   ETERLAB_MONKEY_SEED=<seed> ETERLAB_MONKEY_EVENTS=1 robustness_tests --gtest_filter='*Monkey*'

namespace eterlab::test {
namespace {

using ui::from_qt;
using ui::to_qt;

constexpr std::string_view division = "DIVISIONE PER ZERO";
constexpr std::string_view overflow = "NUMERO TROPPO GRANDE";
constexpr std::string_view invalid = "ARGOMENTO NON VALIDO";

/// The windows whose checks let numbers of everyday size end the program: how, and by what.
constexpr std::string_view unguarded[][3] = {
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

bool may_end(const std::string& window, const std::string& report) {
  return std::ranges::any_of(
      unguarded, [&](const auto& row) { return row[0] == window && report.starts_with(row[1]); });
}

std::string quoted(const QString& text) { return from_qt(QDebug::toString(text)); }

/// Beyond these, products and powers may leave the range of a double in every window: above it, or
/// below it, which makes them zero.
bool holds_usual_sizes(const QWidget& window) {
  return std::ranges::all_of(window.findChildren<QLineEdit*>(), [&](const QLineEdit* box) {
    try {
      const double size = std::abs(leading_number(from_qt(box->text())).value());
      return size == 0 || (size >= 1e-9 && size <= 1e9);
    } catch (const ArithmeticFault&) {
      return false;
    }
  });
}

/// In any of the texts that a window shows.
std::ptrdiff_t most_digits(const QWidget& window) {
  std::ptrdiff_t most = 0;
  for (const QLabel* label : visible<QLabel>(window)) {
    const QString text = label->text();
    most =
        std::max(most, std::ranges::count_if(text, [](QChar letter) { return letter.isDigit(); }));
  }
  return most;
}

std::string inputs_of(const QWidget& window) {
  std::string inputs = name_of(window);
  for (const QLineEdit* box : window.findChildren<QLineEdit*>()) {
    inputs += ' ' + name_of(*box) + '=' + quoted(box->text());
  }
  return inputs;
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
    return to_qt(garbage(random)).repeated(1000);
  }
  switch (random.below(10)) {
    case 0:
      return to_qt(garbage(random));
    case 1:
      return any_of_unicode(random);
    case 2:
      return to_qt(wild_number(random));
    case 3:
      return to_qt(ordinary_number(random) + garbage(random));
    default:
      return to_qt(ordinary_number(random));
  }
}

/// A key that is held down while another one is pressed.
struct Held {
  Qt::KeyboardModifier modifier;
  int key;
};
constexpr Held none{Qt::NoModifier, 0};
constexpr Held shift{Qt::ShiftModifier, Qt::Key_Shift};
constexpr Held control{Qt::ControlModifier, Qt::Key_Control};
constexpr Held alt{Qt::AltModifier, Qt::Key_Alt};
constexpr Held keypad{Qt::KeypadModifier, 0};

// Sessions take turns, so that these can run beside each other.
constexpr int shards = 4;

class Monkey : public WindowTest, public ::testing::WithParamInterface<int> {
 protected:
  static constexpr int events_of_a_session = 2500;

  Monkey() {
    answer_boxes([this](QMessageBox& box) { answer(box); });
  }

  void play(int seed) {
    std::cout << "seed " << seed << std::endl;
    random_ = Random{static_cast<std::uint64_t>(seed)};
    constexpr const char* countries[] = {"it_IT", "en_US", "de_CH", "fr_FR", "hi_IN", "ar_EG"};
    const char* country = random_.any_of(countries);
    set_regional_settings(ui::regional_settings_of(QLocale{country}));
    QApplication::clipboard()->clear();
    done_ = std::string{"in "} + country + '\n';
    start_anew();
    for (events_ = 0; events_ < events_of_a_session && !HasFailure();) {
      act();
      settle();
      check();
    }
    EXPECT_FALSE(HasFailure()) << done_ << "ETERLAB_MONKEY_SEED=" << seed;
  }

 private:
  void note(const std::string& action) {
    static const bool is_traced = qEnvironmentVariableIsSet("ETERLAB_MONKEY_TRACE");
    if (is_traced) {
      std::cout << action << std::endl;
    }
    done_ += action + '\n';
  }

  // What the monkey does

  void act() {
    if (const QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) {
      return use_popup(*popup);
    }
    QWidget& window = any_window();
    under_hand_ = &window;
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != &window) {
      return click_control(window);  // which the modal window blocks
    }
    window.activateWindow();  // as the user's desktop does
    QApplication::processEvents();
    switch (random_.below(8)) {
      case 0:
        return fill_in(window);
      case 1:
        return type_somewhere(window);
      case 2:
      case 3:
        return click_control(window);
      case 4:
        return press_any_key();
      case 5:
        return random_.one_in(3) ? choose_menu_entry() : press_any_key();
      case 6:
        return use_mouse_anywhere(window);
      default:
        return random_.one_in(5) ? close_window(window) : choose_menu_entry();
    }
  }

  QWidget& any_window() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && !random_.one_in(8)) {
      return *modal;
    }
    Texts open = windows();
    std::erase_if(open, [this](const std::string& name) { return !is_open(name); });
    return *desktop().find(random_.any_of(open));
  }

  QPoint any_point(const QRect& area) {
    return area.topLeft() + QPoint{random_.below(area.width()), random_.below(area.height())};
  }

  // Each event goes to the window that has the focus by then: what is pressed may close windows.
  void press(int key, const Held& held = none, const QString& text = {}) {
    ++events_;
    const auto send = [](bool is_pressed, int code, const Held& with, const QString& written) {
      if (QWindow* focused = QGuiApplication::focusWindow(); focused != nullptr && code != 0) {
        QTest::simulateEvent(focused, is_pressed, code, with.modifier, written, false);
      }
    };
    send(true, held.key, none, {});
    send(true, key, held, text);
    send(false, key, held, text);
    send(false, held.key, held, {});
  }

  void click(const QWidget& widget, QPoint place) {
    ++events_;
    const QWidget& window = *widget.window();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window, place));
  }

  void use_popup(const QWidget& popup) {
    constexpr int keys[] = {Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,
                            Qt::Key_Right, Qt::Key_Return, Qt::Key_Escape};
    note("popup");
    random_.one_in(2) ? click(popup, any_point(popup.rect())) : press(random_.any_of(keys));
  }

  void fill_in(const QWidget& window) {
    for (const QLineEdit* box : visible<QLineEdit>(window)) {
      if (!has_ended()) {
        type(*box, to_qt(ordinary_number(random_)));
      }
    }
    note("Enter");
    press(Qt::Key_Return);
  }

  void type_somewhere(const QWidget& window) {
    const auto boxes = visible<QLineEdit>(window);
    if (!boxes.empty()) {
      type(*random_.any_of(boxes), any_text(random_));
    }
  }

  void type(const QLineEdit& box, const QString& text) {
    note("type " + quoted(text.left(60)) + " in " + name_of(box));
    click(box, box.rect().center());
    if (!random_.one_in(4)) {
      press(Qt::Key_A, control);
    }
    constexpr int longest_typed = 20;
    if (text.size() > longest_typed) {
      QApplication::clipboard()->setText(text);
      return press(Qt::Key_V, control);
    }
    for (const QChar character : text) {
      if (!has_ended()) {
        press(Qt::Key_unknown, none, character);
      }
    }
  }

  void click_control(const QWidget& window) {
    const QWidget* target = random_.any_of(visible_controls(window));
    const bool closes = dynamic_cast<const ui::ExitButton*>(target) != nullptr ||
                        dynamic_cast<const ui::DoorButton*>(target) != nullptr;
    // The place of an overlong result may be outside the window.
    const QRect seen = target->visibleRegion().boundingRect();
    if (!seen.isEmpty() && (!closes || random_.one_in(4))) {
      note("click " + name_of(window) + "." + name_of(*target));
      click(*target, random_.one_in(2) ? seen.center() : any_point(seen));
    }
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
    constexpr Held modifiers[] = {none, none, none, shift, alt, control, control, keypad};
    const int key = random_.any_of(keys);
    const Held& held = random_.any_of(modifiers);
    const QKeyCombination pressed{held.modifier, static_cast<Qt::Key>(key)};
    note("press " + from_qt(QKeySequence{pressed}.toString()));
    const bool is_character = key <= Qt::Key_AsciiTilde && held.modifier != Qt::ControlModifier;
    press(key, held, is_character ? QString{QChar{key}} : QString{});
  }

  void use_mouse_anywhere(const QWidget& window) {
    note("mouse in " + name_of(window));
    ++events_;
    QWindow* handle = window.windowHandle();
    const QPoint place = any_point(window.rect());
    constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    switch (random_.below(4)) {
      case 0:
        return QTest::mouseDClick(handle, Qt::LeftButton, {}, place);
      case 1:
        QTest::mousePress(handle, Qt::LeftButton, {}, place);
        QTest::mouseMove(handle, any_point(window.rect()));
        return QTest::mouseRelease(handle, Qt::LeftButton, {}, any_point(window.rect()));
      case 2: {
        const QPoint notch{0, random_.one_in(2) ? 120 : -120};
        QWindowSystemInterface::handleWheelEvent(handle, place, window.mapToGlobal(place), {},
                                                 notch);
        return;
      }
      default:
        return QTest::mouseClick(handle, random_.any_of(buttons), {}, place);
    }
  }

  void close_window(QWidget& window) {
    note("close " + name_of(window));
    ++events_;
    window.close();
  }

  void choose_menu_entry() {
    if (!is_open("FRMETERLAB") || QApplication::activeModalWidget() != nullptr) {
      return;
    }
    const shell::MenuEntry* entry = nullptr;
    do {
      entry = &random_.any_of(shell::menu_catalogue());
    } while (entry->is_submenu());
    note("choose " + std::string{entry->name});
    ++events_;
    under_hand_ = &main_window().window();
    under_hand_->findChild<QAction*>(to_qt(entry->name))->trigger();
  }

  /// In one of the ways that users have.
  void answer(QMessageBox& box) {
    note("box " + quoted(box.windowTitle()) + ": " + quoted(box.text()));
    EXPECT_NE(box.windowTitle(), "");
    EXPECT_NE(box.text(), "");
    if (box.windowTitle() == "ERRORE DI CALCOLO") {
      judge(from_qt(box.text()));
    }
    switch (random_.below(3)) {
      case 0:
        return QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
      case 1:
        return QTest::keyClick(&box, Qt::Key_Return);
      default:
        box.close();
    }
  }

  // What must hold

  /// The program is about to end with this report: may it?
  void judge(const std::string& report) {
    const bool leaves_range = !holds_usual_sizes(*under_hand_) && !report.starts_with(invalid);
    EXPECT_TRUE(leaves_range || may_end(name_of(*under_hand_), report))
        << "ended with " << report << " by " << inputs_of(*under_hand_);
  }

  void check() {
    const auto faults = std::ranges::count_if(
        boxes(), [](const std::string& box) { return box.starts_with("! ERRORE DI CALCOLO: "); });
    EXPECT_EQ(faults, has_ended() ? 1 : 0);
    EXPECT_EQ(desktop().is_ending(), has_ended());
    bool is_any_visible = false;
    bool is_any_modal = false;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->isVisible() && widget->windowType() == Qt::Window) {
        EXPECT_EQ(desktop().find(name_of(*widget)), widget) << name_of(*widget);
        is_any_visible = true;
        is_any_modal = is_any_modal || widget->isModal();
      }
    }
    EXPECT_FALSE(has_ended() && is_any_visible);
    EXPECT_EQ(is_any_modal, QApplication::activeModalWidget() != nullptr);
    const QWidget* focused = QApplication::focusWidget();
    const bool is_menu_open = QApplication::activePopupWidget() != nullptr;  // it takes the keys
    EXPECT_TRUE(is_menu_open || focused == nullptr ||
                (focused->isVisible() && focused->isEnabled()))
        << name_of(*focused);
    if (!is_any_visible) {
      note("start");
      start_anew();
    } else if (random_.one_in(100)) {
      check_layout(any_window());
    }
  }

  static void check_layout(const QWidget& window) {
    // Longer than this, some numbers are longer than any place kept for them.
    constexpr int longest_number = 12;
    if (most_digits(window) <= longest_number) {
      Texts faults = layout_faults(window);
      // A value longer than its place in a drawing may come over a line or a neighbour.
      std::erase_if(faults, [](const std::string& fault) {
        return fault.find(" stands on a line of ") != std::string::npos ||
               fault.find(" overlaps ") != std::string::npos;
      });
      EXPECT_EQ(faults, Texts{}) << inputs_of(window);
    }
  }

  Random random_{0};
  QPointer<QWidget> under_hand_;
  int events_ = 0;
  std::string done_;
};

TEST_P(Monkey, BreaksNothing) {
  const int first_seed = qEnvironmentVariable("ETERLAB_MONKEY_SEED", "1").toInt();
  const qsizetype share = MONKEY_EVENTS_FOR_A_WINDOW * std::ssize(windows());
  const int events = qEnvironmentVariable("ETERLAB_MONKEY_EVENTS", QString::number(share)).toInt();
  for (int session = GetParam(); session * events_of_a_session < events && !HasFailure();
       session += shards) {
    play(first_seed + session);
  }
}

INSTANTIATE_TEST_SUITE_P(Shard, Monkey, ::testing::Range(0, shards));

}  // namespace
}  // namespace eterlab::test
