#include "antennas/dipoles/dipole_window.h"

#include <algorithm>

#include "antennas/straight_wire.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/standing_wave.h"

namespace eterlab::antennas {

DipoleWindow::DipoleWindow(std::string_view name, std::string_view title)
    : Calculator{name, title},
      Label8{this, "Label8",
             "LUNGHEZZE PER CONDUTTORE NUDO NELLO SPAZIO LIBERO: TAGLIARE ABBONDANTE E ACCORCIARE "
             "LE PUNTE PER IL MINIMO ROS"} {
  name_hint("Label9");
}

void DipoleWindow::lay_out(const ui::Item& contents, std::initializer_list<ui::Button*> others,
                           int width_in_characters) {
  Calculator::lay_out(ui::column(contents, Label8), others, width_in_characters);
}

void DipoleWindow::open_warning_by(ui::Button& button) {
  button.on_click([] { open("frmavvertenza", ui::Showing::modal); });
}

void DipoleWindow::require_thin(ui::Input& diameter,
                                std::initializer_list<Real> frequencies_mhz) const {
  constexpr double least_mm = 0.1;
  constexpr int decimals = 1;
  const Conductor conductor{std::max(frequencies_mhz), diameter.value()};
  const Real greatest_mm = 1000 * conductor.wavelength_m() / 400;
  require(reaches(conductor.diameter_mm, least_mm) && reaches(greatest_mm, conductor.diameter_mm),
          diameter,
          "DIAMETRO AMMISSIBILE DA " + fixed(least_mm, decimals) + " A " +
              fixed_down(greatest_mm, decimals) + " mm");
}

void DipoleWindow::show_one(ui::Schematic& shown, ui::Schematic& hidden,
                            std::initializer_list<ui::Value*> values) {
  hidden.clear();
  hidden.hide();
  shown.clear();
  for (ui::Value* value : values) {
    value->setParent(&shown);
    value->show();
  }
  shown.show();
}

std::string metres_text(Real length_m) { return fixed(length_m, 2) + " mt."; }

std::string impedance_text(Complex impedance_ohm) {
  const Real reactance_ohm = rounded(impedance_ohm.imaginary(), 0);
  return fixed(impedance_ohm.real(), 0) + (reactance_ohm < 0 ? " - j" : " + j") +
         fixed(abs(reactance_ohm), 0);
}

std::string standing_wave_text(Complex load_ohm, Real line_ohm) {
  constexpr double most_told = 20;
  const Real ratio = lines::standing_wave_ratio(load_ohm, line_ohm);
  return ratio > most_told ? "OLTRE 20" : fixed(ratio, 1);
}

}  // namespace eterlab::antennas
