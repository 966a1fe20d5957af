#include "circuits/lossless_pair_window.h"

namespace eterlab::circuits {

namespace {

const Connection in_parallel{"frmimpcapparallelo",
                             "IMPEDENZA DI INDUTTANZA E CAPACITA' IN PARALLELO",
                             {{}, {{part_l}, {part_c}}},
                             lossless_in_parallel,
                             "ALLA RISONANZA LA REATTANZA E' INFINITA"};

class frmimpcapparallelo final : public LosslessPairWindow {
 public:
  frmimpcapparallelo() : LosslessPairWindow{in_parallel} {}
};

const ui::Registration<frmimpcapparallelo> registration{"frmimpcapparallelo"};

}  // namespace

}  // namespace eterlab::circuits
