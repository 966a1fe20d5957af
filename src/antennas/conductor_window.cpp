#include "antennas/conductor_window.h"

#include "antennas/suitable_diameter.h"
#include "antennas/wavelength.h"
#include "common/number_text.h"

namespace eterlab::antennas {

std::string cm_and_length(Real length_m) { return "cm. " + fixed(100 * length_m, 1); }

ConductorWindow::ConductorWindow(std::string_view name, std::string_view title,
                                 const Diameter& diameter)
    : Calculator{name, title},
      txtfrequenza{this,
                   "txtfrequenza",
                   "FREQUENZA in MHz",
                   {.tooltip = "DA 1 A 1000 MHz",
                    .range = {{.lowest = 1, .highest = 1000}},
                    .prompt_name = "Label1"}},
      txtdiametro{this,
                  "txtdiametro",
                  diameter.prompt,
                  {.tooltip = diameter.tooltip, .prompt_name = "Label2"}},
      suitable_{diameter.suitable} {}

AntennaWire ConductorWindow::conductor() {
  const Real wavelength_m = antennas::wavelength_m(txtfrequenza.value());
  const Real diameter_mm = txtdiametro.value();
  advise(is_suitable(diameter_mm, suitable_, wavelength_m), txtdiametro,
         diameter_refusal(suitable_, wavelength_m));
  return {wavelength_m, diameter_mm / 1000};
}

WireWindow::WireWindow(std::string_view name, std::string_view title,
                       const ThicknessRange& suitable)
    : ConductorWindow{name,
                      title,
                      {.prompt = "DIAMETRO DEL FILO in mm",
                       .tooltip = "solo il conduttore, senza isolante",
                       .suitable = suitable}} {
  Option1.preset(0);
}

AntennaWire WireWindow::wire() {
  AntennaWire wire = conductor();
  wire.is_insulated = Option1.selected() == 1;
  return wire;
}

ui::Item WireWindow::questions() {
  return ui::column(ui::form(txtfrequenza, txtdiametro), Frame1.arrange(Option1));
}

}  // namespace eterlab::antennas
