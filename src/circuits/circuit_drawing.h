#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <vector>

#include "common/arithmetic.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::circuits {

/// A resistor, coil or capacitor of a drawn circuit.
struct CircuitPart {
  enum class Kind : std::uint8_t { resistor, inductor, capacitor };

  Kind kind;
  std::string_view name;
};
inline constexpr CircuitPart part_r{CircuitPart::Kind::resistor, "R"};
inline constexpr CircuitPart part_l{CircuitPart::Kind::inductor, "L"};
inline constexpr CircuitPart part_c{CircuitPart::Kind::capacitor, "C"};

/// The parts that a generator feeds: some one after the other in its line, then branches across,
/// each with one part or several over each other.
struct Circuit {
  std::vector<CircuitPart> in_line;
  std::vector<std::vector<CircuitPart>> across;
};

/// The drawing of a circuit, each value beside its part. In a layout it is a control.
class CircuitDrawing {
 public:
  /// The labels of the values are named lblvalore and what they tell: lblvaloref, lblvalorer1; of a
  /// second drawing with a 2 behind. It is as high as its neighbour, if any.
  CircuitDrawing(ui::Parent parent, std::string_view name, const Circuit& circuit,
                 const Circuit& neighbour = {});

  /// Writes the values beside the parts: in ohm, henry and farad, in the order of the parts.
  void show(Real frequency_hz, std::initializer_list<Real> values);
  operator ui::Item() { return drawing_; }

 private:
  struct Value {
    std::string_view unit;
    std::unique_ptr<ui::Value> label;
  };

  /// Draws a part with its name and a new label for its value.
  void add(const CircuitPart& part, ui::Schematic::At from, ui::Schematic::At to);

  ui::Schematic drawing_;
  ui::Value frequency_;
  std::vector<Value> values_;
};

}  // namespace eterlab::circuits
