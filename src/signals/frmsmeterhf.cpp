#include "signals/s_meter_window.h"

namespace eterlab::signals {

namespace {

// The S meter on the short waves.
class frmsmeterhf final : public SMeterWindow {
 public:
  frmsmeterhf()
      : SMeterWindow{"frmsmeterhf", "SEGNALI S-METER E dBm IN HF (SOTTO I 30 MHz)",
                     s_meter_below_30_mhz} {}
};

const ui::Registration<frmsmeterhf> registration{"frmsmeterhf"};

}  // namespace

}  // namespace eterlab::signals
