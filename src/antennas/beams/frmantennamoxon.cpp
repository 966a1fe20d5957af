#include "antennas/beams/moxon_rectangle.h"
#include "antennas/conductor_window.h"
#include "ui/schematic.h"

namespace eterlab::antennas {

namespace {

// The Moxon rectangle, a beam of two elements with folded ends.
class frmantennamoxon final : public WireWindow {
  ui::Schematic drawing{this, "drawing", 88, 29};
  ui::Value lbla{drawing, "lbla", "A"};
  ui::Value lblb{drawing, "lblb", "B"};
  ui::Value lblc{drawing, "lblc", "C"};
  ui::Value lbld{drawing, "lbld", "D"};
  ui::Value lble{drawing, "lble", "E"};
  ui::Result lblradiatore{this, "lblradiatore"};
  ui::Result lblriflettore{this, "lblriflettore"};
  ui::Note Label3{this, "Label3",
                  "IMPEDENZA 50 Ohm (BALUN 1:1), GUADAGNO CIRCA 3,8 dB SUL DIPOLO, AVANTI/INDIETRO "
                  "OLTRE 20 dB. LA DISTANZA C TRA LE PUNTE E' CRITICA: UNIRLE CON UN ISOLATORE."};

 public:
  frmantennamoxon() : WireWindow{"frmantennamoxon", "ANTENNA MOXON", {1e-5, 1e-2}} {
    name_hint("Label4");
    draw();
    lblriflettore.reserve("FILO DEL RIFLETTORE = cm. 99.999,9");
    lay_out(ui::column(ui::row(ui::column(questions(), ui::stretch()),
                               ui::column(lblradiatore, lblriflettore, ui::stretch())),
                       ui::row(ui::stretch(), drawing, ui::stretch()), Label3));
  }

  void show_example() override { fill_in({"28.5", "2"}); }

 private:
  /// True to scale for a wire of usual thickness.
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double steps_for_wavelength = 126;
    constexpr double middle = 44;
    constexpr double top = 7;
    const MoxonRectangle shown =
        moxon_rectangle({steps_for_wavelength, 1e-3 * steps_for_wavelength});
    const double half_width = shown.width_m.value() / 2;
    const double west = middle - half_width;
    const double east = middle + half_width;
    const double radiator_tip = top + shown.radiator_end_m.value();
    const double reflector_tip = radiator_tip + shown.gap_m.value();
    const double bottom = top + depth_m(shown).value();

    draw_elements({west, top}, {east, bottom}, radiator_tip, reflector_tip);
    drawing.arrow({middle, top - 1.5}, {middle, 1})
        .mark({middle, (top - 0.5) / 2}, "IRRADIAZIONE", right)
        .mark({middle + 12, top + 0.4}, "RADIATORE", below)
        .mark({middle, bottom - 0.4}, "RIFLETTORE", above);

    const double measured_below = bottom + 2.5;
    for (const double x : {west, east}) {
      drawing.extension({x, bottom + 0.5}, {x, measured_below + 0.5});
    }
    drawing.dimension({west, measured_below}, {east, measured_below})
        .label(lbla, {middle, measured_below}, below);

    const double measured_east = east + 2.5;
    const double told_east = measured_east + 0.5;
    for (const double y : {top, radiator_tip, reflector_tip, bottom}) {
      drawing.extension({east + 0.5, y}, {measured_east + 0.5, y});
    }
    // The gap is too narrow for arrows in it: those of its neighbours stand around it.
    drawing.dimension({measured_east, top}, {measured_east, radiator_tip})
        .dimension({measured_east, reflector_tip}, {measured_east, bottom})
        .label(lblb, {told_east, (top + radiator_tip) / 2}, right)
        .label(lblc, {told_east, (radiator_tip + reflector_tip) / 2}, right)
        .label(lbld, {told_east, (reflector_tip + bottom) / 2}, right);

    const double measured_west = west - 2.5;
    for (const double y : {top, bottom}) {
      drawing.extension({west - 0.5, y}, {measured_west - 0.5, y});
    }
    drawing.dimension({measured_west, top}, {measured_west, bottom})
        .label(lble, {measured_west, (top + bottom) / 2}, left);
  }

  void draw_elements(ui::At north_west, ui::At south_east, double radiator_tip,
                     double reflector_tip) {
    constexpr double half_gap = 0.4;
    const auto [west, top] = north_west;
    const auto [east, bottom] = south_east;
    const double middle = (west + east) / 2;
    drawing.rod({{middle - half_gap, top}, {west, top}, {west, radiator_tip}})
        .rod({{middle + half_gap, top}, {east, top}, {east, radiator_tip}})
        .rod({{west, reflector_tip}, {west, bottom}, {east, bottom}, {east, reflector_tip}});
    const ui::CoaxialCable cable{{middle - half_gap, top}, {middle - half_gap, top + 7}};
    drawing.coaxial_cable(cable)
        .named("50 Ohm", ui::Schematic::Side::right)
        .wire({{middle + half_gap, top}, cable.screen_from});
  }

  void compute() override {
    const MoxonRectangle moxon = moxon_rectangle(wire());
    lbla = "A = " + cm_and_length(moxon.width_m);
    lblb = "B = " + cm_and_length(moxon.radiator_end_m);
    lblc = "C = " + cm_and_length(moxon.gap_m);
    lbld = "D = " + cm_and_length(moxon.reflector_end_m);
    lble = "E = " + cm_and_length(depth_m(moxon));
    lblradiatore = "FILO DEL RADIATORE = " + cm_and_length(radiator_wire_m(moxon));
    lblriflettore = "FILO DEL RIFLETTORE = " + cm_and_length(reflector_wire_m(moxon));
  }
};

const ui::Registration<frmantennamoxon> registration{"frmantennamoxon"};

}  // namespace

}  // namespace eterlab::antennas
