#include "resistors/pads/handbook_pads.h"

#include "common/number_text.h"

namespace eterlab::resistors {

namespace {

Real half_up_to_hundredths(Real x) { return floor(100 * x + 0.5) / 100; }

Real power_ratio(Real loss_db) { return pow(10, loss_db / 10); }

}  // namespace

HandbookMinimumLossPad handbook_minimum_loss_pad(Real higher_ohm, Real lower_ohm) {
  const Real series_ohm = sqrt(higher_ohm * (higher_ohm - lower_ohm));
  const Real shunt_ohm = sqrt(lower_ohm * lower_ohm * higher_ohm / (higher_ohm - lower_ohm));
  const Real division = (shunt_ohm + lower_ohm) / shunt_ohm;
  const Single loss_db{10 * ln(higher_ohm / lower_ohm * (division * division)) / ln(10)};
  return {series_ohm, shunt_ohm, Single{rounded(loss_db, 2)}};
}

Real handbook_least_loss_db(Real input_ohm, Real output_ohm) {
  const Real impedance_ratio = input_ohm / output_ohm;
  const Real root = impedance_ratio + sqrt(impedance_ratio - 1);
  return 10 * (ln(root * root) / ln(10));
}

Real told_in_whole_db(Real loss_db) { return floor((100 * loss_db + 0.5) / 100); }

HandbookTPad handbook_t_pad(Real input_ohm, Real output_ohm, Real loss_db) {
  const Real k = power_ratio(loss_db);
  const Real c = (k + 1) / (k - 1);
  const Real shunt_ohm = 2 * sqrt(input_ohm * output_ohm * k) / (k - 1);
  return {half_up_to_hundredths(input_ohm * c - shunt_ohm),
          half_up_to_hundredths(output_ohm * c - shunt_ohm), half_up_to_hundredths(shunt_ohm)};
}

HandbookPiPad handbook_pi_pad(Real input_ohm, Real output_ohm, Real loss_db) {
  const Real k = power_ratio(loss_db);
  const Real c = (k + 1) / (k - 1);
  const Real series_siemens = 2 * sqrt(k * (1 / input_ohm) * (1 / output_ohm)) / (k - 1);
  return {half_up_to_hundredths(1 / (c / input_ohm - series_siemens)),
          half_up_to_hundredths(1 / (c / output_ohm - series_siemens)),
          Single{half_up_to_hundredths(1 / series_siemens)}};
}

HandbookBridgedTPad handbook_bridged_t_pad(Real impedance_ohm, Real loss_db) {
  const Single voltage_ratio{pow(10, loss_db / 20)};
  return {impedance_ohm, impedance_ohm / (voltage_ratio - 1), impedance_ohm * (voltage_ratio - 1)};
}

}  // namespace eterlab::resistors
