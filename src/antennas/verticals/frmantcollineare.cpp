#include <string>

#include "antennas/verticals/collinear_vertical.h"
#include "antennas/verticals/tube_window.h"
#include "antennas/verticals/vertical_drawing.h"
#include "antennas/verticals/vertical_texts.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A quarter wave over radials and one or two half waves above it, in phase by stubs.
class frmantcollineare final : public TubeWindow {
  ui::Frame Frame1{this, "Frame1", "ELEMENTI"};
  ui::OptionArray Option1{Frame1, "Option1", {"1/4 + 1/2 LAMBDA", "1/4 + 1/2 + 1/2 LAMBDA"}};
  ui::Result lblbase{this, "lblbase"};
  ui::Result lblmezzaonda{this, "lblmezzaonda"};
  ui::Result lblstub{this, "lblstub"};
  ui::Result lblspazio{this, "lblspazio"};
  ui::Result lblradiali{this, "lblradiali"};
  ui::Result lblaltezza{this, "lblaltezza"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lbltratto{this, "lbltratto"};
  ui::Result lblguadagno{this, "lblguadagno"};
  ui::Schematic drawing{this, "drawing", 41, 54};
  ui::Value lbldisA{drawing, "lbldisA", "A"};
  ui::Value lbldisB{drawing, "lbldisB", "B"};
  ui::Value lbldisD{drawing, "lbldisD", "D"};
  ui::Value lbldisS{drawing, "lbldisS", "S"};
  ui::Value lbldisR{drawing, "lbldisR", "R"};
  ui::Note Label3{this, "Label3",
                  "NELLO STESSO MODELLO LA GROUND PLANE DI 1/4 LAMBDA HA 1,3 dBi - STUB "
                  "ORIZZONTALI, CORTO REGOLABILE"};

 public:
  frmantcollineare()
      : TubeWindow{{.name = "frmantcollineare",
                    .title = "ANTENNA VERTICALE COLLINEARE",
                    .diameter_prompt = "DIAMETRO DEI CONDUTTORI in mm",
                    .frequency_range_mhz = {28, 1300},
                    .thickness = collinear_thickness}} {
    Option1.preset(0);
    Option1.on_click([this](int) { draw(); });
    draw();
    lay_out(ui::column(ui::row(ui::column(boxes(), Frame1.arrange(Option1), lblbase, lblmezzaonda,
                                          lblstub, lblspazio, lblradiali, lblaltezza, lblimpedenza,
                                          lbltratto, lblguadagno, ui::stretch()),
                               drawing),
                       Label3),
            {}, 121);
  }

  void show_example() override { fill_in({"145", "4"}); }

 private:
  [[nodiscard]] int half_waves() const { return Option1.selected() + 1; }

  void draw() {
    using enum ui::Schematic::Side;
    constexpr double stub = 12;
    constexpr double opening = 2.6;
    constexpr double foot = 37.6;
    constexpr double tip = 1;
    const double base_length = half_waves() == 1 ? 10 : 8;
    const double half_wave =
        (foot - tip - base_length) / half_waves() - opening;  // of the drawing, as all of these
    drawing.clear();
    double y = foot - base_length;
    drawing.rod({{mast, y}, {mast, foot}});
    drawing.extension({mast - 0.5, y}, {mast - 3.7, y})
        .extension({mast - 0.5, foot}, {mast - 3.7, foot})
        .dimension({mast - 3, y}, {mast - 3, foot})
        .label(lbldisA, {mast - 3, (y + foot) / 2}, left);
    tell_stub(y, opening, stub);
    for (int element = 0; element < half_waves(); ++element) {
      const double far_end = element == 0 ? mast + stub : mast - stub;
      drawing.rod({{mast, y}, {far_end, y}, {far_end, y - opening}, {mast, y - opening}});
      y -= opening;
      drawing.rod({{mast, y - half_wave}, {mast, y}});
      tell_half_wave(element, y - half_wave, y);
      y -= half_wave;
    }
    draw_base(foot);
  }

  void tell_stub(double y, double opening, double length) {
    using enum ui::Schematic::Side;
    const double end = mast + length;
    drawing.extension({end + 0.5, y}, {end + 2.7, y})
        .extension({end + 0.5, y - opening}, {end + 2.7, y - opening})
        .dimension({end + 2, y - opening}, {end + 2, y})
        .label(lbldisS, {end + 2.5, y - opening / 2}, right)
        .extension({end, y + 0.5}, {end, y + 2.2})
        .dimension({mast, y + 1.5}, {end, y + 1.5})
        .label(lbldisD, {mast + length / 2 + 0.5, y + 1.9}, below);
  }

  void tell_half_wave(int element, double upper_end, double lower_end) {
    using enum ui::Schematic::Side;
    constexpr double line = mast + 3;
    const ui::At middle{line, (upper_end + lower_end) / 2};
    for (const double end : {upper_end, lower_end}) {
      drawing.extension({mast + 0.5, end}, {line + 0.7, end});
    }
    drawing.dimension({line, upper_end}, {line, lower_end});
    if (element == 0) {
      drawing.label(lbldisB, middle, right);
    } else {
      drawing.mark(middle, "B", right);
    }
  }

  /// The foot on an insulated terminal, the radials and the screen of the cable on the hub below.
  void draw_base(double foot) {
    using enum ui::Schematic::Side;
    constexpr double half_hub = 2.5;
    constexpr double radial = 14;
    constexpr ui::At oblique{3.3, 2.6};  // of a radial that points away or nearer
    const double hub_top = foot + 0.8;
    const double hub_bottom = hub_top + 2.6;
    const double radials = hub_top + 1.3;
    const double line = hub_bottom + 2.2;
    const double cable = mast - 1.6;  // leaves room for the line
    const ui::CoaxialCable section{{cable, hub_bottom}, {cable, foot + 14}};
    drawing.terminal({mast, foot + 0.4})
        .box({mast - half_hub, hub_top}, {mast + half_hub, hub_bottom})
        .rod({{mast - half_hub, radials}, {mast - radial, radials}})
        .rod({{mast + half_hub, radials}, {mast + radial, radials}})
        .rod({{mast - half_hub, hub_bottom}, {mast - half_hub - oblique.x, hub_bottom + oblique.y}})
        .rod({{mast + half_hub, hub_top}, {mast + half_hub + oblique.x, hub_top - oblique.y}})
        .coaxial_cable(section)
        .wire({section.screen_from, {section.screen_from.x, hub_bottom}})
        .mark({mast + 0.5, foot + 11}, "1/4 LAMBDA DI CAVO", right)
        .extension({mast, hub_bottom + 0.5}, {mast, line + 0.7})
        .extension({mast + radial, radials + 0.5}, {mast + radial, line + 0.7})
        .dimension({mast, line}, {mast + radial, line})
        .label(lbldisR, {mast + radial / 2, line}, below);
    mark_not_to_scale(drawing, {mast + 14, foot + 12.8});
  }

  static constexpr double mast = 15;

  void compute() override {
    const CollinearVertical antenna = collinear_vertical(tube(), half_waves());
    show_length(lblbase, lbldisA, "A", "ELEMENTO DI BASE", antenna.base_element_m);
    show_length(lblmezzaonda, lbldisB, "B", "ELEMENTO DI 1/2 LAMBDA", antenna.half_wave_m);
    show_length(lblstub, lbldisD, "D", "STUB IN CORTO", antenna.stub_m);
    show_length(lblspazio, lbldisS, "S", "LARGHEZZA DELLO STUB", antenna.stub_width_m);
    show_length(lblradiali, lbldisR, "R", "N. 4 RADIALI", antenna.radial_m);
    lblaltezza = "ALTEZZA TOTALE = " + centimetres(antenna.height_m);
    lblimpedenza = "IMPEDENZA ALLA BASE = " + fixed(antenna.base_resistance_ohm, 0) + " Ohm";
    lbltratto = "TRATTO DI 1/4 LAMBDA IN " + std::string{antenna.cable} + " (" +
                fixed(antenna.cable_impedance_ohm, 0) + " Ohm) = " + centimetres(antenna.section_m);
    lblguadagno = "GUADAGNO CIRCA " + fixed(antenna.gain_dbi, 1) + " dBi";
  }
};

const ui::Registration<frmantcollineare> registration{"frmantcollineare"};

}  // namespace

}  // namespace eterlab::antennas
