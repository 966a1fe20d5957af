#include "ui/desktop.h"

#include <QApplication>
#include <cstdlib>
#include <utility>

#include "ui/message_box.h"
#include "ui/registry.h"
#include "ui/window.h"

namespace eterlab::ui {

namespace {

Desktop* the_desktop = nullptr;

const char* italian_name(ArithmeticFault::Kind kind) {
  switch (kind) {
    case ArithmeticFault::Kind::division_by_zero:
      return "DIVISIONE PER ZERO";
    case ArithmeticFault::Kind::overflow:
      return "NUMERO TROPPO GRANDE";
    case ArithmeticFault::Kind::invalid_argument:
      break;
  }
  return "ARGOMENTO NON VALIDO";
}

}  // namespace

void Desktop::DestroyLater::operator()(Window* window) const {
  window->hide();
  window->deleteLater();
}

Desktop::Desktop(std::function<void()> end_program) : end_program_{std::move(end_program)} {
  if (!end_program_) {
    end_program_ = [] { QCoreApplication::exit(EXIT_FAILURE); };
  }
  the_desktop = this;
}

Desktop::~Desktop() {
  close_all();
  // The event loop is over: what it was to destroy is destroyed here.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  the_desktop = nullptr;
}

Desktop& Desktop::instance() {
  Q_ASSERT(the_desktop != nullptr);
  return *the_desktop;
}

void Desktop::show(std::string_view name, Showing showing) {
  Window& window = load(name);
  if (!window.isVisible()) {
    window.setWindowModality(showing == Showing::modal ? Qt::ApplicationModal : Qt::NonModal);
  }
  window.bring_forward();
}

void Desktop::show_in_reach(std::string_view name) {
  const QWidget* modal = QApplication::activeModalWidget();
  Window* open = find(name);
  if (open != nullptr && modal != nullptr && !open->isModal()) {
    open->hide();  // it is shown again in front of the one that blocks it
  }
  show(name, modal == nullptr ? Showing::modeless : Showing::modal);
}

Window& Desktop::load(std::string_view name) {
  if (Window* open = find(name); open != nullptr) {
    return *open;
  }
  Q_ASSERT(registry::contains(name));
  Window& window = *registry::create(name).release();
  windows_.emplace(name, &window);
  window.load();
  return window;
}

void Desktop::place(std::string_view name, TwipsPoint corner) { load(name).move(corner.pixels()); }

Window* Desktop::find(std::string_view name) const {
  const auto found = windows_.find(name);
  return found == windows_.end() ? nullptr : found->second.get();
}

void Desktop::run(const std::function<void()>& handler) {
  if (is_ending_) {
    return;
  }
  try {
    handler();
  } catch (const ArithmeticFault& fault) {
    end_with(fault);
  }
}

void Desktop::end_with(const ArithmeticFault& fault) {
  message_box(nullptr, Icon::critical, "ERRORE DI CALCOLO",
              std::string{italian_name(fault.kind())} + ". IL PROGRAMMA VIENE CHIUSO.");
  is_ending_ = true;
  close_all();
  end_program_();
}

void Desktop::forget(Window& window) {
  for (auto entry = windows_.begin(); entry != windows_.end(); ++entry) {
    if (entry->second.get() == &window) {
      windows_.erase(entry);
      return;
    }
  }
}

void Desktop::close_all() { windows_.clear(); }

}  // namespace eterlab::ui
