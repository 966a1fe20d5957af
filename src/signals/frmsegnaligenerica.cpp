#include "common/number_text.h"
#include "signals/decibel_watt.h"
#include "signals/radiated_power.h"
#include "signals/received_signal.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

// What a field strength gives at a receiver behind any antenna of known gain.
class frmsegnaligenerica final : public ui::Calculator {
  ui::OptionArray Option1{this, "Option1", {"GUADAGNO IN dBd", "GUADAGNO IN dBi"}};
  ui::Input txtcampo{this, "txtcampo", "INTENSITA' DI CAMPO in microVolt/mt."};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz"};
  ui::Input txtguadagno{this,
                        "txtguadagno",
                        "GUADAGNO DELL'ANTENNA in dB",
                        {.range = ui::Range{-100, 100}, .is_optional = true}};
  ui::Input txtohm{this, "txtohm", "IMPEDENZA DEL RICEVITORE in OHM", {.holds = "50"}};
  ui::Result lblarea{this, "lblarea"};
  ui::Result lbldensita{this, "lbldensita"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Result lbltensione{this, "lbltensione"};
  ui::Result lblfattore{this, "lblfattore"};

 public:
  frmsegnaligenerica()
      : Calculator{"frmsegnaligenerica", "SEGNALE RICEVUTO DA UN'ANTENNA QUALSIASI"} {
    Option1.preset(0);
    lay_out(ui::column(ui::across(Option1), ui::form(txtcampo, txtfrequenza, txtguadagno, txtohm),
                       lblarea, lbldensita, lblpotenza, lbltensione, lblfattore));
  }

  void show_example() override { fill_in({"100", "145", "10", "50"}); }

 private:
  void compute() override {
    const auto reference =
        Option1.selected() == 0 ? GainReference::half_wave_dipole : GainReference::isotropic;
    const AntennaSignal signal =
        antenna_signal(txtcampo.value() / 1e6, txtfrequenza.value() * 1e6,
                       gain_dbi(txtguadagno.value(), reference), txtohm.value());
    const Real power = signal.available_power_w;
    lblarea = "AREA EFFICACE = " + sig(signal.effective_area_m2, 4) + " mq";
    lbldensita = "DENSITA' DI POTENZA = " + eng(signal.power_density_w_per_m2, "W") + "/mq";
    lblpotenza = "POTENZA RICEVUTA = " + eng(power, "W") + ", " +
                 fixed(level_dbw(power) + one_watt_dbm, 1) + " dBm";
    lbltensione = "TENSIONE AL RICEVITORE = " + eng(signal.receiver_v, "V");
    lblfattore = "FATTORE D'ANTENNA = " + fixed(signal.antenna_factor_db_per_m, 1) + " dB/mt.";
  }
};

const ui::Registration<frmsegnaligenerica> registration{"frmsegnaligenerica"};

}  // namespace

}  // namespace eterlab::signals
