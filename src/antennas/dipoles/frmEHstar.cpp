#include <optional>

#include "antennas/dipoles/eh_window.h"
#include "common/number_text.h"

namespace eterlab::antennas {

namespace {

// The EH antenna that is tuned and fed by one tapped coil.
class frmEHstar final : public EhWindow {
  ui::Value lblpresa{drawing, "lblpresa"};

 public:
  frmEHstar()
      : EhWindow{"frmEHstar", "ANTENNA E H TIPO STAR",
                 "DISTANZA TRA I CILINDRI UGUALE AL DIAMETRO. ACCORDARE STRINGENDO O ALLARGANDO LE "
                 "SPIRE, POI CERCARE LA PRESA DI MINIMO ROS.",
                 82, 38} {
    draw();
    lay_out_with(ui::column(lblspire, lblresradiazione, lblrendimento, lblbanda, lbltensione,
                            ui::stretch()));
  }

  void show_example() override { fill_in({"14.2", "50", "157", "2", "200"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double cold_end = lower_bottom + 2.5;
    constexpr double hot_end = cold_end + 9;
    constexpr double hot_wire = 4;
    constexpr double tap = cold_end + 2;
    draw_cylinders();
    drawing
        .winding({cylinder_middle, cold_end}, {cylinder_middle, hot_end},
                 cylinder_right - cylinder_left, 6)
        .wire({{cylinder_left, lower_bottom}, {cylinder_left, cold_end}})
        .wire({{cylinder_left, hot_end},
               {cylinder_left, hot_end + 1},
               {hot_wire, hot_end + 1},
               {hot_wire, upper_top + 2},
               {cylinder_left, upper_top + 2}});
    constexpr ui::CoaxialCable cable{{20, cold_end - 1}, {20, cold_end + 5}};
    constexpr double screen_wire = cable.screen_from.x + 1.5;
    constexpr double screen_end = lower_top + 2;
    drawing.coaxial_cable(cable)
        .named("50 Ohm", right)
        .wire({{cylinder_right, tap}, {17, tap}, {17, cable.from.y}, cable.from})
        .wire({cable.screen_from,
               {screen_wire, cable.screen_from.y},
               {screen_wire, screen_end},
               {cylinder_right, screen_end}});
    drawing.label(lblpresa, {screen_wire + 0.5, cold_end - 0.5}, right)
        .label(lblbobina, {cylinder_right + 0.5, hot_end - 1}, right);
  }

  void compute() override {
    const EhAntenna wanted = antenna();
    const EhBody body = checked_body(wanted);
    const std::optional<EhStar> star = eh_star(wanted, body);
    require_coil(star.has_value());
    tell(body, star->radiation);
    lblbobina = "BOBINA DI SINTONIA = " + fixed(1e6 * star->inductance_h, 1) + " uH";
    lblpresa =
        "PRESA 50 Ohm = cm. " + fixed(100 * star->tap_wire_m, 1) + " DI FILO DAL LATO FREDDO";
  }
};

const ui::Registration<frmEHstar> registration{"frmEHstar"};

}  // namespace

}  // namespace eterlab::antennas
