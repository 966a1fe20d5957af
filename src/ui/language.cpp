#include "ui/language.h"

#include <QApplication>
#include <QTranslator>

namespace eterlab::ui {

void speak_italian() {
  auto* italian = new QTranslator{QApplication::instance()};
  if (italian->load(":/language/qtbase_it.qm")) {
    QApplication::installTranslator(italian);
  }
}

}  // namespace eterlab::ui
