#include "antennas/verticals/whip_window.h"

#include "antennas/verticals/vertical_texts.h"
#include "common/number_text.h"

namespace eterlab::antennas {

WhipWindow::WhipWindow(std::string_view name, std::string_view title,
                       std::string_view warning_button)
    : Calculator{name, title},
      txtfrequenza{this,
                   "txtfrequenza",
                   "FREQUENZA in MHz",
                   {.range = ui::Range{0.1, 3000}, .prompt_name = "Label1"}},
      txtaltezza{this,
                 "txtaltezza",
                 "ALTEZZA DEL RADIATORE in mt.",
                 {.range = whip_height_range_m, .prompt_name = "Label2"}},
      txtdiametro{this,
                  "txtdiametro",
                  "DIAMETRO DEL RADIATORE in mm",
                  {.range = whip_diameter_range_mm, .prompt_name = "Label3"}},
      cmdavviso{this, warning_button, "AVVERTENZA"} {
  cmdavviso.on_click([] { open("frmavvertenza", ui::Showing::modal); });
}

void WhipWindow::check() {
  Calculator::check();
  require(is_slender(whip()), txtdiametro,
          "RADIATORE TROPPO GROSSO: L'ALTEZZA DEVE ESSERE ALMENO 20 DIAMETRI");
}

LoadedWhipWindow::LoadedWhipWindow(std::string_view name, std::string_view title,
                                   std::string_view warning_button)
    : WhipWindow{name, title, warning_button},
      txtterra{this,
               "txtterra",
               "RESISTENZA DI TERRA in Ohm",
               {.tooltip = "auto 5 - 20, pochi radiali 10 - 30",
                .range = ui::Range{0.1, 1000},
                .prompt_name = "Label4"}},
      txtbobina{this,
                "txtbobina",
                "DIAMETRO DELLA BOBINA in mm",
                {.range = coil_diameter_range_mm, .prompt_name = "Label5"}},
      lblinduttanza{this, "lblinduttanza"},
      lblspire{this, "lblspire"},
      lblfilo{this, "lblfilo"},
      lblbase{this, "lblbase"},
      lblrendimento{this, "lblrendimento"},
      lblbanda{this, "lblbanda"} {
  name_hint("Label7");
}

void LoadedWhipWindow::check() {
  WhipWindow::check();
  advise(is_capacitive(whip(), txtfrequenza.value()), txtaltezza,
         "IL RADIATORE ARRIVA GIA' A 1/4 LAMBDA: LA BOBINA NON SERVE");
}

BaseLoading LoadedWhipWindow::loading() const {
  return base_loading(whip(), txtfrequenza.value(), txtterra.value());
}

ui::Item LoadedWhipWindow::boxes() const {
  return ui::form(txtfrequenza, txtaltezza, txtdiametro, txtterra, txtbobina);
}

void LoadedWhipWindow::show_efficiency(const BaseLoading& loading) {
  lblbase = "RESISTENZA ALLA BASE = " + fixed(loading.base_resistance_ohm, 1) + " Ohm";
  lblrendimento = "RENDIMENTO = " + fixed(100 * loading.efficiency, 1) + " %";
  lblbanda = "BANDA PASSANTE (ROS 2) = " + fixed(1000 * loading.bandwidth_mhz, 1) + " kHz";
}

void LoadedWhipWindow::show_coil(const coils::SpacedCoil& coil) {
  lblspire = turns_text(coil);
  lblfilo = wire_text(coil);
}

}  // namespace eterlab::antennas
