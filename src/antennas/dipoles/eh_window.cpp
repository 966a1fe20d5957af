#include "antennas/dipoles/eh_window.h"

#include <optional>
#include <string>

#include "antennas/wavelength.h"
#include "common/number_text.h"
#include "common/rounding.h"

namespace eterlab::antennas {

EhWindow::EhWindow(std::string_view name, std::string_view title, std::string_view how_to_tune,
                   int columns, int rows)
    : Calculator{name, title},
      drawing{this, "drawing", columns, rows},
      Label6{this, "Label6", how_to_tune} {
  name_hint("Label8");
  lbltensione.reserve("TENSIONE DI PICCO CON 100 WATT = 99.999 V");
}

void EhWindow::lay_out_with(const ui::Item& results) {
  lay_out(ui::column(
              ui::row(ui::column(ui::form(txtfrequenza, txtdiametro, txtlunghezza, txtpasso, txtq),
                                 ui::stretch()),
                      results),
              ui::row(ui::stretch(), drawing, ui::stretch()), Label6, Label7),
          {}, 118);
}

void EhWindow::draw_cylinders() {
  using enum ui::Schematic::Side;
  constexpr double measured = cylinder_left - 2.5;
  constexpr double gap_middle = (upper_bottom + lower_top) / 2;
  drawing.shaded_box({cylinder_left, upper_top}, {cylinder_right, upper_bottom})
      .shaded_box({cylinder_left, lower_top}, {cylinder_right, lower_bottom});
  for (const double y : {upper_bottom, lower_top}) {
    drawing.extension({cylinder_left - 0.5, y}, {measured - 0.5, y});
  }
  drawing.dimension({measured, upper_bottom}, {measured, lower_top})
      .mark({measured, gap_middle}, "D", right)
      .label(lblcapacita, {cylinder_right, gap_middle}, right);
}

EhAntenna EhWindow::antenna() const {
  return {.frequency_hz = 1e6 * txtfrequenza.value(),
          .diameter_m = txtdiametro.value() / 1000,
          .cylinder_m = txtlunghezza.value() / 1000,
          .pitch_m = txtpasso.value() / 1000,
          .coil_q = txtq.value()};
}

EhBody EhWindow::checked_body(const EhAntenna& antenna) {
  const Real diameter_mm = txtdiametro.value();
  const Real length_mm = txtlunghezza.value();
  const Real pitch_mm = txtpasso.value();
  require(length_mm >= diameter_mm && reaches(12 * diameter_mm, length_mm), txtlunghezza,
          "LA LUNGHEZZA DEI CILINDRI VA DA 1 A 12 DIAMETRI");
  require(pitch_mm >= 0.2 && pitch_mm <= diameter_mm, txtpasso,
          "IL PASSO DELLE SPIRE VA DA 0.2 mm AL DIAMETRO DEI CILINDRI");
  const Real wavelength_m = antennas::wavelength_m(txtfrequenza.value());
  advise(eh_length_m(antenna) <= wavelength_m / 10, txtlunghezza,
         "L'ANTENNA SUPERA UN DECIMO DI LUNGHEZZA D'ONDA: ACCORCIARE I CILINDRI");
  const std::optional<EhBody> body = eh_body(antenna);
  advise(body.has_value(), txtdiametro, "OCCORRONO PIU' DI 300 SPIRE: USARE CILINDRI PIU' GRANDI");
  return *body;
}

void EhWindow::require_coil(bool is_good) {
  advise(is_good, txtq, "LA BOBINA PERDE TROPPO: OCCORRONO CILINDRI PIU' GRANDI O UN Q PIU' ALTO");
}

void EhWindow::tell(const EhBody& body, const EhRadiation& radiation) {
  const Real percent = 100 * radiation.efficiency;
  lblcapacita = "CAPACITA' TRA I CILINDRI = " + fixed(1e12 * body.gap_capacitance_f, 2) + " pF";
  lblspire = "SPIRE = " + std::to_string(body.turns) + "  LUNGHEZZA cm. " +
             fixed(100 * body.coil_length_m, 1);
  lblresradiazione = "RESISTENZA DI RADIAZIONE = " + sig(body.radiation_ohm, 3) + " Ohm";
  lblrendimento = "RENDIMENTO = " + fixed(percent, 2) + " %  ( " +
                  fixed(10 * log10(radiation.efficiency), 1) + " dB )";
  lblbanda = "BANDA CON ROS ENTRO 2 = " + fixed(radiation.bandwidth_hz / 1000, 0) + " kHz";
  lbltensione = "TENSIONE DI PICCO CON 100 WATT = " + fixed(radiation.peak_v_at_100_w, 0) + " V";
}

}  // namespace eterlab::antennas
