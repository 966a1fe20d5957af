#include "antennas/loops/wire_loop_window.h"

#include "antennas/loops/wire_loops.h"
#include "antennas/wavelength.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/lengths.h"

namespace eterlab::antennas {

WireLoopWindow::WireLoopWindow(std::string_view name, std::string_view title,
                               std::string_view usual_diameter_mm)
    : Calculator{name, title},
      txtdiametro{this,
                  "txtdiametro",
                  "DIAMETRO DEL FILO in mm",
                  {.tooltip = "filo nudo; col filo isolato accorciare del 2 - 3 %",
                   .holds = usual_diameter_mm}} {}

void WireLoopWindow::check() {
  check_presence();
  check_range(txtfrequenza);
  check_range(txtdiametro);
  require(reaches(thickest_wire_wavelengths * wave_m(), wire_diameter_m() / 2), txtdiametro,
          "FILO TROPPO GROSSO PER QUESTA FREQUENZA");
}

Real WireLoopWindow::wave_m() const { return wavelength_m(txtfrequenza.value()); }

Real WireLoopWindow::wire_diameter_m() const { return txtdiametro.value() / 1000; }

std::string WireLoopWindow::length_text(Real length_m) const {
  constexpr double first_in_metres_m = 10;
  constexpr double first_in_centimetres_mhz = 30;
  const bool in_metres =
      txtfrequenza.value() < first_in_centimetres_mhz || length_m >= first_in_metres_m;
  return in_metres ? fixed(length_m, 2) + " mt." : ui::centimetres(length_m);
}

std::string impedance_text(Real resistance_ohm) {
  return "IMPEDENZA = " + fixed(resistance_ohm, 0) + " OHM";
}

std::string transformer_text(Real resistance_ohm) {
  constexpr double cable_ohm = 50;
  return "TRASFORMATORE A 1/4 D'ONDA PER 50 OHM : " + fixed(sqrt(cable_ohm * resistance_ohm), 0) +
         " OHM";
}

}  // namespace eterlab::antennas
