#include "antennas/verticals/tube_window.h"

#include <string>

#include "antennas/suitable_diameter.h"
#include "antennas/verticals/vertical_texts.h"

namespace eterlab::antennas {

TubeWindow::TubeWindow(const Traits& traits)
    : Calculator{traits.name, traits.title},
      txtfrequenza{this,
                   "txtfrequenza",
                   "FREQUENZA in MHz",
                   {.range = traits.frequency_range_mhz, .prompt_name = "Label1"}},
      txtdiametro{this, "txtdiametro", traits.diameter_prompt, {.prompt_name = "Label2"}},
      suitable_{traits.thickness} {
  name_hint("Label4");
}

void TubeWindow::check() {
  check_presence();
  check_range(txtfrequenza);
  const Real wavelength_m = tube().wavelength_m();
  advise(is_suitable(txtdiametro.value(), suitable_, wavelength_m), txtdiametro,
         diameter_refusal(suitable_, wavelength_m));
}

void TubeWindow::show_length(ui::Result& result, ui::Value& on_drawing, std::string_view letter,
                             std::string_view name, Real length_m) {
  const std::string length = centimetres(length_m);
  result = std::string{letter} + "  " + std::string{name} + " = " + length;
  on_drawing = std::string{letter} + " " + length;
}

}  // namespace eterlab::antennas
