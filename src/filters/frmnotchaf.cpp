#include "filters/notch_window.h"

namespace eterlab::filters {

namespace {

constexpr NotchKind notch{.window = "frmnotchaf",
                          .title = "FILTRO NOTCH L C PER RADIOFREQUENZA",
                          .frequency_prompt = "FREQUENZA DA ELIMINARE in MHz",
                          .frequency_unit_hz = 1e6,
                          .bandwidth_prompt = "BANDA A 3 dB in kHz",
                          .bandwidth_unit_hz = 1e3,
                          .usual_impedance = "50",
                          .usual_quality_factor = "100"};

class frmnotchaf final : public NotchWindow {
 public:
  frmnotchaf() : NotchWindow{notch} {}

  void show_example() override { fill_in({"7.1", "400", "50", "150"}); }
};

const ui::Registration<frmnotchaf> registration{"frmnotchaf"};

}  // namespace

}  // namespace eterlab::filters
