#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

// The least that a Qt program can be: an empty main window of the size of ours. Given "text", it
// has a menu with one entry and a word, for which the toolkit must find and load a font.
int main(int argc, char* argv[]) {
  const QApplication application{argc, argv};
  QMainWindow window;
  window.resize(567, 394);
  if (QApplication::arguments().contains("text")) {
    window.menuBar()->addMenu("Volt")->addAction("Decibel");
    window.setCentralWidget(new QLabel{"ETERLAB"});
  }
  window.show();
  return QApplication::exec();
}
