#include "antennas/verticals/loaded_vertical.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

constexpr ui::Tooltip decimals = ui::tooltip("separare i decimali con il punto");

// A vertical antenna shorter than a quarter wave and the coil that loads it.
class frmvertaccorciata final : public ui::Window {
  ui::Heading Label1{this, "Label1", "CALCOLO INDUTTANZA DELLA BOBINA IN ARIA"};
  ui::Label Label2{this, "Label2", "LUNGHEZZA TOTALE RADIATORE in mt."};
  ui::TextBox txtlunghezza{this, "txtlunghezza", decimals};
  ui::Label Label3{this, "Label3", "DISTANZA BOBINA DALLA BASE in mt."};
  ui::TextBox txtdistanza{this, "txtdistanza", decimals};
  ui::Label Label4{this, "Label4", "DIAMETRO DEL RADIATORE in mm"};
  ui::TextBox txtdiametro{this, "txtdiametro", decimals};
  ui::Label Label5{this, "Label5", "FREQUENZA  in MHz"};
  ui::TextBox txtfrequenza{this, "txtfrequenza", decimals};
  ui::Note Label6{this, "Label6", "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblgradi{this, "lblgradi"};
  ui::Result lblRR{this, "lblRR"};
  ui::Schematic disegno{this, "disegno", 44, 40};
  ui::Label lblind{disegno, "lblind"};
  ui::Label lbldist{disegno, "lbldist", "dist."};
  ui::Label lbllung{disegno, "lbllung", "lung."};
  ui::Label lblradiali{disegno, "lblradiali"};
  ui::Label Label7{disegno, "Label7", "non in scala"};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINA", {"frmbobine", {180, 180}, {4100, 2800}}};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmvertaccorciata() : Window{"frmvertaccorciata", "ANTENNA VERTICALE ACCORCIATA"} {
    draw();
    arrange(
        ui::column(
            Label1,
            ui::row(ui::column(ui::form(field(Label2, txtlunghezza), field(Label3, txtdistanza),
                                        field(Label4, txtdiametro), field(Label5, txtfrequenza)),
                               Label6, lblinduttanza, lblgradi, lblRR, ui::stretch()),
                    disegno),
            ui::buttons(cmdchiamabobine, cmdcalcola, cmdesci)),
        112);

    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtlunghezza = "2.5";
    txtdistanza = "1";
    txtdiametro = "10";
    txtfrequenza = "7.05";
    cmdcalcola.click();
  }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double radiator = 22;
    constexpr double tip = 1;
    constexpr double coil = 18;
    constexpr double half_coil = 2.5;
    constexpr double coil_diameter = 3;
    constexpr double coil_end = radiator - coil_diameter / 2;
    constexpr double base = 29;
    constexpr double hub = 32;  // where the radials meet
    constexpr double length = radiator - 6;
    constexpr double distance = radiator + 6;
    disegno.rod({{radiator, tip}, {radiator, coil - half_coil}})
        .winding({radiator, coil - half_coil}, {radiator, coil + half_coil}, coil_diameter, 5)
        .wire({{radiator, coil - half_coil}, {coil_end, coil - half_coil}})
        .wire({{radiator, coil + half_coil}, {coil_end, coil + half_coil}})
        .rod({{radiator, coil + half_coil}, {radiator, base}})
        .terminal({radiator, base + 0.7})
        .terminal({radiator, hub - 0.7})
        .wire({{radiator - 13, hub + 3}, {radiator, hub}, {radiator + 13, hub + 3}})
        .dashed({{length - 1, tip}, {radiator, tip}})
        .dashed({{length - 1, base}, {distance + 1, base}})
        .dashed({{radiator + 2, coil}, {distance + 1, coil}})
        .dimension({length, tip}, {length, base})
        .dimension({distance, coil}, {distance, base});

    disegno.label(lbllung, {length, (tip + base) / 2}, left)
        .label(lbldist, {distance, (coil + base) / 2}, right)
        .label(lblind, {radiator + 1.5, coil - 1.5}, right)
        .label(lblradiali, {radiator, hub + 3}, below)
        .label(Label7, {radiator, hub + 5.5}, below);
    Label7.set_role(ui::Label::Role::text);
  }

  void cmdcalcola_click() {
    const Real length_m = txtlunghezza.number();
    const Single coil_height_m{txtdistanza.number()};
    const Real diameter_mm = txtdiametro.number();
    const Real frequency_mhz = txtfrequenza.number();
    if (frequency_mhz * diameter_mm * (2 * length_m) * coil_height_m <= 0) {
      refuse(txtlunghezza);
      return;
    }
    const LoadedVertical antenna{length_m, coil_height_m, diameter_mm, frequency_mhz};
    if (reaches_half_wave(antenna)) {
      refuse(txtlunghezza, "RADIATORE PIU' LUNGO DI 1/2 LAMBDA", "MESSAGGIO DI AVVISO");
      return;
    }
    if (has_coil_beyond_tip(antenna)) {
      refuse(txtdistanza, "DISTANZA ECCESSIVA", "MESSAGGIO DI AVVISO");
      return;
    }
    const std::string inductance_uh = fixed(loading_inductance_uh(antenna), 2);
    lblinduttanza = "INDUTTANZA in micro HENRY : " + inductance_uh;
    lblgradi = "LUNGHEZZA ANTENNA IN GRADI  :  " + fixed(electrical_length_degrees(antenna), 2);
    lblRR = "RESISTENZA DI RADIAZIONE CIRCA ohm = " + fixed(radiation_resistance_ohm(antenna), 2);
    lblind = inductance_uh;
    lbldist = plain(coil_height_m) + " mt";
    lbllung = plain(length_m) + " mt";
    lblradiali = "radiali mt " + fixed(radial_length_m(frequency_mhz), 1);
  }
};

const ui::Registration<frmvertaccorciata> registration{"frmvertaccorciata"};

}  // namespace

}  // namespace eterlab::antennas
