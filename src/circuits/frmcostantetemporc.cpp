#include "circuits/time_constant.h"
#include "circuits/time_constant_window.h"
#include "common/number_text.h"

namespace eterlab::circuits {

namespace {

constexpr TimeConstantKind circuit{.window = "frmcostantetemporc",
                                   .title = "COSTANTE DI TEMPO R C",
                                   .part_box = "txtcapacita",
                                   .part_prompt = "CAPACITA' in microF",
                                   .part_unit = 1e-6,
                                   .part_result_unit = "F",
                                   .part_letter = "C",
                                   .draw_part = &ui::Schematic::capacitor,
                                   .rise = "CARICA",
                                   .curve_name = "CARICA",
                                   .quantity = "TENSIONE",
                                   .quantity_unit = "V",
                                   .time_constant_s = rc_time_constant_s};

// How a capacitor is charged and discharged through a resistor.
class frmcostantetemporc final : public TimeConstantWindow {
 public:
  frmcostantetemporc() : TimeConstantWindow{circuit} {}

  void show_example() override { fill_in({"47000", "1", "10", "30"}); }

 private:
  [[nodiscard]] Real final_value(Real supply_v, Real /*resistance_ohm*/) const override {
    return supply_v;
  }

  void tell(const Rise& rise) override {
    constexpr double next_to_nothing_v = 1e-15;
    const auto& [supply, tau_s, time_s] = rise;
    if (time_s) {
      const Real left_v = fallen_to(supply, *time_s, tau_s);
      lblcarica = "TENSIONE IN CARICA = " + eng(risen_to(supply, *time_s, tau_s), "V");
      lblscarica = "TENSIONE IN SCARICA = " + eng(left_v < next_to_nothing_v ? 0 : left_v, "V");
    }
    plot.curve(
        [rise](Real at_s) { return fallen_to(rise.final_value, at_s, rise.time_constant_s); }, 0,
        plotted_time_constants * tau_s, "SCARICA");
  }
};

const ui::Registration<frmcostantetemporc> registration{"frmcostantetemporc"};

}  // namespace

}  // namespace eterlab::circuits
