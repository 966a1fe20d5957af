#include "circuits/circuit_drawing.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <string>
#include <utility>

#include "common/number_text.h"

namespace eterlab::circuits {

namespace {

using At = ui::Schematic::At;

struct Kind {
  ui::Schematic& (ui::Schematic::*symbol)(At from, At to);
  std::string_view unit;
};
// In the order of CircuitPart::Kind.
constexpr std::array<Kind, 3> kinds{{{&ui::Schematic::resistor, "Ohm"},
                                     {&ui::Schematic::inductor, "H"},
                                     {&ui::Schematic::capacitor, "F"}}};
const Kind& kind_of(const CircuitPart& part) {
  return kinds.at(static_cast<std::size_t>(part.kind));
}

// Places on the grid. A value as long as "999,9 kOhm" has room beside its part.
constexpr double source_x = 4;
constexpr double part_width = 14;           // of a part in the line
constexpr double branch_width = 17;         // from a branch, its values beside it, to the next one
constexpr double room_for_value = 14;       // beside the last branch
constexpr double part_height = 9;           // of a part across
constexpr double height_under_a_part = 12;  // at least, for its value over that of the generator
constexpr double room_for_name = 3.5;       // over a part in the line
constexpr double margin = 1;

double top(const Circuit& circuit) { return circuit.in_line.empty() ? margin : room_for_name; }

double height(const Circuit& circuit) {
  std::size_t most_parts = 0;
  for (const auto& branch : circuit.across) {
    most_parts = std::max(most_parts, branch.size());
  }
  return std::max(part_height * static_cast<double>(most_parts),
                  circuit.in_line.empty() ? 0 : height_under_a_part);
}

/// Where the first branch stands.
double first_branch(const Circuit& circuit) {
  return source_x +
         std::max(branch_width, part_width * static_cast<double>(circuit.in_line.size()));
}

double last_branch(const Circuit& circuit) {
  return first_branch(circuit) + branch_width * (static_cast<double>(circuit.across.size()) - 1);
}

int columns(const Circuit& circuit) {
  return static_cast<int>(last_branch(circuit) + room_for_value);
}

int rows(const Circuit& circuit) {
  return static_cast<int>(std::ceil(top(circuit) + height(circuit) + margin));
}

/// Of the value of a part.
std::string label_name(std::string_view drawing, std::string_view part) {
  std::string name = "lblvalore";
  for (const char letter : part) {
    name += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  }
  return name.append(drawing.substr(std::string_view{"drawing"}.size()));
}

}  // namespace

CircuitDrawing::CircuitDrawing(ui::Parent parent, std::string_view name, const Circuit& circuit,
                               const Circuit& neighbour)
    : drawing_{parent, name, columns(circuit), std::max(rows(circuit), rows(neighbour))},
      frequency_{drawing_, label_name(name, "f")} {
  const double top_y = top(circuit);
  const double bottom_y = std::max(rows(circuit), rows(neighbour)) - margin;
  const double last_x = last_branch(circuit);
  drawing_.ac_source({source_x, top_y}, {source_x, bottom_y})
      .named("f", frequency_)
      .wire({{source_x, bottom_y}, {last_x, bottom_y}});

  const double first_x = first_branch(circuit);
  double x = source_x;
  for (const CircuitPart& part : circuit.in_line) {
    const double step = (first_x - source_x) / static_cast<double>(circuit.in_line.size());
    add(part, {x, top_y}, {x + step, top_y});
    x += step;
  }
  drawing_.wire({{x, top_y}, {last_x, top_y}});

  x = first_x;
  for (const auto& branch : circuit.across) {
    const double step = (bottom_y - top_y) / static_cast<double>(branch.size());
    double y = top_y;
    for (const CircuitPart& part : branch) {
      add(part, {x, y}, {x, y + step});
      y += step;
    }
    if (x < last_x) {
      drawing_.junction({x, top_y}).junction({x, bottom_y});
    }
    x += branch_width;
  }
}

void CircuitDrawing::add(const CircuitPart& part, At from, At to) {
  const Kind& kind = kind_of(part);
  auto label = std::make_unique<ui::Value>(
      drawing_, label_name(drawing_.objectName().toStdString(), part.name));
  (drawing_.*kind.symbol)(from, to).named(part.name, *label);
  values_.push_back({kind.unit, std::move(label)});
}

void CircuitDrawing::show(Real frequency_hz, std::initializer_list<Real> values) {
  Q_ASSERT(values.size() == values_.size());
  frequency_ = eng(frequency_hz, "Hz");
  auto value = values_.begin();
  for (const Real shown : values) {
    *value->label = eng(shown, value->unit);
    ++value;
  }
}

}  // namespace eterlab::circuits
