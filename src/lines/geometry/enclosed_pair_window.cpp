#include "lines/geometry/enclosed_pair_window.h"

#include "common/rounding.h"
#include "lines/geometry/uniform_line.h"

namespace eterlab::lines {

EnclosedPairWindow::EnclosedPairWindow(const Names& names)
    : LineWindow{names.window, names.title},
      txtdiametro{this,
                  "txtdiametro",
                  "DIAMETRO DEI CONDUTTORI in mm",
                  {.range = wire_range_mm, .tells_range = true, .prompt_name = "Label1"}},
      txtdistanza{this,
                  "txtdistanza",
                  "DISTANZA TRA I CENTRI in mm",
                  {.range = distance_range_mm, .tells_range = true, .prompt_name = "Label2"}},
      enclosure{this,
                names.enclosure_box,
                names.enclosure_prompt,
                {.range = distance_range_mm, .tells_range = true, .prompt_name = "Label3"}},
      dielectric{this, "Label4"},
      drawing{this, "drawing", 40, 28},
      lblquota1{drawing, "lblquota1", "d"},
      lblquota2{drawing, "lblquota2", "D"},
      lblquota3{drawing, "lblquota3", names.enclosure_letter},
      lblimpedenza{this, "lblimpedenza"},
      line{this},
      Label5{this, "Label5", names.note} {
  lay_out(ui::column(ui::form(txtdiametro, txtdistanza, enclosure, dielectric),
                     ui::row(ui::column(lblimpedenza, line, ui::stretch()), drawing), Label5),
          {}, 90);
}

void EnclosedPairWindow::compute() {
  const Real diameter_mm = txtdiametro.value();
  const Real spacing_mm = txtdistanza.value();
  const Real enclosure_mm = enclosure.value();
  advise(reaches(spacing_mm, 1.5 * diameter_mm), txtdistanza,
         "LA DISTANZA DEVE ESSERE ALMENO 1,5 VOLTE IL DIAMETRO");
  const Real factor = checked_factor(diameter_mm, spacing_mm, enclosure_mm);
  const Real velocity = velocity_factor(dielectric.relative_permittivity());
  const Real impedance_ohm = push_pull_impedance_ohm(factor, velocity);
  lblimpedenza = impedance_text(impedance_ohm);
  line.show(impedance_ohm, velocity);
  lblquota1 = millimetres(diameter_mm);
  lblquota2 = millimetres(spacing_mm);
  lblquota3 = millimetres(enclosure_mm);
}

}  // namespace eterlab::lines
