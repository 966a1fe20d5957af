#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/line_window.h"
#include "lines/geometry/uniform_line.h"
#include "ui/measures.h"

namespace eterlab::lines {

namespace {

// A piece of two-wire line as a coil, as a capacitor, or as a feeder.
class frmlineabifilare final : public LineWindow {
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEI FILI in mm",
                        {.range = wire_range_mm, .tells_range = true, .prompt_name = "Label1"}};
  ui::Input txtdistanza{this,
                        "txtdistanza",
                        "DISTANZA TRA I CENTRI in mm",
                        {.range = distance_range_mm, .tells_range = true, .prompt_name = "Label2"}};
  ui::Input txtlunghezza{this,
                         "txtlunghezza",
                         "LUNGHEZZA DELLA LINEA in metri",
                         {.range = length_range_m, .tells_range = true, .prompt_name = "Label3"}};
  ui::Input txtfattore = velocity_factor_input(this, "Label4");
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA in MHz (FACOLTATIVA)",
                         {.range = ui::Range{0.001, 10'000},
                          .tells_range = true,
                          .is_optional = true,
                          .prompt_name = "Label5"}};
  ui::Schematic drawing{this, "drawing", 49, 21};
  ui::Value lblquota1{drawing, "lblquota1", "d"};
  ui::Value lblquota2{drawing, "lblquota2", "D"};
  ui::Value lblquota3{drawing, "lblquota3", "l"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lblgradi{this, "lblgradi"};
  ui::Result lblcorto{this, "lblcorto"};
  ui::Result lblaperta{this, "lblaperta"};
  ui::Note Label6{this, "Label6", "IL PONTICELLO DI CORTO E I COLLEGAMENTI NON SONO COMPRESI"};

 public:
  frmlineabifilare()
      : LineWindow{"frmlineabifilare", "INDUTTANZA E CAPACITA' DI UNA LINEA BIFILARE"} {
    draw();
    lay_out(ui::column(
        ui::row(
            ui::column(ui::form(txtdiametro, txtdistanza, txtlunghezza, txtfattore, txtfrequenza),
                       ui::stretch()),
            drawing),
        lblinduttanza, lblcapacita, lblimpedenza, lblgradi, lblcorto, lblaperta, Label6));
  }

  void show_example() override { fill_in({"3", "40", "0.5", "1", "50"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double terminals = 15.5;
    constexpr double from = 17;
    constexpr double to = 35;
    constexpr double upper = 4;
    constexpr double lower = 14;
    constexpr double half_thickness = 0.5;
    constexpr double bridge = to - 0.5;
    for (const double wire : {upper, lower}) {
      drawing.shaded_box({from, wire - half_thickness}, {to, wire + half_thickness})
          .wire({{terminals, wire}, {from, wire}})
          .terminal({terminals, wire});
    }
    drawing.dashed({{bridge, upper + half_thickness}, {bridge, lower - half_thickness}});
    measure_thin_height(drawing, {to, upper - half_thickness}, {to, upper + half_thickness}, 37.5,
                        lblquota1, right);
    measure_height(drawing, {terminals - 0.5, upper}, {terminals - 0.5, lower}, 13, lblquota2,
                   left);
    measure_width(drawing, {from, lower + half_thickness}, {to, lower + half_thickness}, 17.5,
                  lblquota3, below);
  }

  void compute() override {
    const Real diameter_mm = txtdiametro.value();
    const Real spacing_mm = txtdistanza.value();
    const Real length_m = txtlunghezza.value();
    const Real factor = txtfattore.value();
    require(spacing_mm > diameter_mm, txtdistanza,
            "LA DISTANZA TRA I CENTRI DEVE SUPERARE IL DIAMETRO");
    advise(reaches(length_m, 5 * spacing_mm / 1000), txtlunghezza,
           "LA LUNGHEZZA DEVE ESSERE ALMENO 5 VOLTE LA DISTANZA");
    const Real impedance_ohm =
        push_pull_impedance_ohm(wire_pair_factor(diameter_mm, spacing_mm), factor);
    const LineConstants line = line_constants(impedance_ohm, factor);
    lblinduttanza = "INDUTTANZA = " + fixed(line.inductance_h_per_m * length_m * 1e6, 3) +
                    " uH   (" + microhenry_per_metre(line.inductance_h_per_m) + ")";
    lblcapacita = "CAPACITA' = " + fixed(line.capacitance_f_per_m * length_m * 1e12, 1) +
                  " pF   (" + picofarad_per_metre(line.capacitance_f_per_m) + ")";
    lblimpedenza = impedance_text(impedance_ohm);
    if (const Real frequency_mhz = txtfrequenza.value(); frequency_mhz > 0) {
      show_stub({impedance_ohm, factor, length_m}, frequency_mhz * 1e6);
    }
    lblquota1 = millimetres(diameter_mm);
    lblquota2 = millimetres(spacing_mm);
    lblquota3 = metres(length_m);
  }

  void show_stub(const LinePiece& piece, Real frequency_hz) {
    constexpr double longest_degrees = 85;
    const Real angle_degrees = piece.angle_degrees(frequency_hz);
    lblgradi = "LUNGHEZZA ELETTRICA = " + fixed(angle_degrees, 1) + " GRADI";
    if (angle_degrees > longest_degrees) {
      lblcorto = "OLTRE 85 GRADI NON EQUIVALE A UN'INDUTTANZA O A UNA CAPACITA'";
      return;
    }
    const LineStub stub = piece.stub(frequency_hz);
    lblcorto = "CHIUSA IN CORTO : XL = " + fixed(stub.shorted_reactance_ohm, 1) + " Ohm   PARI A " +
               fixed(stub.shorted_inductance_h * 1e6, 3) + " uH";
    lblaperta = "APERTA : XC = " + fixed(stub.open_reactance_ohm, 1) + " Ohm   PARI A " +
                fixed(stub.open_capacitance_f * 1e12, 1) + " pF";
  }
};

const ui::Registration<frmlineabifilare> registration{"frmlineabifilare"};

}  // namespace

}  // namespace eterlab::lines
