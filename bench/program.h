#pragma once

#include <QApplication>

#include "ui/desktop.h"

namespace eterlab::bench {

/// The program as src/main.cpp starts it, but in Italian settings everywhere and without its main
/// window.
class Program {
 public:
  Program(int& argc, char** argv);

 private:
  QApplication application_;
  ui::Desktop desktop_;
};

}  // namespace eterlab::bench
