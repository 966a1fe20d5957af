#include "lines/geometry/enclosed_rod_window.h"

#include <vector>

#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/geometry/uniform_line.h"

namespace eterlab::lines {

EnclosedRodWindow::EnclosedRodWindow(const Kind& kind)
    : LineWindow{kind.window, kind.title},
      drawing{this, "drawing", 40, 25},
      lblquota1{drawing, "lblquota1", kind.size_letter},
      lblquota2{drawing, "lblquota2", "d"},
      kind_{kind},
      either{this,
             {"TROVARE L'IMPEDENZA", "DIAMETRO DEL CONDUTTORE in mm", wire_range_mm},
             {"TROVARE IL DIAMETRO DEL CONDUTTORE", "IMPEDENZA in Ohm", impedance_range_ohm}},
      size{this,
           kind.size_box,
           kind.size_prompt,
           {.range = distance_range_mm, .tells_range = true, .prompt_name = "Label1"}},
      dielectric{this, "Label2"},
      lblrisultato{this, "lblrisultato"},
      lblcommerciale{this, "lblcommerciale"},
      line{this} {
  std::vector<ui::Item> items{
      either.Frame1, ui::form(size, either.txtinput, dielectric),
      ui::row(ui::column(lblrisultato, line, lblcommerciale, ui::stretch()), drawing)};
  if (!kind.note.empty()) {
    Label3 = std::make_unique<ui::Note>(this, "Label3", kind.note);
    items.emplace_back(*Label3);
  }
  lay_out(ui::column(items), {}, 102);
}

void EnclosedRodWindow::compute() {
  const Real size_mm = size.value();
  either.is_first() ? find_impedance(size_mm) : find_diameter(size_mm);
  lblquota1 = millimetres(size_mm);
}

Real EnclosedRodWindow::impedance_of(Real diameter_mm, Real size_mm) const {
  return single_ended_impedance_ohm(kind_.factor_of(diameter_mm, size_mm),
                                    velocity_factor(dielectric.relative_permittivity()));
}

void EnclosedRodWindow::find_impedance(Real size_mm) {
  const Real diameter_mm = either.value();
  require(diameter_mm < size_mm, either.txtinput, kind_.too_large);
  advise(reaches(size_mm, thickest_rod_ratio * diameter_mm), either.txtinput, kind_.too_thick);
  advise(reaches(thinnest_rod_ratio * diameter_mm, size_mm), either.txtinput, kind_.too_thin);
  const Real impedance_ohm = impedance_of(diameter_mm, size_mm);
  lblrisultato = impedance_text(impedance_ohm);
  line.show(impedance_ohm, velocity_factor(dielectric.relative_permittivity()));
  lblquota2 = millimetres(diameter_mm);
}

void EnclosedRodWindow::find_diameter(Real size_mm) {
  const Real impedance_ohm = either.value();
  const Real velocity = velocity_factor(dielectric.relative_permittivity());
  const Real factor = single_ended_geometry_factor(impedance_ohm, velocity);
  const Real least = kind_.factor_of(1, thickest_rod_ratio);
  const Real greatest = kind_.factor_of(1, thinnest_rod_ratio);
  advise(factor >= least && factor <= greatest, either.txtinput,
         impedance_limits_text(single_ended_impedance_ohm(least, velocity),
                               single_ended_impedance_ohm(greatest, velocity)));
  const Real diameter_mm = enclosed_rod_diameter(kind_.factor_of, size_mm, factor);
  lblrisultato = "DIAMETRO DEL CONDUTTORE = " + fixed(diameter_mm, 2) + " mm";
  lblcommerciale = rod_text(diameter_mm, size_mm / thickest_rod_ratio,
                            [&](Real rod_mm) { return impedance_of(rod_mm, size_mm); });
  line.show(impedance_ohm, velocity);
  lblquota2 = computed_millimetres(diameter_mm);
}

}  // namespace eterlab::lines
