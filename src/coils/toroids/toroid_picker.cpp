#include "coils/toroids/toroid_picker.h"

#include <algorithm>
#include <array>
#include <string>

#include "coils/toroids/toroid_cores.h"

namespace eterlab::coils {

namespace {

struct ColourCode {
  int mix;
  std::string_view row;  // colours and frequencies, under the words of the header
};

constexpr std::string_view colour_header = " MISCELA     1° COLORE       2° COLORE       FREQ. MHz";
constexpr std::array<ColourCode, 11> colour_codes{{
    {0, "              MARRONE          GRIGIO             100 / 300"},
    {1, "                BLU                   GRIGIO              0.5 / 5"},
    {2, "               ROSSO              GRIGIO               2 / 30"},
    {3, "               GRIGIO             GRIGIO             0.05 / 0.5"},
    {6, "               GIALLO             GRIGIO              10 / 50"},
    {7, "               BIANCO              GRIGIO              3 / 35"},
    {10, "                NERO               GRIGIO              30 / 100"},
    {12, "                VERDE            BIANCO             50 / 200"},
    {15, "                ROSSO            BIANCO              0.1 / 2"},
    {17, "                BLU                GIALLO             20 / 200"},
    {26, "               GIALLO             BIANCO             50 HERTZ"},
}};

}  // namespace

ToroidPicker::ToroidPicker(ui::Parent window, std::string_view prompt)
    : lblhelp1{window, "lblhelp1", prompt},
      cmbnucleo{window, "cmbnucleo", "TOROIDI", ui::tooltip("CLICCARE E TASTI CURSORE O MOUSE")},
      lbldimensioni{window, "lbldimensioni"},
      Frame1{window, "Frame1", " CODICE COLORI IN BASE ALLA MISCELA "},
      lblcolor{Frame1, "lblcolor", colour_header},
      lblcolore{Frame1, "lblcolore"} {
  for (const ToroidCore& core : toroid_cores()) {
    cmbnucleo.add(name_of(core), core.inductance_index_uh);
  }
  lblhelp1.set_prompt_of(cmbnucleo);
  Frame1.hide();
  cmbnucleo.on_choose([this] { cmbnucleo_click(); });
}

ui::Item ToroidPicker::list() { return ui::row(lblhelp1, cmbnucleo); }

ui::Item ToroidPicker::core() {
  return ui::column(lbldimensioni, Frame1.arrange(ui::column(lblcolor, lblcolore)));
}

void ToroidPicker::on_choose(const ui::Handler& handler) { cmbnucleo.on_choose(handler); }

void ToroidPicker::cmbnucleo_click() {
  const ToroidCore& core = toroid_cores()[static_cast<std::size_t>(cmbnucleo.chosen())];
  const auto* code = std::ranges::find(colour_codes, core.mix, &ColourCode::mix);
  if (code != colour_codes.end()) {
    lblcolore = mix_code(core) + std::string{code->row};
  }
  lbldimensioni = "DIAMETRO ESTERNO " + std::string{core.size->outside_diameter_mm} +
                  " mm - ALTEZZA " + std::string{core.size->height_mm} + " mm";
  Frame1.show();
}

}  // namespace eterlab::coils
