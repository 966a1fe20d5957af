#include <cmath>
#include <vector>

#include "common/number_text.h"
#include "common/physics.h"
#include "signals/decibel_watt.h"
#include "signals/received_signal.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

// What a field strength gives at the ends of a half-wave dipole.
class frmsegnalidipolo final : public ui::Calculator {
  ui::Input txtcampo{this, "txtcampo", "INTENSITA' DI CAMPO in microVolt/mt."};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz"};
  ui::Result lbleffettiva{this, "lbleffettiva"};
  ui::Result lblvuoto{this, "lblvuoto"};
  ui::Result lblcarico{this, "lblcarico"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Result lblricevitore{this, "lblricevitore"};
  ui::Schematic drawing{this, "drawing", 36, 26};
  ui::Value lblvalorericevitore{drawing, "lblvalorericevitore"};

 public:
  frmsegnalidipolo()
      : Calculator{"frmsegnalidipolo", "SEGNALE RICEVUTO DA UN DIPOLO A MEZZA ONDA"} {
    draw();
    lay_out(
        ui::column(ui::row(ui::column(ui::form(txtcampo, txtfrequenza), ui::stretch()), drawing),
                   lbleffettiva, lblvuoto, lblcarico, lblpotenza, lblricevitore));
  }

  void show_example() override { fill_in({"100", "14.2"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double dipole_x = 18;
    constexpr double top = 2;
    constexpr double middle = 13;
    constexpr double bottom = 24;
    constexpr double half_gap = 1;
    constexpr double receiver_x = 24;
    for (const double x : {2.0, 4.0, 6.0}) {
      drawing.wire({{x, top + 2}, {x, bottom - 2}});
    }
    drawing.arrow({7, middle}, {11, middle})
        .mark({4, bottom - 2}, "E", Side::below)
        .rod({{dipole_x, top}, {dipole_x, middle - half_gap}})
        .rod({{dipole_x, middle + half_gap}, {dipole_x, bottom}})
        .curve(current(dipole_x, top, bottom))
        .mark({dipole_x - 3.2, top + 4}, "I", Side::left);
    drawing.wire({{dipole_x, middle - half_gap}, {receiver_x, middle - half_gap}})
        .wire({{dipole_x, middle + half_gap}, {receiver_x, middle + half_gap}})
        .box({receiver_x, middle - 2.5}, {receiver_x + 7, middle + 2.5})
        .named(lblvalorericevitore, Side::below)
        .mark({receiver_x + 3.5, middle}, "RX");
  }

  /// How strong it is along the dipole, to its left.
  static std::vector<ui::At> current(double x, double top, double bottom) {
    constexpr double greatest = 4;
    constexpr int pieces = 40;
    std::vector<ui::At> places;
    for (int piece = 0; piece <= pieces; ++piece) {
      const double share = static_cast<double>(piece) / pieces;
      places.push_back({x - greatest * std::sin(pi * share), top + (bottom - top) * share});
    }
    return places;
  }

  void compute() override {
    const DipoleSignal signal = dipole_signal(txtcampo.value() / 1e6, txtfrequenza.value() * 1e6);
    const Real power = signal.available_power_w;
    lbleffettiva = "LUNGHEZZA EFFICACE DEL DIPOLO = " + sig(signal.effective_length_m, 4) + " mt.";
    lblvuoto = "TENSIONE A VUOTO = " + eng(signal.open_circuit_v, "V");
    lblcarico = "TENSIONE SUL CARICO ADATTATO (73 OHM) = " + eng(signal.matched_load_v, "V");
    lblpotenza = "POTENZA RICEVUTA = " + eng(power, "W") + ", " +
                 fixed(level_dbw(power) + one_watt_dbm, 1) + " dBm";
    lblricevitore =
        "TENSIONE SU UN RICEVITORE DA 50 OHM ADATTATO = " + eng(rms_voltage_v(power, 50), "V");
    lblvalorericevitore = eng(rms_voltage_v(power, 50), "V");
  }
};

const ui::Registration<frmsegnalidipolo> registration{"frmsegnalidipolo"};

}  // namespace

}  // namespace eterlab::signals
