#include "circuits/impedance.h"
#include "circuits/impedance_parts.h"
#include "circuits/resonance.h"
#include "circuits/series_and_parallel.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

// A resistor and a coil, in series and in parallel.
class frmRL final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", frequency_prompt, {.range = frequency_range}};
  ui::Input txtohm{this, "txtohm", resistance_prompt};
  ui::Input txtinduttanza{this, "txtinduttanza", inductance_prompt};
  ui::Result lbltaglio{this, "lbltaglio"};
  SeriesAndParallel circuits{this, {{part_r}, {{part_l}}}, {{}, {{part_r}, {part_l}}}};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINE", {"frmbobine", {400, 300}, {4100, 2800}}};

 public:
  frmRL() : Calculator{"frmRL", "RESISTENZA E INDUTTANZA IN SERIE E IN PARALLELO"} {
    lay_out(ui::column(ui::form(txtfrequenza, txtohm, txtinduttanza), lbltaglio, circuits),
            {&cmdchiamabobine});
  }

  void show_example() override { fill_in({"1", "50", "10"}); }

 private:
  void compute() override {
    const Real frequency_hz = hertz(txtfrequenza);
    const Real resistance_ohm = txtohm.value();
    const Real inductance_h = henry(txtinduttanza);
    circuits.show(resistance_ohm, inductor_ohm(frequency_hz, inductance_h), frequency_hz,
                  {resistance_ohm, inductance_h});
    lbltaglio = "FREQUENZA DI TAGLIO = " + eng(rl_cutoff_hz(resistance_ohm, inductance_h), "Hz");
  }
};

const ui::Registration<frmRL> registration{"frmRL"};

}  // namespace

}  // namespace eterlab::circuits
