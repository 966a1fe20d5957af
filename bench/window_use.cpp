#include "window_use.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTimer>
#include <utility>

#include "ui/desktop.h"
#include "ui/registry.h"
#include "ui/text.h"
#include "ui/window.h"

namespace eterlab::bench {

namespace {

/// Answers message boxes, which would wait for a user.
class BoxAnswerer final : public QObject {
 public:
  BoxAnswerer() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (box != nullptr && event->type() == QEvent::Show) {
      QTimer::singleShot(0, box, &QDialog::accept);
    }
    return false;
  }
};

ui::Window* find(std::string_view window) { return ui::Desktop::instance().find(window); }

QWidget* bare_widget_like(const QWidget& widget, Texts texts) {
  const QString text = texts == Texts::same ? widget.property("text").toString() : QString{};
  if (const auto* label = qobject_cast<const QLabel*>(&widget); label != nullptr) {
    auto* bare = new QLabel{text};
    bare->setWordWrap(label->wordWrap());
    return bare;
  }
  if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
    return new QLineEdit{text};
  }
  if (qobject_cast<const QPushButton*>(&widget) != nullptr) {
    return new QPushButton{text};
  }
  if (qobject_cast<const QRadioButton*>(&widget) != nullptr) {
    return new QRadioButton{text};
  }
  if (const auto* list = qobject_cast<const QComboBox*>(&widget); list != nullptr) {
    auto* bare = new QComboBox;
    for (int entry = 0; texts == Texts::same && entry < list->count(); ++entry) {
      bare->addItem(list->itemText(entry));
    }
    return bare;
  }
  if (const auto* table = qobject_cast<const QTableWidget*>(&widget); table != nullptr) {
    auto* bare = new QTableWidget{table->rowCount(), table->columnCount()};
    for (int cell = 0; texts == Texts::same && cell < bare->rowCount() * bare->columnCount();
         ++cell) {
      const int row = cell / bare->columnCount();
      const int column = cell % bare->columnCount();
      const QTableWidgetItem* item = table->item(row, column);
      bare->setItem(row, column, new QTableWidgetItem{item == nullptr ? "" : item->text()});
    }
    return bare;
  }
  if (const auto* list = qobject_cast<const QListWidget*>(&widget); list != nullptr) {
    auto* bare = new QListWidget;
    for (int row = 0; texts == Texts::same && row < list->count(); ++row) {
      bare->addItem(list->item(row)->text());
    }
    return bare;
  }
  if (qobject_cast<const QGroupBox*>(&widget) != nullptr) {
    return new QGroupBox;
  }
  return new QWidget;
}

void press(QWidget& widget, Qt::Key key, const QString& text = {}) {
  QKeyEvent down{QEvent::KeyPress, key, Qt::NoModifier, text};
  QCoreApplication::sendEvent(&widget, &down);
  QKeyEvent up{QEvent::KeyRelease, key, Qt::NoModifier, text};
  QCoreApplication::sendEvent(&widget, &up);
}

void type_digit(QLineEdit& box) { press(box, Qt::Key_1, "1"); }

QMap<QString, QString> label_texts(const QWidget& window) {
  QMap<QString, QString> texts;
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    texts[label->objectName()] = label->text();
  }
  return texts;
}

/// Whether a digit typed into the box writes a result. Results that only go are no results.
bool is_live(const QWidget& window, QLineEdit& box) {
  const auto before = label_texts(window);
  type_digit(box);
  const auto after = label_texts(window);
  for (auto label = after.begin(); label != after.end(); ++label) {
    if (!label.value().isEmpty() && label.value() != before[label.key()]) {
      return true;
    }
  }
  return false;
}

QWidget& open_with_example(std::string_view window) {
  QWidget& opened = open(window);
  find(window)->show_example();
  settle();
  return opened;
}

}  // namespace

void settle() {
  // A text that grows inside a frame moves first the frame's layout, then the window's.
  for (int pass = 0; pass < 3; ++pass) {
    QApplication::processEvents();
  }
}

QWidget& open(std::string_view window) {
  ui::Desktop::instance().show(window);
  settle();
  return *find(window);
}

void close_all() {
  for (const std::string& name : ui::registry::names()) {
    if (ui::Window* window = find(name); window != nullptr) {
      window->close();
    }
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::unique_ptr<QListWidget> open_bare_list(const QListWidget& model) {
  auto list = std::make_unique<QListWidget>();
  for (int row = 0; row < model.count(); ++row) {
    list->addItem(model.item(row)->text());
  }
  list->resize(model.size());
  list->show();
  list->setFocus();
  settle();
  return list;
}

void go_down_and_back(QListWidget& list) {
  press(list, Qt::Key_Down);
  settle();
  press(list, Qt::Key_Up);
  settle();
}

std::vector<const QWidget*> open_windows() {
  std::vector<const QWidget*> windows;
  for (const std::string& name : ui::registry::names()) {
    if (const ui::Window* window = find(name); window != nullptr) {
      windows.push_back(window);
    }
  }
  return windows;
}

BareWindows open_bare(const std::vector<const QWidget*>& models, Texts texts) {
  BareWindows windows;
  for (const QWidget* model : models) {
    auto bare = std::make_unique<QWidget>();
    auto* column = new QVBoxLayout{bare.get()};
    for (const QWidget* widget : model->findChildren<QWidget*>()) {
      column->addWidget(bare_widget_like(*widget, texts));
    }
    bare->show();
    windows.push_back(std::move(bare));
  }
  settle();
  return windows;
}

std::vector<LiveBox> live_boxes() {
  const BoxAnswerer answerer;
  std::vector<LiveBox> live;
  for (const std::string& name : ui::registry::names()) {
    // Each box is tried on a window of its own: what is typed into one may move the others.
    QStringList boxes;
    for (const QLineEdit* box : open_with_example(name).findChildren<QLineEdit*>()) {
      if (box->isVisible() && box->isEnabled() && !box->isReadOnly()) {
        boxes.append(box->objectName());
      }
    }
    close_all();
    for (const QString& box : boxes) {
      QWidget& window = open_with_example(name);
      if (is_live(window, *window.findChild<QLineEdit*>(box))) {
        live.push_back({name, ui::from_qt(box)});
      }
      close_all();
    }
  }
  return live;
}

QLineEdit& open_example(const LiveBox& live) {
  auto* box = open_with_example(live.window).findChild<QLineEdit*>(ui::to_qt(live.box));
  box->setFocus();
  return *box;
}

std::unique_ptr<QLineEdit> open_bare_box() {
  auto box = std::make_unique<QLineEdit>("1.5");
  box->show();
  box->setFocus();
  settle();
  return box;
}

void type_and_take_back(QLineEdit& box) {
  type_digit(box);
  press(box, Qt::Key_Backspace);
}

void type_and_take_back_in_sight(QLineEdit& box) {
  type_digit(box);
  settle();
  press(box, Qt::Key_Backspace);
  settle();
}

}  // namespace eterlab::bench
