#include "antennas/beams/hb9cv.h"
#include "antennas/conductor_window.h"
#include "common/number_text.h"
#include "ui/schematic.h"

namespace eterlab::antennas {

namespace {

// The compact beam of two driven elements.
class frmhb9cv final : public ConductorWindow {
  ui::Schematic drawing{this, "drawing", 100, 36};
  ui::Value lblriflettore{drawing, "lblriflettore"};
  ui::Value lbldirettore{drawing, "lbldirettore"};
  ui::Value lblspaziatura{drawing, "lblspaziatura"};
  ui::Value lblpresarif{drawing, "lblpresarif"};
  ui::Value lblpresadir{drawing, "lblpresadir"};
  ui::Result lblaltezza{this, "lblaltezza"};
  ui::Result lblaste{this, "lblaste"};
  ui::Result lblcompensatore{this, "lblcompensatore"};
  ui::Note Label3{
      this, "Label3",
      "ELEMENTI E BOOM A MASSA NEL CENTRO. LE DUE ASTE PARTONO DA LATI OPPOSTI DEL BOOM "
      "E SONO UNITE DALLA LINEA DI FASE, CHE CORRE ALLA STESSA DISTANZA SOPRA IL BOOM. "
      "IL CAVO DA 50 Ohm VA AL CENTRO DEL DIRETTORE: LA CALZA ALLA MASSA, IL CENTRALE "
      "ALLA LINEA DI FASE ATTRAVERSO IL COMPENSATORE."};
  ui::Note Label4{
      this, "Label4",
      "GUADAGNO 4 - 5 dB SUL DIPOLO, AVANTI/INDIETRO 12 - 19 dB. COMPENSATORE VARIABILE "
      "FINO A 1,3 VOLTE IL VALORE: TARARLO, POI LE PRESE, PER IL MINIMO ROS."};

 public:
  frmhb9cv()
      : ConductorWindow{
            "frmhb9cv",
            "ANTENNA HB9CV",
            {.prompt = "DIAMETRO DEGLI ELEMENTI in mm", .tooltip = {}, .suitable = {3e-4, 6e-3}}} {
    name_hint("Label5");
    draw();
    lay_out(ui::column(ui::row(ui::form(txtfrequenza, txtdiametro), ui::stretch()), drawing,
                       lblaltezza, lblaste, lblcompensatore, Label3, Label4));
  }

  void show_example() override { fill_in({"28.5", "20"}); }

 private:
  // Seen from above, the reflector to the left.
  static constexpr double reflector_x = 15;
  static constexpr double director_x = 85;
  static constexpr double boom_y = 17;
  static constexpr double half_boom = 1.2;
  static constexpr double top = 3.5;
  static constexpr double director_top = 5;
  static constexpr double tap = 7;
  static constexpr double rod_gap = 1.4;

  void draw() {
    using enum ui::Schematic::Side;
    draw_elements();
    draw_feed();
    constexpr double bottom = 2 * boom_y - top;
    constexpr double measured = bottom + 2;
    drawing.label(lblriflettore, {reflector_x, top - 0.5}, above)
        .label(lbldirettore, {director_x, director_top - 0.5}, above)
        .arrow({40, 4}, {58, 4})
        .mark({49, 4}, "IRRADIAZIONE", above);
    drawing.extension({reflector_x, bottom + 0.5}, {reflector_x, measured + 0.5})
        .extension({director_x, bottom - 1}, {director_x, measured + 0.5})
        .dimension({reflector_x, measured}, {director_x, measured})
        .label(lblspaziatura, {(reflector_x + director_x) / 2, measured}, below);
  }

  void draw_elements() {
    using enum ui::Schematic::Side;
    constexpr double reflector_rod = reflector_x + rod_gap;
    constexpr double director_rod = director_x - rod_gap;
    drawing.shaded_box({reflector_x, boom_y - half_boom}, {director_x, boom_y + half_boom})
        .rod({{reflector_x, top}, {reflector_x, 2 * boom_y - top}})
        .rod({{director_x, director_top}, {director_x, 2 * boom_y - director_top}})
        .wire({{reflector_x, boom_y - tap},
               {reflector_rod, boom_y - tap},
               {reflector_rod, boom_y},
               {director_rod, boom_y},
               {director_rod, boom_y + tap},
               {director_x, boom_y + tap}})
        .junction({reflector_x, boom_y - tap})
        .junction({director_x, boom_y + tap});
    constexpr double reflector_measure = reflector_rod + 2;
    constexpr double director_measure = director_rod - 2;
    drawing.extension({reflector_rod + 0.5, boom_y - tap}, {reflector_measure + 0.5, boom_y - tap})
        .dimension({reflector_measure, boom_y - tap}, {reflector_measure, boom_y})
        .label(lblpresarif, {reflector_measure, boom_y - tap / 2 - half_boom / 2}, right);
    drawing.extension({director_rod - 0.5, boom_y + tap}, {director_measure - 0.5, boom_y + tap})
        .dimension({director_measure, boom_y}, {director_measure, boom_y + tap})
        .label(lblpresadir, {director_measure, boom_y + tap / 2 + half_boom / 2}, left);
  }

  /// From the phasing line's end at the director through the capacitor to the cable.
  void draw_feed() {
    constexpr double x = director_x - 8;
    constexpr double capacitor_bottom = boom_y - half_boom;
    constexpr double capacitor_top = boom_y - 6.5;
    constexpr ui::CoaxialCable cable{{x, capacitor_top}, {x, 5.5}};
    constexpr double ground = cable.screen_from.x + 2;
    drawing.junction({x, boom_y})
        .wire({{x, boom_y}, {x, capacitor_bottom}})
        .variable_capacitor({x, capacitor_bottom}, {x, capacitor_top})
        .coaxial_cable(cable)
        .named("50 Ohm", ui::Schematic::Side::left)
        .wire({cable.screen_from, {ground, cable.screen_from.y}, {ground, boom_y - half_boom}})
        .junction({ground, boom_y - half_boom});
  }

  void compute() override {
    const AntennaWire element = conductor();
    const Hb9cv antenna = hb9cv(element.wavelength_m, element.diameter_m);
    lblriflettore = "RIFLETTORE = " + cm_and_length(antenna.reflector_m);
    lbldirettore = "DIRETTORE = " + cm_and_length(antenna.director_m);
    lblspaziatura = "SPAZIATURA = " + cm_and_length(antenna.spacing_m);
    lblpresarif =
        "PRESA SUL RIFLETTORE = " + cm_and_length(antenna.reflector_tap_m) + " DAL CENTRO";
    lblpresadir = "PRESA SUL DIRETTORE = " + cm_and_length(antenna.director_tap_m) + " DAL CENTRO";
    lblaltezza =
        "DISTANZA TRA GLI ASSI DI ASTE ED ELEMENTI = " + cm_and_length(antenna.rod_height_m);
    lblaste = "DIAMETRO DELLE ASTE = mm " + fixed(1000 * antenna.rod_diameter_m, 1);
    lblcompensatore = "COMPENSATORE = " + fixed(1e12 * antenna.capacitance_f, 0) + " pF";
  }
};

const ui::Registration<frmhb9cv> registration{"frmhb9cv"};

}  // namespace

}  // namespace eterlab::antennas
