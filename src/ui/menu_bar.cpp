#include "ui/menu_bar.h"

#include <QAction>
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

}  // namespace

MenuBar::MenuBar(QWidget& window) : QMenuBar{&window} {
  setNativeMenuBar(false);
  window.layout()->setMenuBar(this);
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

void MenuBar::condense_to(int width) {
  constexpr int narrowest_stretch = 75;
  QFont condensed = font();
  for (int stretch = QFont::Unstretched;
       sizeHint().width() > width && stretch > narrowest_stretch;) {
    const int proportional = stretch * width / sizeHint().width();
    stretch = std::max(std::min(proportional, stretch - 1), narrowest_stretch);
    condensed.setStretch(stretch);
    setFont(condensed);
  }
}

}  // namespace eterlab::ui
