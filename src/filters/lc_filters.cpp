#include "filters/lc_filters.h"

#include "common/number_text.h"

namespace eterlab::filters {

namespace {

constexpr double rounded_pi = 3.14;
constexpr double rounded_two_pi = 6.28;
constexpr double rounded_four_pi = 12.56;

/// `inductance_factor` is that of R / f, `capacitance_factor` that of 1 / (f R), in uH and pF.
FilterElements three_elements(double inductance_factor, double capacitance_factor, Real cutoff_mhz,
                              Real impedance_ohm) {
  return {inductance_factor * impedance_ohm / cutoff_mhz,
          Single{rounded(capacitance_factor / (impedance_ohm * cutoff_mhz), 1)}};
}

}  // namespace

FilterElements low_pass(FilterForm form, Real cutoff_mhz, Real impedance_ohm) {
  return form == FilterForm::pi ? three_elements(0.318, 159000, cutoff_mhz, impedance_ohm)
                                : three_elements(0.159, 318000, cutoff_mhz, impedance_ohm);
}

FilterElements high_pass(FilterForm form, Real cutoff_mhz, Real impedance_ohm) {
  return form == FilterForm::pi ? three_elements(0.159, 79600, cutoff_mhz, impedance_ohm)
                                : three_elements(0.0796, 159000, cutoff_mhz, impedance_ohm);
}

TrapLowPass trap_low_pass(Real cutoff_mhz, Real impedance_ohm) {
  return {0.6 * impedance_ohm / (rounded_two_pi * cutoff_mhz),
          270000 / (rounded_pi * cutoff_mhz * impedance_ohm),
          rounded(600000 / (rounded_two_pi * cutoff_mhz * impedance_ohm), 1)};
}

BandPass band_pass(Real impedance_ohm, Real lower_edge_mhz, Real upper_edge_mhz) {
  const Real centre_mhz = (lower_edge_mhz + upper_edge_mhz) / 2;
  const Real bandwidth_mhz = upper_edge_mhz - lower_edge_mhz;
  const Real edges = rounded_four_pi * lower_edge_mhz * upper_edge_mhz;
  return {centre_mhz,
          bandwidth_mhz,
          centre_mhz / bandwidth_mhz,
          rounded(impedance_ohm / (rounded_pi * bandwidth_mhz), 1),
          rounded(1e6 * bandwidth_mhz / (edges * impedance_ohm), 1),
          rounded(impedance_ohm * bandwidth_mhz / edges, 3),
          rounded(1e6 / (rounded_pi * impedance_ohm * bandwidth_mhz), 1)};
}

SplitBandPass split(const BandPass& filter) {
  return {filter.series_inductance_uh / 2, 2 * filter.series_capacitance_pf,
          2 * filter.shunt_inductance_uh, filter.shunt_capacitance_pf / 2};
}

}  // namespace eterlab::filters
