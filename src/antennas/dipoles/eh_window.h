#pragma once

#include <string_view>

#include "antennas/dipoles/eh_antenna.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

/// What the windows of EH antennas have in common: all but what feeds them.
class EhWindow : public ui::Calculator {
 protected:
  /// The drawing's size in grid steps.
  EhWindow(std::string_view name, std::string_view title, std::string_view how_to_tune, int columns,
           int rows);

  /// The boxes beside the results, under them the drawing and the notes.
  void lay_out_with(const ui::Item& results);
  void draw_cylinders();

  // Of the cylinders on the drawing
  static constexpr double cylinder_left = 9;
  static constexpr double cylinder_right = 14;
  static constexpr double cylinder_middle = (cylinder_left + cylinder_right) / 2;
  static constexpr double cylinder_length = 9;
  static constexpr double upper_top = 1;
  static constexpr double upper_bottom = upper_top + cylinder_length;
  static constexpr double lower_top = upper_bottom + cylinder_right - cylinder_left;
  static constexpr double lower_bottom = lower_top + cylinder_length;

  [[nodiscard]] EhAntenna antenna() const;
  /// Refuses an antenna of odd proportions, too long or too small for its frequency.
  [[nodiscard]] EhBody checked_body(const EhAntenna& antenna);
  /// Refuses a coil that loses too much.
  void require_coil(bool is_good);
  void tell(const EhBody& body, const EhRadiation& radiation);

  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA in MHz",
                         {.tooltip = "DA 1 A 150 MHz",
                          .range = {{.lowest = 1, .highest = 150}},
                          .prompt_name = "Label1"}};
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEI CILINDRI in mm",
                        {.tooltip = "anche della bobina",
                         .range = {{.lowest = 5, .highest = 500}},
                         .prompt_name = "Label2"}};
  ui::Input txtlunghezza{
      this, "txtlunghezza", "LUNGHEZZA DI OGNI CILINDRO in mm", {.prompt_name = "Label3"}};
  ui::Input txtpasso{
      this,
      "txtpasso",
      "PASSO DELLE SPIRE in mm",
      {.tooltip = "da centro a centro di due spire vicine", .prompt_name = "Label4"}};
  ui::Input txtq{this,
                 "txtq",
                 "Q DELLA BOBINA",
                 {.tooltip = "di solito da 150 a 300",
                  .range = {{.lowest = 10, .highest = 1000}},
                  .prompt_name = "Label5"}};
  ui::Schematic drawing;
  ui::Value lblcapacita{drawing, "lblcapacita"};
  ui::Value lblbobina{drawing, "lblbobina"};
  ui::Result lblspire{this, "lblspire"};
  ui::Result lblresradiazione{this, "lblresradiazione"};
  ui::Result lblrendimento{this, "lblrendimento"};
  ui::Result lblbanda{this, "lblbanda"};
  ui::Result lbltensione{this, "lbltensione"};

 private:
  ui::Note Label6;
  ui::Note Label7{
      this, "Label7",
      "QUESTA ANTENNA E' UN DIPOLO CORTISSIMO: NESSUNA RETE DI FASE NE CAMBIA LA RESISTENZA DI "
      "RADIAZIONE. IL RENDIMENTO INDICATO E' QUELLO DELLA SOLA ANTENNA; QUANTO SI MISURA IN PIU' "
      "LO IRRADIA LA CALZA DEL CAVO, CHE LAVORA DA ANTENNA. CON UN CHOKE SUL CAVO RESTA IL SOLO "
      "DIPOLO."};
};

}  // namespace eterlab::antennas
