#include "circuits/time_constant.h"
#include "circuits/time_constant_window.h"
#include "common/number_text.h"

namespace eterlab::circuits {

namespace {

constexpr TimeConstantKind circuit{.window = "frmcostantetemporl",
                                   .title = "COSTANTE DI TEMPO R L",
                                   .part_box = "txtinduttanza",
                                   .part_prompt = "INDUTTANZA in mH",
                                   .part_unit = 1e-3,
                                   .part_result_unit = "H",
                                   .part_letter = "L",
                                   .draw_part = &ui::Schematic::inductor,
                                   .rise = "CORRENTE",
                                   .curve_name = "",
                                   .quantity = "CORRENTE",
                                   .quantity_unit = "A",
                                   .time_constant_s = [](Real resistance_ohm, Real inductance_h) {
                                     return rl_time_constant_s(inductance_h, resistance_ohm);
                                   }};

// How the current through a coil rises.
class frmcostantetemporl final : public TimeConstantWindow {
 public:
  frmcostantetemporl() : TimeConstantWindow{circuit} {}

  void show_example() override { fill_in({"100", "250", "12", "5"}); }

 private:
  [[nodiscard]] Real final_value(Real supply_v, Real resistance_ohm) const override {
    return supply_v / resistance_ohm;
  }

  void tell(const Rise& rise) override {
    const auto& [final_a, tau_s, time_s] = rise;
    if (time_s) {
      lblcarica =
          "CORRENTE DOPO IL TEMPO INDICATO = " + eng(risen_to(final_a, *time_s, tau_s), "A");
      lblscarica = "CORRENTE FINALE = " + eng(final_a, "A");
    }
  }
};

const ui::Registration<frmcostantetemporl> registration{"frmcostantetemporl"};

}  // namespace

}  // namespace eterlab::circuits
