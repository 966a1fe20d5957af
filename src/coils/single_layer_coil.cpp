#include "coils/single_layer_coil.h"

#include "common/number_text.h"

namespace eterlab::coils {

namespace {

constexpr double pi = 3.14;
constexpr int mm_in_cm = 10;

Real shape(const CoilForm& form) { return 0.45 + form.length_mm / form.diameter_mm; }

SingleLayerCoil wound(const CoilForm& form, Real turns, Real inductance_uh) {
  return {turns, inductance_uh, rounded(form.length_mm / turns),
          floor(turns * pi * form.diameter_mm / mm_in_cm)};
}

}  // namespace

SingleLayerCoil coil_of_inductance(const CoilForm& form, Real inductance_uh) {
  const Real turns = sqrt(1000 * inductance_uh * shape(form) / form.diameter_mm);
  return wound(form, rounded(turns, 1), inductance_uh);
}

SingleLayerCoil coil_of_turns(const CoilForm& form, Real turns) {
  const Real inductance_uh = form.diameter_mm * (turns * turns) / (shape(form) * 1000);
  return wound(form, turns, rounded(inductance_uh, 2));
}

}  // namespace eterlab::coils
