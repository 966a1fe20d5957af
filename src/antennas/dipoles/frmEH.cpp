#include <optional>

#include "antennas/dipoles/eh_window.h"
#include "common/number_text.h"
#include "common/preferred_values.h"

namespace eterlab::antennas {

namespace {

// The first form of the EH antenna, fed through a network of a capacitor and a coil.
class frmEH final : public EhWindow {
  ui::Value lblcondensatore{drawing, "lblcondensatore"};
  ui::Result lblrestotale{this, "lblrestotale"};
  ui::Result lblfase{this, "lblfase"};

 public:
  frmEH()
      : EhWindow{"frmEH", "ANTENNA E H VECCHIO TIPO",
                 "DISTANZA TRA I CILINDRI UGUALE AL DIAMETRO. ACCORDARE STRINGENDO O ALLARGANDO LE "
                 "SPIRE E RITOCCANDO IL CONDENSATORE PER IL MINIMO ROS SU 50 Ohm.",
                 88, 28} {
    draw();
    lay_out_with(ui::column(lblspire, lblresradiazione, lblrestotale, lblfase, lblrendimento,
                            lblbanda, lbltensione, ui::stretch()));
  }

  void show_example() override { fill_in({"14.2", "50", "157", "2", "200"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double line = upper_top + 2;
    constexpr double common_line = lower_bottom - 2;
    constexpr double capacitor = 54;
    draw_cylinders();
    drawing.inductor({cylinder_right, line}, {capacitor, line})
        .named(lblbobina, below)
        .capacitor({capacitor, line}, {capacitor, common_line})
        .wire({{cylinder_right, common_line}, {capacitor, common_line}})
        .junction({capacitor, line})
        .junction({capacitor, common_line})
        .label(lblcondensatore, {capacitor, common_line + 0.6}, below);
    constexpr ui::CoaxialCable cable{{capacitor + 4, line}, {capacitor + 20, line}};
    drawing.wire({{capacitor, line}, cable.from})
        .coaxial_cable(cable)
        .named("50 Ohm", ui::Schematic::Side::below)
        .wire({cable.screen_from, {cable.screen_from.x, common_line}, {capacitor, common_line}});
  }

  void compute() override {
    const EhAntenna wanted = antenna();
    const EhBody body = checked_body(wanted);
    const std::optional<EhPhasing> phasing = eh_phasing(wanted, body);
    require_coil(phasing.has_value());
    tell(body, phasing->radiation);
    const Real capacitance_pf = 1e12 * phasing->capacitance_f;
    lblbobina = "BOBINA IN SERIE = " + fixed(1e6 * phasing->inductance_h, 1) + " uH";
    lblcondensatore = "CONDENSATORE IN PARALLELO = " + fixed(capacitance_pf, 0) +
                      " pF  ( E12: " + plain(nearest_preferred(capacitance_pf, Series::e12)) +
                      " pF )";
    lblrestotale = "RESISTENZA TOTALE = " + fixed(phasing->resistance_ohm, 1) + " Ohm";
    lblfase = "SFASAMENTO DELLA RETE = " + fixed(phasing->phase_degrees, 0) + "  GRADI";
  }
};

const ui::Registration<frmEH> registration{"frmEH"};

}  // namespace

}  // namespace eterlab::antennas
