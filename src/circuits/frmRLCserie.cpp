#include "circuits/impedance.h"
#include "circuits/resonant_circuit_window.h"

namespace eterlab::circuits {

namespace {

const ResonantCircuit in_series{"frmRLCserie",  "L, C E R IN SERIE", {{part_l, part_c}, {{part_r}}},
                                series_rlc_ohm, series_selectivity,  "10"};

class frmRLCserie final : public ResonantCircuitWindow {
 public:
  frmRLCserie() : ResonantCircuitWindow{in_series} {}
};

const ui::Registration<frmRLCserie> registration{"frmRLCserie"};

}  // namespace

}  // namespace eterlab::circuits
