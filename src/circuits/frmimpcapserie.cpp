#include "circuits/lossless_pair_window.h"

namespace eterlab::circuits {

namespace {

const Connection in_series{"frmimpcapserie",
                           "IMPEDENZA DI INDUTTANZA E CAPACITA' IN SERIE",
                           {{part_l}, {{part_c}}},
                           lossless_in_series,
                           "ALLA RISONANZA LA REATTANZA E' NULLA"};

class frmimpcapserie final : public LosslessPairWindow {
 public:
  frmimpcapserie() : LosslessPairWindow{in_series} {}
};

const ui::Registration<frmimpcapserie> registration{"frmimpcapserie"};

}  // namespace

}  // namespace eterlab::circuits
