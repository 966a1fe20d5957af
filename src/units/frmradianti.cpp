#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "common/number_text.h"
#include "common/physics.h"
#include "ui/schematic.h"
#include "ui/ui.h"
#include "units/angles.h"

namespace eterlab::units {

namespace {

using Side = ui::Schematic::Side;

std::string text_of(const SexagesimalAngle& angle) {
  return (angle.is_negative ? "-" : "") + plain(angle.degrees) + "° " + plain(angle.minutes) +
         "' " + fixed(angle.seconds, 1) + "\"";
}

// An angle in degrees, radians, gons and turns, as the user types.
class frmradianti final : public ui::Calculator {
  ui::OptionArray Option1{this, "Option1", {"GRADI DECIMALI", "RADIANTI", "GRADI CENTESIMALI"}};
  ui::Input txtinput{this,
                     "txtinput",
                     "GRADI DECIMALI :",
                     {.range = ui::Range{-1e9, 1e9}, .prompt_name = "lblinput"}};
  ui::Result lblgradi{this, "lblgradi"};
  ui::Result lblsessagesimali{this, "lblsessagesimali"};
  ui::Result lblradianti{this, "lblradianti"};
  ui::Result lblcentesimali{this, "lblcentesimali"};
  ui::Result lblgiri{this, "lblgiri"};
  ui::Schematic drawing{this, "drawing", 32, 32};
  ui::Value lblvaloreseno{drawing, "lblvaloreseno"};
  ui::Value lblvalorecoseno{drawing, "lblvalorecoseno"};

 public:
  frmradianti() : Calculator{"frmradianti", "CONVERSIONE DI ANGOLI", Computes::as_typed} {
    Option1.preset(0);
    txtinput.prompt().reserve("GRADI CENTESIMALI :");
    lay_out(ui::column(ui::row(ui::column(Option1, ui::form(txtinput), ui::stretch()), drawing),
                       lblgradi, lblsessagesimali, lblradianti, lblcentesimali, lblgiri));
    Option1.on_click([this](int index) { Option1_click(index); });
  }

  void show_example() override { fill_in({"57.29578"}); }

 private:
  void Option1_click(int index) {
    txtinput.ask(Option1[index].caption() + " :");
    txtinput = "";
  }

  void compute() override {
    drawing.clear();
    draw_circle();
    const std::optional<Real> input = txtinput.usable();
    if (!input) {
      return;
    }
    const Real angle = degrees(*input, static_cast<AngleUnit>(Option1.selected()));
    lblgradi = "GRADI DECIMALI = " + sig(angle, 8);
    lblsessagesimali = "GRADI SESSAGESIMALI = " + text_of(sexagesimal(angle));
    lblradianti = "RADIANTI = " + sig(angle_in(AngleUnit::radians, angle), 8);
    lblcentesimali = "GRADI CENTESIMALI = " + sig(angle_in(AngleUnit::gons, angle), 8);
    lblgiri = "GIRI = " + sig(angle / 360, 8);
    draw_angle(within_a_turn(angle));
  }

  static constexpr ui::At centre{16, 14};
  static constexpr double radius = 11;

  void draw_circle() {
    constexpr double beyond = radius + 2;
    drawing.circle(centre, radius)
        .arrow({centre.x - beyond, centre.y}, {centre.x + beyond, centre.y})
        .arrow({centre.x, centre.y + beyond}, {centre.x, centre.y - beyond});
  }

  void draw_angle(Real degrees) {
    const Real radians = angle_in(AngleUnit::radians, degrees);
    const Real sine = sin(radians);
    const Real cosine = cos(radians);
    const ui::At point{centre.x + (cosine * radius).value(), centre.y - (sine * radius).value()};
    constexpr double arc_radius = 2.5;
    drawing.wire({centre, point})
        .junction(point)
        .arc(centre, arc_radius, 0, degrees.value())
        .rod({centre, {point.x, centre.y}})
        .rod({centre, {centre.x, point.y}})
        .dashed({{point.x, centre.y}, point, {centre.x, point.y}});

    // The names of the projections stand on the other side of the axes, off the arc.
    constexpr double off_the_arc = 4.5;
    const double along_x = std::max(radius / 2 * std::abs(cosine.value()), off_the_arc);
    const double along_y = std::max(radius / 2 * std::abs(sine.value()), off_the_arc);
    drawing
        .mark({centre.x + std::copysign(along_x, cosine.value()), centre.y}, "cos",
              sine < 0 ? Side::above : Side::below)
        .mark({centre.x, centre.y - std::copysign(along_y, sine.value())}, "sen",
              cosine < 0 ? Side::right : Side::left);
    constexpr double values_y = centre.y + radius + 4;
    drawing.mark({centre.x - 9, values_y}, "sen =", Side::left)
        .label(lblvaloreseno, {centre.x - 9, values_y}, Side::right)
        .mark({centre.x + 7, values_y}, "cos =", Side::left)
        .label(lblvalorecoseno, {centre.x + 7, values_y}, Side::right);
    lblvaloreseno = fixed(sine, 4);
    lblvalorecoseno = fixed(cosine, 4);
  }
};

const ui::Registration<frmradianti> registration{"frmradianti"};

}  // namespace

}  // namespace eterlab::units
