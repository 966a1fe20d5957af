#include "circuits/impedance.h"
#include "circuits/resonant_circuit_window.h"

namespace eterlab::circuits {

namespace {

const ResonantCircuit in_parallel{
    "frmRLCparallelo", "L, C E R IN PARALLELO", {{}, {{part_l}, {part_c}, {part_r}}},
    parallel_rlc_ohm,  parallel_selectivity,    "10000"};

class frmRLCparallelo final : public ResonantCircuitWindow {
 public:
  frmRLCparallelo() : ResonantCircuitWindow{in_parallel} {}
};

const ui::Registration<frmRLCparallelo> registration{"frmRLCparallelo"};

}  // namespace

}  // namespace eterlab::circuits
