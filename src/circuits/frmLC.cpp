#include "circuits/impedance.h"
#include "circuits/impedance_parts.h"
#include "circuits/resonance.h"
#include "circuits/series_and_parallel.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

// A coil with losses and a capacitor, in series and in parallel.
class frmLC final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", frequency_prompt, {.range = frequency_range}};
  ui::Input txtinduttanza{this, "txtinduttanza", inductance_prompt};
  ui::Input txtcapacita{this, "txtcapacita", capacitance_prompt};
  ui::Input txtq{
      this, "txtq", "Q DELLA BOBINA", {.holds = "100", .range = ui::Range{1, 1'000'000}}};
  ui::Result lblrisonanza{this, "lblrisonanza"};
  SeriesAndParallel circuits{
      this, {{part_r, part_l}, {{part_c}}}, {{}, {{part_r, part_l}, {part_c}}}};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINE", {"frmbobine", {180, 180}, {4100, 2800}}};

 public:
  frmLC() : Calculator{"frmLC", "INDUTTANZA REALE E CAPACITA' IN SERIE E IN PARALLELO"} {
    lay_out(ui::column(ui::form(txtfrequenza, txtinduttanza, txtcapacita, txtq), lblrisonanza,
                       circuits),
            {&cmdchiamabobine});
  }

  void show_example() override { fill_in({"7", "10", "51.7", "100"}); }

 private:
  void compute() override {
    const Real frequency_hz = hertz(txtfrequenza);
    const Real inductance_h = henry(txtinduttanza);
    const Real capacitance_f = farad(txtcapacita);
    const Real loss_ohm = coil_loss_ohm(frequency_hz, inductance_h, txtq.value());
    circuits.show(loss_ohm + inductor_ohm(frequency_hz, inductance_h),
                  capacitor_ohm(frequency_hz, capacitance_f), frequency_hz,
                  {loss_ohm, inductance_h, capacitance_f});
    lblrisonanza = "FREQUENZA DI RISONANZA = " +
                   eng(tuned_circuit(inductance_h, capacitance_f).frequency_hz, "Hz");
  }
};

const ui::Registration<frmLC> registration{"frmLC"};

}  // namespace

}  // namespace eterlab::circuits
