#include "resistors/pads/resistive_pads.h"

#include <numbers>

namespace eterlab::resistors {

namespace {

// An excess is what a ratio has above 1: near 1, it keeps its digits.

constexpr double db_in_neper = 20 / std::numbers::ln10;

Real voltage_ratio_excess(Real loss_db) { return expm1(loss_db / db_in_neper); }

/// Of the ratio r of two impedances.
struct Mismatch {
  Real root_excess;   ///< of sqrt(r)
  Real least_excess;  ///< of sqrt(r) + sqrt(r - 1)
};

Mismatch mismatch(Real higher_ohm, Real lower_ohm) {
  const Real excess = (higher_ohm - lower_ohm) / lower_ohm;
  const Real root_excess = excess / (sqrt(excess + 1) + 1);
  return {root_excess, root_excess + sqrt(excess)};
}

/// The series resistors of a T, each to the impedance at its end. In a pi they are the conductances
/// of the shunts, each to that of the opposite end.
struct Ends {
  Real higher;
  Real lower;  ///< 0 at the least loss
};

Ends ends(Real higher_ohm, Real lower_ohm, Real loss_db) {
  const Real excess = voltage_ratio_excess(loss_db);
  const Real denominator = excess * (excess + 2);
  const auto [root_excess, least_excess] = mismatch(higher_ohm, lower_ohm);
  // The numerators k^2 - 2 k / sqrt(r) + 1 and k^2 - 2 k sqrt(r) + 1 as sums and products of what
  // is not negative; the second has its roots at the least ratio and its inverse.
  const Real above_least =
      (least_excess + 1) * voltage_ratio_excess(loss_db - least_loss_db(higher_ohm, lower_ohm));
  const Real above_inverse = excess + least_excess / (least_excess + 1);
  const Real reduction = root_excess / (root_excess + 1);
  return {(excess * excess + 2 * (excess + 1) * reduction) / denominator,
          above_least * above_inverse / denominator};
}

/// sqrt(ZI ZO) over this is the shunt of a T; times this it is the series resistor of a pi.
Real branch_ratio(Real loss_db) {
  const Real excess = voltage_ratio_excess(loss_db);
  return excess * (excess + 2) / (2 * (excess + 1));
}

constexpr double vanishing = 1e-9;

Real leg_ohm(Real impedance_ohm, Real end) {
  return end / 2 <= vanishing ? Real{0} : impedance_ohm * end / 2;
}

std::optional<Real> shunt_ohm(Real impedance_ohm, Real end) {
  return end <= vanishing ? std::nullopt : std::optional{impedance_ohm / end};
}

}  // namespace

Real dissipated_share(Real loss_db) { return -expm1(-2 * loss_db / db_in_neper); }

AttenuatorCell attenuator_cell(Cell cell, Real impedance_ohm, Real loss_db) {
  const Real excess = voltage_ratio_excess(loss_db);
  switch (cell) {
    case Cell::t:
      return {impedance_ohm * excess / (excess + 2), impedance_ohm / branch_ratio(loss_db)};
    case Cell::pi:
      return {impedance_ohm * branch_ratio(loss_db), impedance_ohm * (excess + 2) / excess};
    case Cell::l:
      break;
  }
  return {impedance_ohm * excess / (excess + 1), impedance_ohm / excess};
}

Real least_loss_db(Real higher_ohm, Real lower_ohm) {
  return db_in_neper * log1p(mismatch(higher_ohm, lower_ohm).least_excess);
}

HPad h_pad(Real input_ohm, Real output_ohm, Real loss_db) {
  const Ends end = ends(input_ohm, output_ohm, loss_db);
  return {leg_ohm(input_ohm, end.higher), leg_ohm(output_ohm, end.lower),
          sqrt(input_ohm * output_ohm) / branch_ratio(loss_db)};
}

OPad o_pad(Real input_ohm, Real output_ohm, Real loss_db) {
  const Ends end = ends(input_ohm, output_ohm, loss_db);
  return {shunt_ohm(input_ohm, end.lower), shunt_ohm(output_ohm, end.higher),
          sqrt(input_ohm * output_ohm) * branch_ratio(loss_db) / 2};
}

}  // namespace eterlab::resistors
