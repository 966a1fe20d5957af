#include "ui/swatch.h"

#include <QPainter>
#include <algorithm>
#include <iterator>

#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

namespace {

struct NamedColour {
  const char* name;
  QRgb colour;
};

constexpr NamedColour colour_code[] = {
    {"NERO", 0xff202020},   {"MARRONE", 0xff7b4a1e}, {"ROSSO", 0xffd32626}, {"ARANCIO", 0xfff58a1f},
    {"GIALLO", 0xfff4d92a}, {"VERDE", 0xff2e9e43},   {"BLU", 0xff2459c7},   {"VIOLA", 0xff8a3fb5},
    {"GRIGIO", 0xff8c8c8c}, {"BIANCO", 0xfffafafa},
};

}  // namespace

Swatch::Swatch(Parent parent, std::string_view name, std::string_view colours)
    : QWidget{parent.widget()} {
  set_up(*this, name, {});
  std::ranges::transform(
      to_qt(colours).split(" + "), std::back_inserter(bands_), [](const QString& colour) -> QColor {
        const auto* const found = std::ranges::find(colour_code, colour, &NamedColour::name);
        Q_ASSERT(found != std::end(colour_code));
        return found->colour;
      });
  setFixedSize(sizeHint());
}

Swatch::~Swatch() = default;

QSize Swatch::sizeHint() const {
  const int line = theme::spacing();
  return {line * 2, line * 3 / 4};
}

void Swatch::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter{this};
  const int count = static_cast<int>(bands_.size());
  // Bands apart even where they are of one colour; a dark one shows on a dark window, too.
  painter.setPen(palette().color(QPalette::PlaceholderText));
  for (int band = 0; band < count; ++band) {
    const int left = width() * band / count;
    const int right = width() * (band + 1) / count;
    painter.setBrush(bands_[static_cast<std::size_t>(band)]);
    painter.drawRect(left, 0, right - left - 1, height() - 1);
  }
}

}  // namespace eterlab::ui
