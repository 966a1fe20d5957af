#include "circuits/totals_window.h"

namespace eterlab::resistors {

namespace {

constexpr circuits::TotalsKind kind{
    .window = "frmresistenze",
    .title = "RESISTENZE IN SERIE E IN PARALLELO",
    .box = "txtr",
    .factors = {1, 1e3, 1e6},
    .unit = "Ohm",
    .letter = "R",
    .part = &ui::Schematic::resistor,
    .add_in_series = true,
};

// The total of two to six resistors.
class frmresistenze final : public circuits::TotalsWindow {
 public:
  frmresistenze()
      : TotalsWindow{
            kind, {"Ohm", "kOhm", "MOhm"}, {"R1 :", "R2 :", "R3 :", "R4 :", "R5 :", "R6 :"}} {}
};

const ui::Registration<frmresistenze> registration{"frmresistenze"};

}  // namespace

}  // namespace eterlab::resistors
