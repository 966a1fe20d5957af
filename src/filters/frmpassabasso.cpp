#include "common/number_text.h"
#include "filters/pass_filter_window.h"

namespace eterlab::filters {

namespace {

constexpr PassFilter low_pass_filter{
    .window = "frmpassabasso",
    .title = "FILTRI PASSA BASSO",
    .pi_caption = "filtro a PI- GRECO",
    .tee_caption = "filtro a T",
    .frequency_prompt = "FREQUENZA DI TAGLIO IN MHz :",
    .impedance_prompt = "IMPEDENZA (di solito = 50 ohm)",
    .note =
        "L'attenuazione teorica è di 18 dB x ottava.Qualora l'attenuazione di una singola "
        "cella non fosse sufficiente, occorrerà collegare in serie due o più celle.",
    .has_series_inductors = true,
    .compute = low_pass,
    .inductance_text = [](Real inductance_uh) { return pattern(inductance_uh, "#,##0.##"); },
};

class frmpassabasso final : public PassFilterWindow {
 public:
  frmpassabasso() : PassFilterWindow{low_pass_filter} {}
};

const ui::Registration<frmpassabasso> registration{"frmpassabasso"};

}  // namespace

}  // namespace eterlab::filters
