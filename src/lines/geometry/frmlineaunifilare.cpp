#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/line_window.h"
#include "lines/geometry/section_drawing.h"
#include "lines/geometry/uniform_line.h"
#include "lines/geometry/wire_over_ground.h"
#include "ui/measures.h"

namespace eterlab::lines {

namespace {

// A horizontal wire over ground, such as a long-wire antenna, in all and per metre.
class frmlineaunifilare final : public LineWindow {
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEL FILO in mm",
                        {.range = wire_range_mm, .tells_range = true, .prompt_name = "Label1"}};
  ui::Input txtaltezza{this,
                       "txtaltezza",
                       "ALTEZZA DAL SUOLO in metri",
                       {.range = length_range_m, .tells_range = true, .prompt_name = "Label2"}};
  ui::Input txtlunghezza{this,
                         "txtlunghezza",
                         "LUNGHEZZA DEL FILO in metri",
                         {.range = length_range_m, .tells_range = true, .prompt_name = "Label3"}};
  ui::Schematic drawing{this, "drawing", 48, 19};
  ui::Value lblquota1{drawing, "lblquota1", "d"};
  ui::Value lblquota2{drawing, "lblquota2", "h"};
  ui::Value lblquota3{drawing, "lblquota3", "l"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblmetro{this, "lblmetro"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Note Label4{this, "Label4",
                  "FILO ORIZZONTALE SU SUOLO BEN CONDUTTORE, DISCESE ESCLUSE. SU TERRENO COMUNE "
                  "L'INDUTTANZA E L'IMPEDENZA SONO UN POCO MAGGIORI"};

 public:
  frmlineaunifilare()
      : LineWindow{"frmlineaunifilare",
                   "INDUTTANZA E CAPACITA' DI UNA LINEA UNIFILARE SOPRA IL SUOLO"} {
    draw();
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtdiametro, txtaltezza, txtlunghezza), ui::stretch()),
                drawing),
        lblinduttanza, lblcapacita, lblmetro, lblimpedenza, Label4));
  }

  void show_example() override { fill_in({"2", "6", "20"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double from = 14.5;
    constexpr double to = 33;
    constexpr double axis = 7;
    constexpr double half_thickness = 0.5;
    constexpr double ground = 16;
    drawing.shaded_box({from, axis - half_thickness}, {to, axis + half_thickness});
    plane(drawing, {to, ground}, {from - 3, ground});
    measure_thin_height(drawing, {from, axis - half_thickness}, {from, axis + half_thickness}, 12,
                        lblquota1, left);
    measure_height(drawing, {to, axis}, {to, ground}, 35, lblquota2, right);
    measure_width(drawing, {from, axis - half_thickness}, {to, axis - half_thickness}, 3.5,
                  lblquota3, above);
  }

  void compute() override {
    const Real diameter_m = txtdiametro.value() / 1000;
    const Real height_m = txtaltezza.value();
    const Real length_m = txtlunghezza.value();
    require(reaches(height_m, diameter_m), txtaltezza,
            "L'ALTEZZA DEVE ESSERE ALMENO PARI AL DIAMETRO DEL FILO");
    advise(reaches(length_m, 50 * diameter_m), txtlunghezza,
           "LA LUNGHEZZA DEVE ESSERE ALMENO 50 VOLTE IL DIAMETRO");
    const WireConstants wire = horizontal_wire(diameter_m, height_m, length_m);
    const Real impedance_ohm =
        single_ended_impedance_ohm(wire_over_ground_factor(diameter_m, height_m), 1);
    const LineConstants line = line_constants(impedance_ohm, 1);
    lblinduttanza = "INDUTTANZA = " + fixed(wire.inductance_h * 1e6, 3) + " uH";
    lblcapacita = "CAPACITA' = " + fixed(wire.capacitance_f * 1e12, 1) + " pF";
    lblmetro = "LINEA LUNGA, PER METRO : " + fixed(line.inductance_h_per_m * 1e6, 3) + " uH   " +
               fixed(line.capacitance_f_per_m * 1e12, 2) + " pF";
    lblimpedenza = impedance_text(impedance_ohm);
    lblquota1 = millimetres(txtdiametro.value());
    lblquota2 = metres(height_m);
    lblquota3 = metres(length_m);
  }
};

const ui::Registration<frmlineaunifilare> registration{"frmlineaunifilare"};

}  // namespace

}  // namespace eterlab::lines
