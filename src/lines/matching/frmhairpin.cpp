#include <string_view>

#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/line_section.h"
#include "lines/matching/hairpin.h"
#include "lines/section_window.h"
#include "ui/measures.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

ui::Input::Traits millimetre_traits(std::string_view prompt_name) {
  return {.range = conductor_range_mm, .prompt_name = prompt_name};
}

// A hairpin that matches the radiator of a beam to its cable.
class frmhairpin final : public LineWindow {
  ui::Input txtfrequenza = section_frequency_input(this);
  ui::Input txtr{this,
                 "txtr",
                 "RESISTENZA DEL RADIATORE in OHM",
                 {.range = section_impedance_range_ohm, .prompt_name = "Label2"}};
  ui::Input txtz0{this,
                  "txtz0",
                  "IMPEDENZA DEL CAVO in OHM",
                  {.range = section_impedance_range_ohm, .prompt_name = "Label3"}};
  ui::Input txtradiatore{this, "txtradiatore", "DIAMETRO DEL RADIATORE in mm",
                         millimetre_traits("Label4")};
  ui::Input txtdiametro{this, "txtdiametro", "DIAMETRO DEI TONDINI DELL'HAIRPIN in mm",
                        millimetre_traits("Label5")};
  ui::Input txtdistanza{this, "txtdistanza", "DISTANZA TRA GLI ASSI DEI TONDINI in mm",
                        millimetre_traits("Label6")};
  ui::Schematic drawing{this, "drawing", 48, 24};
  ui::Value lblforcella{drawing, "lblforcella"};
  ui::Value lblasse{drawing, "lblasse"};
  ui::Value lbltaglio{drawing, "lbltaglio"};
  ui::Result lblxc{this, "lblxc"};
  ui::Result lblxl{this, "lblxl"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Result lblaccorciamento{this, "lblaccorciamento"};
  ui::Note Label7{this, "Label7",
                  "LA FORCELLA SI MISURA DAI MORSETTI ALL'ASSE DEL PONTICELLO, CHE VA LASCIATO "
                  "SCORREVOLE"};

 public:
  frmhairpin() : LineWindow{"frmhairpin", "ADATTATORE HAIRPIN PER YAGI"} {
    draw();
    lay_out(ui::column(
        ui::row(
            ui::column(ui::form(txtfrequenza, txtr, txtz0, txtradiatore, txtdiametro, txtdistanza),
                       ui::stretch()),
            drawing),
        lblxc, lblxl, lblinduttanza, lblimpedenza, lbllunghezza, lblaccorciamento, Label7));
  }

  void show_example() override { fill_in({"14.15", "25", "50", "25", "6", "50"}); }

 private:
  void draw() {
    constexpr double radiator = 6;
    constexpr double left = 20;
    constexpr double right = 28;
    constexpr double strap = 18;
    constexpr double tip = 2;
    constexpr double cut = 10;
    drawing.dashed({{tip, radiator}, {cut, radiator}})
        .rod({{cut, radiator}, {left, radiator}})
        .rod({{right, radiator}, {46, radiator}})
        .rod({{left, radiator}, {left, strap}, {right, strap}, {right, radiator}})
        .box({15, 0.5}, {33, 3})
        .named("CAVO E BALUN 1:1", Side::centre);
    for (const double clamp : {left, right}) {
      drawing.wire({{clamp, 3}, {clamp, radiator}}).terminal({clamp, radiator});
    }
    measure_width(drawing, {tip, radiator + 0.5}, {cut, radiator + 0.5}, 9, lbltaglio, Side::below);
    measure_width(drawing, {left, strap + 0.5}, {right, strap + 0.5}, 20.5, lblasse, Side::below);
    measure_height(drawing, {right + 0.5, radiator + 0.6}, {right + 0.5, strap}, 32, lblforcella,
                   Side::right);
  }

  void compute() override {
    const HairpinTask task{.frequency_mhz = txtfrequenza.value(),
                           .radiator_ohm = txtr.value(),
                           .cable_ohm = txtz0.value(),
                           .radiator_diameter_mm = txtradiatore.value(),
                           .rod_diameter_mm = txtdiametro.value(),
                           .spacing_mm = txtdistanza.value()};
    require_suitable(task);
    const Hairpin made = hairpin(task);
    require(made.length_m >= task.spacing_mm / 1000, txtdistanza,
            "FORCELLA TROPPO CORTA: RIDURRE LA DISTANZA TRA GLI ASSI");
    lblxc = "REATTANZA DEL RADIATORE ACCORCIATO = -" + ohms(made.radiator_reactance_ohm);
    lblxl = "REATTANZA DELL'HAIRPIN = " + ohms(made.reactance_ohm);
    lblinduttanza = "INDUTTANZA EQUIVALENTE = " + fixed(1e6 * made.inductance_h, 3) + " uH";
    lblimpedenza = "IMPEDENZA DELLA FORCELLA = " + ohms(made.impedance_ohm);
    lbllunghezza = "LUNGHEZZA DELLA FORCELLA = " + centimetres(made.length_m);
    lblaccorciamento =
        "ACCORCIARE IL RADIATORE DI CIRCA " + centimetres(made.shortening_m) + " PER PARTE";
    lblforcella = centimetres(made.length_m);
    lblasse = millimetres(task.spacing_mm);
    lbltaglio = centimetres(made.shortening_m);
  }

  void require_suitable(const HairpinTask& task) {
    constexpr double in_air = 1;
    const Real wavelength_mm = 1000 * wavelength_in_line_m(task.frequency_mhz, in_air);
    const Real thickest_mm = wavelength_mm / 50;
    const Real widest_mm = wavelength_mm / 20;
    require(task.radiator_ohm <= task.cable_ohm, txtr,
            "LA RESISTENZA DEVE ESSERE MINORE DELL'IMPEDENZA DEL CAVO");
    advise(reaches(0.95 * task.cable_ohm, task.radiator_ohm), txtr,
           "RADIATORE GIA' ADATTATO: L'HAIRPIN NON SERVE");
    require(task.radiator_diameter_mm <= thickest_mm, txtradiatore,
            "RADIATORE TROPPO GROSSO: MASSIMO " + fixed_down(thickest_mm, 0) + " mm");
    require(reaches(task.spacing_mm, 1.5 * task.rod_diameter_mm), txtdistanza,
            "LA DISTANZA DEVE ESSERE ALMENO 1,5 VOLTE IL DIAMETRO");
    require(task.spacing_mm <= widest_mm, txtdistanza,
            "LA DISTANZA NON DEVE SUPERARE " + fixed_down(widest_mm, 0) + " mm");
  }
};

const ui::Registration<frmhairpin> registration{"frmhairpin"};

}  // namespace

}  // namespace eterlab::lines
