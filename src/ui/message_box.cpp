#include "ui/message_box.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>

#include "ui/desktop.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

namespace {

/// A box is as wide as its text asks for; a longer title would be cut.
void make_room_for_title(QMessageBox& box) {
  constexpr int characters_of_title_buttons = 24;
  QFont title = QApplication::font();
  title.setBold(true);
  const int width = QFontMetrics{title}.horizontalAdvance(box.windowTitle()) +
                    theme::characters(characters_of_title_buttons);
  auto& grid = *qobject_cast<QGridLayout*>(box.layout());
  grid.addItem(new QSpacerItem{width, 0}, grid.rowCount(), 0, 1, grid.columnCount());
}

}  // namespace

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
  make_room_for_title(box);
  box.exec();
}

}  // namespace eterlab::ui
