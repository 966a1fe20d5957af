#include "circuits/totals_window.h"

namespace eterlab::capacitors {

namespace {

constexpr circuits::TotalsKind kind{
    .window = "frmcondensatori",
    .title = "CONDENSATORI IN SERIE E IN PARALLELO",
    .box = "txtc",
    .factors = {1e-12, 1e-9, 1e-6},
    .unit = "F",
    .letter = "C",
    .part = &ui::Schematic::capacitor,
    .add_in_series = false,
};

// The total of two to six capacitors.
class frmcondensatori final : public circuits::TotalsWindow {
 public:
  frmcondensatori()
      : TotalsWindow{
            kind, {"pF", "nF", "microF"}, {"C1 :", "C2 :", "C3 :", "C4 :", "C5 :", "C6 :"}} {}
};

const ui::Registration<frmcondensatori> registration{"frmcondensatori"};

}  // namespace

}  // namespace eterlab::capacitors
