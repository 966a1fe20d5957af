#include "circuits/series_and_parallel.h"

namespace eterlab::circuits {

SeriesAndParallel::SeriesAndParallel(ui::Parent parent, const Circuit& series,
                                     const Circuit& parallel)
    : Label1{parent, "Label1", "IN SERIE"},
      drawing{parent, "drawing", series, parallel},
      in_series{parent},
      Label2{parent, "Label2", "IN PARALLELO"},
      drawing2{parent, "drawing2", parallel, series},
      in_parallel{parent, "2"} {}

SeriesAndParallel::operator ui::Item() {
  return ui::row(ui::column(Label1, drawing, in_series), ui::column(Label2, drawing2, in_parallel));
}

void SeriesAndParallel::show(Complex one_ohm, Complex other_ohm, Real frequency_hz,
                             std::initializer_list<Real> values) {
  in_series = one_ohm + other_ohm;
  in_parallel = parallel(one_ohm, other_ohm);
  drawing.show(frequency_hz, values);
  drawing2.show(frequency_hz, values);
}

}  // namespace eterlab::circuits
