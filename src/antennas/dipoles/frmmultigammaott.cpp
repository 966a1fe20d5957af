#include <optional>

#include "antennas/dipoles/dipole_drawing.h"
#include "antennas/dipoles/dipole_window.h"
#include "antennas/dipoles/trap_dipole.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A dipole for three bands with one pair of traps, whose coil and capacitor are computed.
class frmmultigammaott final : public DipoleWindow {
  ui::Schematic drawing{this, "drawing", 72, 14};
  ui::Value lbltratto1{drawing, "lbltratto1"};
  ui::Value lbltratto2{drawing, "lbltratto2"};
  ui::Value lblvaloreind{drawing, "lblvaloreind"};
  ui::Value lblvalorecap{drawing, "lblvalorecap"};
  ui::Input txtf1{this,
                  "txtf1",
                  "FREQUENZA PIU' BASSA in MHz",
                  {.range = frequencies, .prompt_name = "Label1"}};
  ui::Input txtf2{this,
                  "txtf2",
                  "FREQUENZA INTERMEDIA E DELLE TRAPPOLE in MHz",
                  {.range = frequencies, .prompt_name = "Label2"}};
  ui::Input txtf3{
      this, "txtf3", "TERZA FREQUENZA in MHz", {.range = frequencies, .prompt_name = "Label3"}};
  ui::Input txtdiametro{
      this, "txtdiametro", "DIAMETRO DEL FILO in mm", {.range = any, .prompt_name = "Label4"}};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lbltotale{this, "lbltotale"};
  ui::ResultTable table{this,
                        "table",
                        5,
                        {{.name = "lblf", .head = "FREQUENZA", .head_name = "Label10"},
                         {.name = "lblz", .head = "IMPEDENZA Ohm", .head_name = "Label11"},
                         {.name = "lblros50", .head = "ROS A 50 Ohm", .head_name = "Label12"},
                         {.name = "lblros75", .head = "ROS A 75 Ohm", .head_name = "Label13"}}};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINA", {"frmbobine", {180, 180}, {4100, 2800}}};
  ui::Button cmdavviso{this, "cmdavviso", "AVVERTENZA"};

 public:
  frmmultigammaott()
      : DipoleWindow{"frmmultigammaott",
                     "DIPOLO MULTIGAMMA OTTIMIZZATO - UNA SOLA TRAPPOLA PER BRACCIO"} {
    open_warning_by(cmdavviso);
    draw();
    table.reserve(0, "1.000,000 MHz");
    table.reserve(1, "12.345 - j12.345");
    lay_out(ui::column(ui::row(ui::stretch(), drawing, ui::stretch()),
                       ui::row(ui::form(txtf1, txtf2, txtf3, txtdiametro), ui::stretch()),
                       lblinduttanza, lblcapacita, lbltotale, table),
            {&cmdchiamabobine, &cmdavviso});
  }

  void show_example() override { fill_in({"3.65", "7.05", "14.15", "2"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double wire = 7;
    constexpr double middle = 36;
    constexpr double half = 32;
    constexpr double trap = 18;  // from the middle
    for (const double side : {-1.0, 1.0}) {
      const auto at = [&](double distance) { return ui::At{middle + side * distance, wire}; };
      drawing.rod({at(half_feed_gap), at(trap - half_trap)}).rod({at(trap + half_trap), at(half)});
      draw_trap(drawing, at(trap));
    }
    draw_feeder(drawing, {middle, wire}, 12.5);
    drawing.label(lblvaloreind, {middle - trap, wire - 3}, above)
        .label(lblvalorecap, {middle - trap, wire + 3.2}, below);
    draw_length(drawing, {middle, wire}, {middle + trap - half_trap, wire - 2}, 3, lbltratto1);
    draw_length(drawing, {middle + trap + half_trap, wire - 2}, {middle + half, wire}, 3,
                lbltratto2);
  }

  void compute() override {
    const ThreeBands bands{txtf1.value(), txtf2.value(), txtf3.value()};
    require_thin(txtdiametro, {bands.low_mhz, bands.trap_mhz, bands.high_mhz});
    constexpr double least_step = 1.1;
    const char* const do_not_rise = "LE FREQUENZE DEVONO CRESCERE DI ALMENO IL 10 %";
    require(reaches(bands.trap_mhz, least_step * bands.low_mhz), txtf2, do_not_rise);
    require(reaches(bands.high_mhz, least_step * bands.trap_mhz), txtf3, do_not_rise);
    require(reaches(10 * bands.low_mhz, bands.high_mhz), txtf3,
            "LA TERZA FREQUENZA NON PUO' SUPERARE 10 VOLTE LA PRIMA");
    const std::optional<SinglePairDipole> dipole = single_pair_dipole(bands, txtdiametro.value());
    advise(dipole.has_value(), txtf3,
           "NESSUNA TRAPPOLA ACCORDA QUESTE TRE BANDE: CAMBIARE LA TERZA FREQUENZA");

    lblvaloreind = fixed(dipole->inductance_h * 1e6, 2) + " uH";
    lblvalorecap = fixed(dipole->capacitance_f * 1e12, 1) + " pF";
    lblinduttanza = "INDUTTANZA DELLA TRAPPOLA = " + lblvaloreind.content();
    lblcapacita = "CONDENSATORE DELLA TRAPPOLA = " + lblvalorecap.content();
    lbltotale = "LUNGHEZZA TOTALE = " + metres_text(2 * (dipole->inner_m + dipole->outer_m));
    lbltratto1 = metres_text(dipole->inner_m);
    lbltratto2 = metres_text(dipole->outer_m);
    int row = 0;
    for (const Real frequency_mhz : {bands.low_mhz, bands.trap_mhz, bands.high_mhz,
                                     1.5 * bands.high_mhz, 2 * bands.high_mhz}) {
      const Complex impedance_ohm = dipole->impedance_ohm(frequency_mhz);
      table.at(row, 0) = fixed(frequency_mhz, 3) + " MHz";
      table.at(row, 1) = impedance_text(impedance_ohm);
      table.at(row, 2) = standing_wave_text(impedance_ohm, 50);
      table.at(row, 3) = standing_wave_text(impedance_ohm, 75);
      ++row;
    }
  }
};

const ui::Registration<frmmultigammaott> registration{"frmmultigammaott"};

}  // namespace

}  // namespace eterlab::antennas
