#include "circuits/totals_window.h"

#include <algorithm>
#include <optional>

#include "circuits/totals.h"
#include "common/number_text.h"

namespace eterlab::circuits {

namespace {

constexpr int columns = 90;
constexpr int rows = 19;
constexpr std::size_t least = 2;
constexpr double slot = 14.5;  // of one part and its value

}  // namespace

TotalsWindow::TotalsWindow(const TotalsKind& kind, std::initializer_list<std::string_view> units,
                           std::initializer_list<std::string_view> prompts)
    : Calculator{kind.window, kind.title, Computes::as_typed},
      kind_{kind},
      Option1{this, "Option1", units},
      boxes{this, kind.box, prompts},
      lblserie{this, "lblserie"},
      lblparallelo{this, "lblparallelo"},
      drawing{this, "drawing", columns, rows},
      lblvaloreserie{drawing, "lblvaloreserie", boxes.size()},
      lblvaloreparallelo{drawing, "lblvaloreparallelo", boxes.size()} {
  Option1.preset(0);
  lay_out(ui::column(ui::across(Option1),
                     ui::row(ui::form(boxes[0], boxes[1]), ui::form(boxes[2], boxes[3]),
                             ui::form(boxes[4], boxes[5])),
                     drawing, lblserie, lblparallelo));
}

void TotalsWindow::show_example() {
  boxes[0] = "100";
  boxes[1] = "220";
}

void TotalsWindow::compute() {
  std::vector<int> drawn;
  std::vector<Real> values;
  for (int index = 0; index < boxes.size(); ++index) {
    if (const std::optional<Real> value = boxes[index].usable(); value) {
      drawn.push_back(index);
      values.push_back(*value);
      lblvaloreserie[index] = text_of(*value);
      lblvaloreparallelo[index] = text_of(*value);
    }
  }
  for (int index = 0; drawn.size() < least; ++index) {  // what to type is to be seen
    if (!boxes[index].usable()) {
      drawn.push_back(index);
    }
  }
  std::ranges::sort(drawn);
  if (drawn != drawn_) {
    draw(drawn);
    drawn_ = drawn;
  }
  if (values.size() < least) {
    return;
  }
  const Real sum = sum_of(values);
  const Real parallel = parallel_of(values);
  lblserie = "IN SERIE = " + text_of(kind_.add_in_series ? sum : parallel);
  lblparallelo = "IN PARALLELO = " + text_of(kind_.add_in_series ? parallel : sum);
}

void TotalsWindow::draw(const std::vector<int>& indices) {
  constexpr double series_y = 4;
  constexpr double top = 9.5;
  constexpr double bottom = 17;
  constexpr double lead = 2;  // to the first part in parallel
  const auto count = static_cast<double>(indices.size());
  const double left = (columns - count * slot) / 2;
  const auto name = [this](int index) {
    return std::string{kind_.letter} + std::to_string(index + 1);
  };
  drawing.clear();
  double x = left;
  for (const int index : indices) {
    (drawing.*kind_.part)({x, series_y}, {x + slot, series_y})
        .named(name(index), lblvaloreserie[index]);
    (drawing.*kind_.part)({x + lead, top}, {x + lead, bottom})
        .named_beside(name(index), lblvaloreparallelo[index], ui::Schematic::Side::right);
    for (const double y : {top, bottom}) {
      drawing.wire({{x, y}, {x + lead, y}});
      if (index != indices.back()) {
        drawing.junction({x + lead, y}).wire({{x + lead, y}, {x + slot, y}});
      }
    }
    x += slot;
  }
  drawing.terminal({left, series_y}).terminal({x, series_y});
  drawing.terminal({left, top}).terminal({left, bottom});
}

std::string TotalsWindow::text_of(Real value) const {
  return eng(value * kind_.factors[static_cast<std::size_t>(Option1.selected())], kind_.unit);
}

}  // namespace eterlab::circuits
