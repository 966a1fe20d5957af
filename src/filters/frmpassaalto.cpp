#include "common/number_text.h"
#include "filters/pass_filter_window.h"

namespace eterlab::filters {

namespace {

constexpr PassFilter high_pass_filter{
    .window = "frmpassaalto",
    .title = "FILTRI PASSA ALTO",
    .pi_caption = "FILTRO a P-GRECO",
    .tee_caption = "FILTRO a T",
    .frequency_prompt = "FREQUENZA DI TAGLIO IN MHz",
    .impedance_prompt = "IMPEDENZA (di solito = 50 Ohm)",
    .note =
        "L'attenuazione teorica è di 18 db x ottava. Qualora l'attenuazione di una singola "
        "cella non fosse sufficiente, occorrerà collegare in serie due o più celle.",
    .has_series_inductors = false,
    .compute = high_pass,
    .inductance_text = [](Real inductance_uh) { return fixed(inductance_uh); },
};

class frmpassaalto final : public PassFilterWindow {
 public:
  frmpassaalto() : PassFilterWindow{high_pass_filter} {}
};

const ui::Registration<frmpassaalto> registration{"frmpassaalto"};

}  // namespace

}  // namespace eterlab::filters
