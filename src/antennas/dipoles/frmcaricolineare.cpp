#include "antennas/dipoles/dipole_drawing.h"
#include "antennas/dipoles/dipole_window.h"
#include "antennas/dipoles/linear_loading.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A dipole or vertical shortened by a pair of wires along each arm instead of a coil.
class frmcaricolineare final : public DipoleWindow {
  ui::Frame Frame1{this, "Frame1", "ANTENNA"};
  ui::OptionArray Option1{Frame1, "Option1", {"DIPOLO", "VERTICALE"}};
  ui::Input txtfrequenza{
      this, "txtfrequenza", "FREQUENZA in MHz", {.range = frequencies, .prompt_name = "Label1"}};
  ui::Input txtlunghezza{
      this, "txtlunghezza", dipole_length, {.range = any, .prompt_name = "Label2"}};
  ui::Input txtdiametro{
      this, "txtdiametro", "DIAMETRO DEL RADIATORE in mm", {.range = any, .prompt_name = "Label3"}};
  ui::Input txtfilo{this,
                    "txtfilo",
                    "DIAMETRO DEI FILI DEL CARICO in mm",
                    {.range = any, .prompt_name = "Label4"}};
  ui::Input txtdistanza{this,
                        "txtdistanza",
                        "DISTANZA TRA I FILI DEL CARICO in mm",
                        {.tooltip = "tra i centri, con il radiatore in mezzo",
                         .range = any,
                         .prompt_name = "Label5"}};
  ui::Schematic drawing{this, "drawing", 50, 30};
  ui::Schematic drawing2{this, "drawing2", 50, 30};
  ui::Value lbllun{drawing, "lbllun"};
  ui::Value lbldis{drawing, "lbldis"};
  ui::Result lblcarico{this, "lblcarico"};
  ui::Result lblfilo{this, "lblfilo"};
  ui::Result lblz0{this, "lblz0"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lblresistenza{this, "lblresistenza"};
  ui::Result lblrendimento{this, "lblrendimento"};
  ui::Note Label7{this, "Label7",
                  "I DUE FILI VANNO TENUTI SOPRA E SOTTO IL RADIATORE, ALLA STESSA DISTANZA: SE "
                  "PENDONO O STANNO DA UN LATO IL CALCOLO NON VALE"};
  ui::Button cmdavviso{this, "cmdavviso", "AVVERTENZA"};

 public:
  frmcaricolineare() : DipoleWindow{"frmcaricolineare", "ACCORCIAMENTO CON CARICO LINEARE"} {
    open_warning_by(cmdavviso);
    Frame1.arrange(ui::across(Option1));
    lay_out(
        ui::column(ui::row(ui::column(Frame1,
                                      ui::form(txtfrequenza, txtlunghezza, txtdiametro, txtfilo,
                                               txtdistanza),
                                      ui::stretch()),
                           ui::alternatives(drawing, drawing2)),
                   lblcarico, lblfilo, lblz0, lblreattanza, lblresistenza, lblrendimento, Label7),
        {&cmdavviso});

    Option1.preset(0);
    offer(0);
    Option1.on_click([this](int index) { offer(index); });
  }

  void show_example() override { fill_in({"7.1", "12", "2", "2", "100"}); }

 private:
  static constexpr const char* dipole_length = "LUNGHEZZA TOTALE DEL DIPOLO in mt.";

  void offer(int index) {
    const bool is_dipole = index == 0;
    txtlunghezza.ask(is_dipole ? dipole_length : "ALTEZZA DEL RADIATORE in mt.");
    show_one(is_dipole ? drawing : drawing2, is_dipole ? drawing2 : drawing, {&lbllun, &lbldis});
    is_dipole ? draw_dipole() : draw_vertical();
  }

  // Of the pair, from the feed.
  static constexpr double beginning = half_feed_gap;
  static constexpr double half_spacing = 2.2;
  static constexpr double far_end = 12;
  static constexpr double tip = 22;
  static constexpr double detour = 0.8;  // of the cross piece around the radiator

  void draw_dipole() {
    using enum ui::Schematic::Side;
    constexpr double middle = 25;
    constexpr double wire = 12;
    for (const double side : {-1.0, 1.0}) {
      const auto at = [&](double distance, double down) {
        return ui::At{middle + side * distance, wire + down};
      };
      drawing
          .wire({at(half_feed_gap, half_spacing + 2), at(half_feed_gap, half_spacing),
                 at(far_end, half_spacing), at(far_end, detour)})
          .wire({at(far_end, -detour), at(far_end, -half_spacing), at(beginning, -half_spacing),
                 at(beginning, 0)})
          .rod({at(beginning, 0), at(tip, 0)});
      drawing.arc(at(far_end, 0), detour, side > 0 ? -90 : 90, side > 0 ? 90 : 270);
    }
    draw_feeder(drawing, {middle, wire + half_spacing + 2}, 25);
    draw_length(drawing, {middle + beginning, wire - half_spacing},
                {middle + far_end, wire - half_spacing}, 5, lbllun);
    constexpr double spacing = middle - tip + 5;
    for (const double down : {-half_spacing, half_spacing}) {
      drawing.extension({middle - far_end - 0.8, wire + down}, {spacing - 0.6, wire + down});
    }
    drawing.arrow({spacing, wire - half_spacing - 3}, {spacing, wire - half_spacing})
        .arrow({spacing, wire + half_spacing + 3}, {spacing, wire + half_spacing})
        .label(lbldis, {spacing, wire + half_spacing + 3}, below);
  }

  void draw_vertical() {
    using enum ui::Schematic::Side;
    constexpr double mast = 22;
    constexpr double foot = 24;
    constexpr double ground = 27;
    const auto at = [&](double height, double right_of_mast) {
      return ui::At{mast + right_of_mast, foot - height};
    };
    drawing2.wire({at(-1, half_spacing), at(far_end, half_spacing), at(far_end, detour)})
        .wire({at(far_end, -detour), at(far_end, -half_spacing), at(beginning, -half_spacing),
               at(beginning, 0)})
        .rod({at(beginning, 0), at(tip, 0)})
        .arc(at(far_end, 0), detour, 0, 180);
    drawing2.terminal({mast + half_spacing, foot + 1.4})
        .terminal({mast + half_spacing, ground - 0.4})
        .wire({{mast - 14, ground}, {mast + 18, ground}})
        .ground({mast + half_spacing, ground});
    draw_length_upright(mast + half_spacing, foot - beginning, foot - far_end);
    const double spacing = foot - far_end - 3.5;
    for (const double across : {-half_spacing, half_spacing}) {
      drawing2.extension({mast + across, foot - far_end - 0.8}, {mast + across, spacing - 0.6});
    }
    drawing2.arrow({mast - half_spacing - 3, spacing}, {mast - half_spacing, spacing})
        .arrow({mast + half_spacing + 3, spacing}, {mast + half_spacing, spacing})
        .label(lbldis, {mast + half_spacing + 3, spacing}, right);
  }

  void draw_length_upright(double x, double bottom, double top) {
    constexpr double beside = 5;
    for (const double end : {bottom, top}) {
      drawing2.extension({x + 0.8, end}, {x + beside + 0.6, end});
    }
    drawing2.dimension({x + beside, bottom}, {x + beside, top})
        .label(lbllun, {x + beside, (bottom + top) / 2}, ui::Schematic::Side::right);
  }

  void compute() override {
    const bool is_dipole = Option1.selected() == 0;
    const Real frequency_mhz = txtfrequenza.value();
    const Real arm_m = is_dipole ? txtlunghezza.value() / 2 : txtlunghezza.value();
    const Real load_wire_mm = txtfilo.value();
    const Real spacing_mm = txtdistanza.value();
    require_thin(txtdiametro, {frequency_mhz});
    require_thin(txtfilo, {frequency_mhz});
    const Conductor conductor{frequency_mhz, txtdiametro.value()};
    const Real wavelength_m = conductor.wavelength_m();
    advise(arm_m < half_wave_arm_m(conductor), txtlunghezza,
           is_dipole ? "DIPOLO PIU' LUNGO DI 1/2 LAMBDA" : "RADIATORE PIU' LUNGO DI 1/4 LAMBDA");
    advise(reaches(arm_m, wavelength_m / 20), txtlunghezza,
           is_dipole ? "DIPOLO TROPPO CORTO: MENO DI 1/10 DI LAMBDA"
                     : "RADIATORE TROPPO CORTO: MENO DI 1/20 DI LAMBDA");
    require(reaches(spacing_mm, conductor.diameter_mm + 2 * load_wire_mm), txtdistanza,
            "DISTANZA TRA I FILI INSUFFICIENTE");
    require(reaches(1000 * wavelength_m / 100, spacing_mm), txtdistanza,
            "DISTANZA TRA I FILI ECCESSIVA");
    const LinearLoad load = linear_load({arm_m, conductor, load_wire_mm, spacing_mm});
    advise(load.length_m >= 0.05 * arm_m, txtlunghezza,
           "IL RADIATORE E' QUASI INTERO: CARICO NON NECESSARIO");
    advise(load.length_m <= 0.9 * arm_m, txtlunghezza,
           "CARICO PIU' LUNGO DEL RADIATORE: ALLONTANARE I FILI O ALLUNGARE L'ANTENNA");

    lbllun = metres_text(load.length_m);
    lbldis = plain(spacing_mm) + " mm";
    lblcarico =
        (is_dipole ? "LUNGHEZZA DI OGNI CARICO = " : "LUNGHEZZA DEL CARICO = ") + lbllun.content();
    lblfilo = (is_dipole ? "FILO PER OGNI CARICO = " : "FILO PER IL CARICO = ") +
              metres_text(load.wire_m);
    lblreattanza = "REATTANZA = " + fixed(load.reactance_ohm, 0) + " Ohm";
    lblz0 = "IMPEDENZA DELLA LINEA DEL CARICO = " + fixed(load.line_impedance_ohm, 0) + " Ohm";
    lblresistenza = is_dipole
                        ? "RESISTENZA AL CENTRO = " + fixed(2 * load.resistance_ohm, 1) + " Ohm"
                        : "RESISTENZA ALLA BASE = " + fixed(load.resistance_ohm, 1) + " Ohm";
    lblrendimento = "RENDIMENTO DEL CARICO = " + fixed(100 * load.efficiency, 0) + " %";
  }
};

const ui::Registration<frmcaricolineare> registration{"frmcaricolineare"};

}  // namespace

}  // namespace eterlab::antennas
