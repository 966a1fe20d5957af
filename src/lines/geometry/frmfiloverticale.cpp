#include "common/number_text.h"
#include "common/physics.h"
#include "common/rounding.h"
#include "lines/geometry/line_window.h"
#include "lines/geometry/section_drawing.h"
#include "lines/geometry/wire_over_ground.h"
#include "ui/measures.h"

namespace eterlab::lines {

namespace {

// The static capacitance to ground of a vertical wire, such as a whip or a down-lead.
class frmfiloverticale final : public LineWindow {
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEL FILO in mm",
                        {.range = wire_range_mm, .tells_range = true, .prompt_name = "Label1"}};
  ui::Input txtlunghezza{this,
                         "txtlunghezza",
                         "LUNGHEZZA DEL FILO in metri",
                         {.range = length_range_m, .tells_range = true, .prompt_name = "Label2"}};
  ui::Input txtbase{
      this,
      "txtbase",
      "ALTEZZA DELLA BASE DAL SUOLO in metri (VUOTA = 0)",
      {.range = length_range_m, .tells_range = true, .is_optional = true, .prompt_name = "Label3"}};
  ui::Schematic drawing{this, "drawing", 34, 25};
  ui::Value lblquota1{drawing, "lblquota1", "d"};
  ui::Value lblquota2{drawing, "lblquota2", "l"};
  ui::Value lblquota3{drawing, "lblquota3", "h"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblmetro{this, "lblmetro"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Note Label4{this, "Label4",
                  "SUOLO BEN CONDUTTORE, FILO ISOLATO ALLA BASE. IL VALORE VERO PUO' ESSERE FINO "
                  "AL 3 % MAGGIORE; AGGIUNGERE LA CAPACITA' DELL'ISOLATORE"};

 public:
  frmfiloverticale()
      : LineWindow{"frmfiloverticale", "CAPACITA' DI UN FILO VERTICALE VERSO TERRA"} {
    draw();
    lay_out(ui::column(ui::row(ui::column(ui::form(txtdiametro, txtlunghezza, txtbase), lblcapacita,
                                          lblmetro, lblimpedenza, ui::stretch()),
                               drawing),
                       Label4));
  }

  void show_example() override { fill_in({"2", "10", "0.5"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double axis = 17;
    constexpr double half_thickness = 0.5;
    constexpr double top = 5;
    constexpr double foot = 15;
    constexpr double ground = 22;
    constexpr double middle = (foot + ground) / 2;
    constexpr double half_capacitor = 0.35;
    drawing.shaded_box({axis - half_thickness, top}, {axis + half_thickness, foot})
        .dashed({{axis, foot}, {axis, middle - half_capacitor}})
        .capacitor({axis, middle - half_capacitor}, {axis, middle + half_capacitor})
        .dashed({{axis, middle + half_capacitor}, {axis, ground}});
    plane(drawing, {9, ground}, {26, ground});
    measure_thin_width(drawing, {axis - half_thickness, top}, {axis + half_thickness, top}, 3,
                       lblquota1, above);
    measure_height(drawing, {axis + half_thickness, top}, {axis + half_thickness, foot}, 21,
                   lblquota2, right);
    measure_height(drawing, {axis - half_thickness, foot}, {axis - half_thickness, ground}, 13,
                   lblquota3, left);
  }

  void compute() override {
    const Real diameter_m = txtdiametro.value() / 1000;
    const Real length_m = txtlunghezza.value();
    const bool has_base = txtbase.value() > 0;
    advise(reaches(length_m, 50 * diameter_m), txtlunghezza,
           "LA LUNGHEZZA DEVE ESSERE ALMENO 50 VOLTE IL DIAMETRO");
    const Real capacitance_f =
        vertical_wire_capacitance_f(diameter_m, length_m, has_base ? txtbase.value() : 0);
    const Real mean_impedance_ohm = length_m / (speed_of_light_m_per_s * capacitance_f);
    lblcapacita = "CAPACITA' = " + fixed(capacitance_f * 1e12, 1) + " pF";
    lblmetro = "PER METRO DI FILO = " + fixed(capacitance_f / length_m * 1e12, 2) + " pF";
    lblimpedenza = "IMPEDENZA MEDIA = " + fixed(mean_impedance_ohm, 0) + " Ohm";
    lblquota1 = millimetres(txtdiametro.value());
    lblquota2 = metres(length_m);
    lblquota3 = has_base ? metres(txtbase.value()) : "";
  }
};

const ui::Registration<frmfiloverticale> registration{"frmfiloverticale"};

}  // namespace

}  // namespace eterlab::lines
