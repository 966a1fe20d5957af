#include "ui/row_list.h"

#include <QHashFunctions>
#include <QPaintEngine>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QStringList>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>

#include "ui/desktop.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

namespace {

/// Keeps the pictures of rows: to shape their letters anew takes most of a key that changes all of
/// them.
class RowPainter final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const double scale = painter->deviceTransform().m11();
    const bool is_screen = painter->paintEngine()->type() == QPaintEngine::Raster;
    if (!is_screen || scale != std::floor(scale)) {  // a picture would be blurred
      QStyledItemDelegate::paint(painter, option, index);
      return;
    }
    const QString key = key_of(option, index, scale);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
      picture = picture_of(option, index, scale);
      QPixmapCache::insert(key, picture);
    }
    painter->drawPixmap(option.rect.topLeft(), picture);
  }

 private:
  [[nodiscard]] QPixmap picture_of(QStyleOptionViewItem option, const QModelIndex& index,
                                   double scale) const {
    QPixmap picture{option.rect.size() * scale};
    picture.setDevicePixelRatio(scale);
    picture.fill(option.palette.color(QPalette::Base));
    option.rect.moveTo(0, 0);
    QPainter painter{&picture};
    QStyledItemDelegate::paint(&painter, option, index);
    return picture;
  }

  static QString key_of(const QStyleOptionViewItem& option, const QModelIndex& index,
                        double scale) {
    const size_t looks =
        qHashMulti(0, static_cast<int>(option.state), option.rect.width(), option.rect.height(),
                   option.palette.cacheKey(), option.font, scale);
    return index.data().toString() + QString::number(looks);
  }
};

}  // namespace

RowList::RowList(Parent parent, std::string_view name) : QListWidget{parent.widget()} {
  set_up(*this, name, {});
  setItemDelegate(new RowPainter{this});
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

RowList::RowList(Parent parent, std::string_view name, Label& prompt, int rows_in_sight,
                 int width_in_characters)
    : RowList{parent, name} {
  rows_in_sight_ = rows_in_sight;
  characters_ = width_in_characters;
  prompt.set_prompt_of(*this);
}

RowList::~RowList() = default;

void RowList::show_rows(const std::vector<std::string>& rows) {
  QStringList texts;
  for (const std::string& row : rows) {
    texts += to_qt(row);
  }
  clear();
  addItems(texts);
  setCurrentRow(rows.empty() ? -1 : 0);
}

void RowList::step(int rows) {
  if (count() > 0) {
    setCurrentRow(std::clamp(currentRow() + rows, 0, count() - 1));
  }
}

void RowList::on_current_change(const Handler& handler) {
  connect(this, &QListWidget::currentRowChanged, this,
          [handler] { Desktop::instance().run(handler); });
}

void RowList::on_click(const Handler& handler) {
  connect(this, &QListWidget::itemClicked, this, [handler] { Desktop::instance().run(handler); });
}

void RowList::on_double_click(const Handler& handler) {
  connect(this, &QListWidget::itemDoubleClicked, this,
          [handler] { Desktop::instance().run(handler); });
}

QSize RowList::sizeHint() const {
  return {theme::characters(characters_), height_of(rows_in_sight_)};
}

int RowList::height_of(int rows) const {
  const int row = count() > 0 ? sizeHintForRow(0) : fontMetrics().height() + 2;
  return rows * row + 2 * frameWidth();
}

}  // namespace eterlab::ui
