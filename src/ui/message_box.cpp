#include "ui/message_box.h"

#include <QMessageBox>

#include "ui/desktop.h"
#include "ui/text.h"

namespace eterlab::ui {

void message_box(QWidget* parent, Icon icon, std::string_view title, std::string_view text) {
  if (Desktop::instance().is_ending()) {
    return;
  }
  QMessageBox box{parent};
  box.setWindowModality(Qt::ApplicationModal);
  box.setIcon(icon == Icon::critical ? QMessageBox::Critical : QMessageBox::Warning);
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(to_qt(title));
  box.setText(to_qt(text));
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}

}  // namespace eterlab::ui
