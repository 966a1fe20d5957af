#include "ui/menu_bar.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QShortcut>
#include <algorithm>

#include "ui/desktop.h"
#include "ui/text.h"

namespace eterlab::ui {

namespace {

QAction* named_action(QAction* action, std::string_view name) {
  action->setObjectName(to_qt(name));
  action->setMenuRole(QAction::NoRole);
  return action;
}

QString folded(const QString& caption) { return caption.trimmed().toCaseFolded(); }

QAction* active_action(const QWidget& menu) {
  const auto* bar = qobject_cast<const QMenuBar*>(&menu);
  return bar != nullptr ? bar->activeAction() : static_cast<const QMenu&>(menu).activeAction();
}

/// The place of the first entry from this one on, round to the one before, that begins so; -1
/// without one.
qsizetype first_beginning(const QList<QAction*>& entries, const QString& letters, qsizetype from) {
  for (qsizetype i = 0; i < entries.size(); ++i) {
    const qsizetype place = (from + i) % entries.size();
    if (folded(entries[place]->text()).startsWith(letters)) {
      return place;
    }
  }
  return -1;
}

}  // namespace

MenuBar::MenuBar(QWidget& window) : QMenuBar{&window} {
  setNativeMenuBar(false);
  window.layout()->setMenuBar(this);
  installEventFilter(this);
  auto* shortcut = new QShortcut{Qt::Key_F10, &window};
  connect(shortcut, &QShortcut::activated, this, [this] { setActiveAction(actions().first()); });
}

QWidget* MenuBar::container(std::string_view name) {
  if (name.empty()) {
    return this;
  }
  const auto menu = menus_.find(name);
  Q_ASSERT(menu != menus_.end());
  return menu->second;
}

void MenuBar::add_submenu(std::string_view name, std::string_view caption,
                          std::string_view parent) {
  QWidget* above = container(parent);
  auto* menu = new QMenu{to_qt(caption), above};
  menu->setObjectName(to_qt(name));
  menu->installEventFilter(this);
  menus_.emplace(name, menu);
  above->addAction(named_action(menu->menuAction(), name));
}

void MenuBar::add_entry(std::string_view name, std::string_view caption, std::string_view parent,
                        const Handler& chosen) {
  QWidget* above = container(parent);
  auto* action = named_action(new QAction{to_qt(caption), above}, name);
  above->addAction(action);
  connect(action, &QAction::triggered, this, [chosen] { Desktop::instance().run(chosen); });
}

bool MenuBar::eventFilter(QObject* watched, QEvent* event) {
  const bool is_menu = watched == this || qobject_cast<QMenu*>(watched) != nullptr;
  if (!is_menu) {
    return QMenuBar::eventFilter(watched, event);  // of the window, which the toolkit watches too
  }
  if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
    typed_.clear();
  } else if (event->type() == QEvent::KeyPress && !is_stepping_) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool has_modifier =
        (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    auto& menu = static_cast<QWidget&>(*watched);
    const QString text = key.text().toCaseFolded();
    // A space chooses, but where a caption that is being typed goes on with one.
    const bool is_letter =
        text.size() == 1 && text[0].isPrint() &&
        (!text[0].isSpace() ||
         (!typed_.isEmpty() && first_beginning(menu.actions(), typed_ + text, 0) >= 0));
    if (!has_modifier && is_letter) {
      go_by_letter(menu, text[0]);
      return true;
    }
    typed_.clear();
  }
  return QMenuBar::eventFilter(watched, event);
}

void MenuBar::go_by_letter(QWidget& menu, QChar letter) {
  const QList<QAction*> entries = menu.actions();
  const qsizetype current = entries.indexOf(active_action(menu));
  const bool is_same_again = !typed_.isEmpty() && typed_ == QString{typed_.size(), letter};
  typed_ += letter;
  qsizetype target = is_same_again ? first_beginning(entries, QString{letter}, current + 1)
                                   : first_beginning(entries, typed_, 0);
  if (target < 0 && !is_same_again) {
    typed_ = letter;
    target = first_beginning(entries, typed_, 0);
  }
  if (target < 0) {
    typed_.clear();
    return;
  }
  // By the keys that go there: to make an entry the active one would open its menu.
  const int key = &menu == this ? Qt::Key_Right : Qt::Key_Down;
  is_stepping_ = true;
  const qsizetype count = entries.size();
  for (qsizetype steps = current < 0 ? target + 1 : (target - current + count) % count; steps > 0;
       --steps) {
    QKeyEvent step{QEvent::KeyPress, key, Qt::NoModifier};
    QApplication::sendEvent(&menu, &step);
  }
  is_stepping_ = false;
}

void MenuBar::condense_to(int width) {
  constexpr int narrowest_stretch = 75;
  // The condensed letters of a family may be some per cent wider than its name for them says.
  constexpr int allowance = 2;
  QFont condensed = font();
  for (int stretch = QFont::Unstretched;
       sizeHint().width() > width && stretch > narrowest_stretch;) {
    int letters = 0;
    for (const QAction* action : actions()) {
      letters += fontMetrics().horizontalAdvance(action->text());
    }
    const int room = letters + width - sizeHint().width();
    stretch = std::max(stretch * room / std::max(letters, 1) - allowance, narrowest_stretch);
    condensed.setStretch(stretch);
    setFont(condensed);
  }
}

}  // namespace eterlab::ui
