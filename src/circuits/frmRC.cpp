#include "circuits/impedance.h"
#include "circuits/impedance_parts.h"
#include "circuits/resonance.h"
#include "circuits/series_and_parallel.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

// A resistor and a capacitor, in series and in parallel.
class frmRC final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", frequency_prompt, {.range = frequency_range}};
  ui::Input txtohm{this, "txtohm", resistance_prompt};
  ui::Input txtcapacita{this, "txtcapacita", capacitance_prompt};
  ui::Result lbltaglio{this, "lbltaglio"};
  SeriesAndParallel circuits{this, {{part_r}, {{part_c}}}, {{}, {{part_r}, {part_c}}}};

 public:
  frmRC() : Calculator{"frmRC", "RESISTENZA E CAPACITA' IN SERIE E IN PARALLELO"} {
    lay_out(ui::column(ui::form(txtfrequenza, txtohm, txtcapacita), lbltaglio, circuits));
  }

  void show_example() override { fill_in({"1", "50", "1000"}); }

 private:
  void compute() override {
    const Real frequency_hz = hertz(txtfrequenza);
    const Real resistance_ohm = txtohm.value();
    const Real capacitance_f = farad(txtcapacita);
    circuits.show(resistance_ohm, capacitor_ohm(frequency_hz, capacitance_f), frequency_hz,
                  {resistance_ohm, capacitance_f});
    lbltaglio = "FREQUENZA DI TAGLIO = " + eng(rc_cutoff_hz(resistance_ohm, capacitance_f), "Hz");
  }
};

const ui::Registration<frmRC> registration{"frmRC"};

}  // namespace

}  // namespace eterlab::circuits
