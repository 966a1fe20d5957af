#pragma once

#include <initializer_list>
#include <string_view>

#include "circuits/circuit_drawing.h"
#include "circuits/impedance_parts.h"
#include "ui/ui.h"

namespace eterlab::circuits {

/// The same parts in series and in parallel: side by side a heading, the circuit, its impedance.
class SeriesAndParallel {
 public:
  SeriesAndParallel(ui::Parent parent, const Circuit& series, const Circuit& parallel);

  /// The impedances of what stands in the circuits; the values are those of both drawings.
  void show(Complex one_ohm, Complex other_ohm, Real frequency_hz,
            std::initializer_list<Real> values);
  operator ui::Item();

 private:
  ui::Heading Label1;
  CircuitDrawing drawing;
  ImpedanceResult in_series;
  ui::Heading Label2;
  CircuitDrawing drawing2;
  ImpedanceResult in_parallel;
};

}  // namespace eterlab::circuits
