#include "ui/row_list.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QWidget>

namespace eterlab::test {
namespace {

class Rows {
 public:
  explicit Rows(const std::vector<std::string>& texts) {
    list_.resize(200, 120);
    list_.show_rows(texts);
  }
  [[nodiscard]] ui::RowList& list() { return list_; }
  [[nodiscard]] QImage picture() { return list_.grab().toImage(); }

 private:
  QWidget window_;
  ui::RowList list_{window_, "list"};
};

QPalette other_colours() {
  QPalette colours;
  colours.setColor(QPalette::Base, Qt::darkBlue);
  colours.setColor(QPalette::Text, Qt::yellow);
  return colours;
}

QFont larger(QFont font) {
  font.setPointSizeF(font.pointSizeF() * 2);
  return font;
}

// Pictures of rows that were seen before belong to their looks of then.
TEST(RowList, ShowsTheRowsOfNow) {
  const std::vector<std::string> texts{"uno", "due", "tre"};
  Rows rows{texts};
  const QImage first = rows.picture();
  EXPECT_EQ(rows.picture(), first);

  rows.list().step(1);
  const QImage second_chosen = rows.picture();
  EXPECT_NE(second_chosen, first);
  rows.list().step(-1);
  EXPECT_EQ(rows.picture(), first);

  rows.list().show_rows({"quattro", "due", "tre"});
  EXPECT_NE(rows.picture(), first);
  rows.list().show_rows(texts);
  EXPECT_EQ(rows.picture(), first);

  rows.list().setPalette(other_colours());
  const QImage coloured = rows.picture();
  EXPECT_NE(coloured, first);
  EXPECT_EQ(coloured.pixelColor(coloured.width() / 2, coloured.height() - 8), Qt::darkBlue);
  rows.list().setPalette({});
  rows.list().setFont(larger(rows.list().font()));
  EXPECT_NE(rows.picture(), first);
  rows.list().setFont({});
  EXPECT_EQ(rows.picture(), first);
}

}  // namespace
}  // namespace eterlab::test
