#include "filters/notch_window.h"

namespace eterlab::filters {

namespace {

constexpr NotchKind notch{.window = "frmnotchbf",
                          .title = "FILTRO NOTCH L C PER BASSA FREQUENZA",
                          .frequency_prompt = "FREQUENZA DA ELIMINARE in Hz",
                          .frequency_unit_hz = 1,
                          .bandwidth_prompt = "BANDA A 3 dB in Hz",
                          .bandwidth_unit_hz = 1,
                          .usual_impedance = "600",
                          .usual_quality_factor = "20"};

class frmnotchbf final : public NotchWindow {
 public:
  frmnotchbf() : NotchWindow{notch} {}

  void show_example() override { fill_in({"1000", "200", "600", "20"}); }
};

const ui::Registration<frmnotchbf> registration{"frmnotchbf"};

}  // namespace

}  // namespace eterlab::filters
