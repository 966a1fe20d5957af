#include <optional>
#include <string>
#include <string_view>

#include "circuits/impedance_parts.h"
#include "circuits/tuning_range.h"
#include "common/number_text.h"
#include "ui/plot.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

constexpr std::string_view parallel_tooltip = "compensatore e capacità parassite; vuota vale zero";
constexpr ui::Range coil_range_uh{0.001, 100'000};
constexpr ui::Range parallel_range_pf{0, 5000};
constexpr ui::Range tuned_range_mhz{0.01, 1000};

ui::Axis rotation_axis() {
  return {.title = "ROTAZIONE", .unit = "%", .range = ui::Interval{0, 100}, .step = 20};
}

ui::Axis frequency_axis(std::optional<ui::Interval> range = {}) {
  return {.title = "FREQUENZA", .unit = "MHz", .range = range};
}

// What a variable capacitor tunes a coil over, or what makes it cover a band.
class frmtuningrange final : public ui::Calculator {
  ui::OptionArray Option1{this, "Option1", {"TROVARE LA GAMMA", "TROVARE BOBINA E COMPENSATORE"}};
  ui::Input txtcmin{
      this, "txtcmin", "CAPACITA' MINIMA DEL VARIABILE in pF", {.range = ui::Range{0.5, 1000}}};
  ui::Input txtcmax{
      this, "txtcmax", "CAPACITA' MASSIMA DEL VARIABILE in pF", {.range = ui::Range{1, 5000}}};
  ui::Input txt3{
      this, "txt3", inductance_prompt, {.range = coil_range_uh, .prompt_name = "lblinput3"}};
  ui::Input txt4{this,
                 "txt4",
                 "CAPACITA' IN PARALLELO in pF",
                 {.tooltip = parallel_tooltip,
                  .range = parallel_range_pf,
                  .is_optional = true,
                  .prompt_name = "lblinput4"}};
  ui::Result lbloutput1{this, "lbloutput1"};
  ui::Result lbloutput2{this, "lbloutput2"};
  ui::Result lbloutput3{this, "lbloutput3"};
  ui::Plot plot{this, "plot", rotation_axis(), frequency_axis(), 44, 30};
  ui::Note Label6{this, "Label6",
                  "LE CAPACITA' PARASSITE DI UN CIRCUITO SONO DI SOLITO 5 - 20 pF."};

 public:
  frmtuningrange() : Calculator{"frmtuningrange", "GAMMA COPERTA DA UN CONDENSATORE VARIABILE"} {
    Option1.preset(0);
    lay_out(ui::column(
        ui::row(ui::column(Option1, ui::form(txtcmin, txtcmax, txt3, txt4), ui::stretch()), plot),
        lbloutput1, lbloutput2, lbloutput3, Label6));

    Option1.on_click([this](int) {
      if (is_range_wanted()) {
        txt3.ask_anew(inductance_prompt, coil_range_uh);
        txt4.ask_anew("CAPACITA' IN PARALLELO in pF", parallel_range_pf);
        txt4.set_tooltip(parallel_tooltip);
      } else {
        txt3.ask_anew("FREQUENZA MINIMA in MHz", tuned_range_mhz);
        txt4.ask_anew("FREQUENZA MASSIMA in MHz", tuned_range_mhz);
        txt4.set_tooltip("");
      }
    });
  }

  void show_example() override { fill_in({"15", "350", "190", "20"}); }

 private:
  [[nodiscard]] bool is_range_wanted() const { return Option1.selected() == 0; }

  void check() override {
    check_presence();
    // Only the capacitance may be left out.
    require(is_range_wanted() || txt4.value() > 0, txt4, "MANCANO DATI");
    check_ranges();
  }

  void compute() override {
    const VariableCapacitor variable{farad(txtcmin), farad(txtcmax)};
    require(variable.greatest_f > variable.least_f, txtcmax,
            "LA CAPACITA' MASSIMA DEVE ESSERE MAGGIORE DELLA MINIMA");
    if (is_range_wanted()) {
      const TuningParts parts{henry(txt3), farad(txt4)};
      const TuningRange range = tuning_range(variable, parts);
      lbloutput1 = "FREQUENZA MINIMA = " + megahertz_text(range.lowest_hz);
      lbloutput2 = "FREQUENZA MASSIMA = " + megahertz_text(range.highest_hz);
      show(variable, parts, range);
    } else {
      const TuningRange range{hertz(txt3), hertz(txt4)};
      const TuningParts parts = parts_for(variable, range);
      lbloutput1 = "INDUTTANZA = " + fixed(parts.inductance_h * 1e6, 3) + " uH";
      lbloutput2 = "CAPACITA' IN PARALLELO = " + fixed(parts.parallel_f * 1e12, 1) +
                   " pF (PARASSITE COMPRESE)";
      show(variable, parts, range);
    }
  }

  [[nodiscard]] TuningParts parts_for(const VariableCapacitor& variable, const TuningRange& range) {
    constexpr double least_ratio = 1.0001;
    constexpr double greatest_ratio = 1e6;
    require(range.highest_hz > range.lowest_hz, txt4,
            "LA FREQUENZA MASSIMA DEVE ESSERE MAGGIORE DELLA MINIMA");
    const Real ratio = range.capacitance_ratio();
    require(ratio >= least_ratio && ratio <= greatest_ratio, txt4,
            "GAMMA TROPPO STRETTA O TROPPO LARGA");
    const TuningParts parts = parts_for_range(variable, range);
    advise(parts.parallel_f >= 0, txtcmax,
           "IL VARIABILE NON BASTA: OCCORRE UN RAPPORTO Cmax/Cmin DI ALMENO " + fixed(ratio, 2));
    return parts;
  }

  void show(const VariableCapacitor& variable, const TuningParts& parts, const TuningRange& range) {
    lbloutput3 = "RAPPORTO DI GAMMA = " + fixed(range.highest_hz / range.lowest_hz, 2);
    const Real lowest_mhz = range.lowest_hz / 1e6;
    const Real highest_mhz = range.highest_hz / 1e6;
    plot.axes(rotation_axis(),
              frequency_axis(ui::Interval{lowest_mhz.value(), highest_mhz.value()}))
        .curve(
            [=](Real percent) { return tuned_frequency_hz(variable, parts, percent / 100) / 1e6; },
            0, 100)
        .marker(0, lowest_mhz, megahertz_text(range.lowest_hz))
        .marker(100, highest_mhz, megahertz_text(range.highest_hz));
  }

  static std::string megahertz_text(Real frequency_hz) {
    return fixed(frequency_hz / 1e6, 3) + " MHz";
  }
};

const ui::Registration<frmtuningrange> registration{"frmtuningrange"};

}  // namespace

}  // namespace eterlab::circuits
