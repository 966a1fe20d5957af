#include "signals/s_meter_window.h"

namespace eterlab::signals {

namespace {

// The S meter on the bands from 30 MHz on.
class frmsmetervhf final : public SMeterWindow {
 public:
  frmsmetervhf()
      : SMeterWindow{"frmsmetervhf", "SEGNALI S-METER E dBm IN VHF E OLTRE (SOPRA I 30 MHz)",
                     s_meter_above_30_mhz} {}
};

const ui::Registration<frmsmetervhf> registration{"frmsmetervhf"};

}  // namespace

}  // namespace eterlab::signals
