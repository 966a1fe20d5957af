#include <algorithm>
#include <vector>

#include "common/number_text.h"
#include "signals/dishes/dish.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

using Side = ui::Schematic::Side;

// The focus of a dish from its rim and depth.
class frmfuoco final : public ui::Calculator {
  ui::Input txtdiametro{this, "txtdiametro", "DIAMETRO in cm"};
  ui::Input txtprofondita{this, "txtprofondita", "PROFONDITA' AL CENTRO in cm"};
  ui::Result lblfuoco{this, "lblfuoco"};
  ui::Result lblrapporto{this, "lblrapporto"};
  ui::Result lblangolo{this, "lblangolo"};
  ui::Result lblbordo{this, "lblbordo"};
  ui::Schematic drawing{this, "drawing", 50, 38};
  ui::Value lblvalorediametro{drawing, "lblvalorediametro"};
  ui::Value lblvaloreprofondita{drawing, "lblvaloreprofondita"};
  ui::Value lblvalorefuoco{drawing, "lblvalorefuoco"};

 public:
  frmfuoco() : Calculator{"frmfuoco", "FUOCO DI UNA PARABOLA CIRCOLARE"} {
    draw(6, dish_focus(6, 1));
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtdiametro, txtprofondita), ui::stretch()), drawing), lblfuoco,
        lblrapporto, lblangolo, lblbordo));
  }

  void show_example() override { fill_in({"120", "20"}); }

 private:
  /// The section of a dish, to scale, its axis to the right.
  void draw(Real diameter, const DishFocus& focus) {
    constexpr double left = 12;
    constexpr double axis_y = 18;
    constexpr double widest = 28;
    constexpr double highest = 26;
    const Real depth = focus.focus_to_rim - focus.focal_length;
    const Real scale = std::min(widest / std::max(focus.focal_length, depth), highest / diameter);
    const double half = (diameter * scale / 2).value();
    const double rim_x = left + (depth * scale).value();
    const double focus_x = left + (focus.focal_length * scale).value();

    drawing.clear();
    drawing.curve(section({left, axis_y}, {rim_x, axis_y + half}))
        .arrow({focus_x, axis_y}, {rim_x, axis_y - half})
        .arrow({focus_x, axis_y}, {rim_x, axis_y + half})
        .junction({focus_x, axis_y});
    if (focus_x > rim_x) {
      drawing.mark({focus_x, axis_y}, "F", Side::right);
    }

    constexpr double diameter_x = 9;
    constexpr double depth_y = 2.5;
    constexpr double focal_length_y = axis_y + highest / 2 + 2;
    drawing.dashed({{left, axis_y}, {focus_x, axis_y}})
        .dashed({{diameter_x, axis_y - half}, {rim_x, axis_y - half}, {rim_x, depth_y}})
        .dashed({{diameter_x, axis_y + half}, {rim_x, axis_y + half}})
        .dashed({{left, depth_y}, {left, focal_length_y}})
        .dashed({{focus_x, axis_y}, {focus_x, focal_length_y}});
    drawing.dimension({diameter_x, axis_y - half}, {diameter_x, axis_y + half})
        .mark({diameter_x, axis_y - 1}, "D", Side::left)
        .label(lblvalorediametro, {diameter_x, axis_y + 1}, Side::left)
        .dimension({left, depth_y}, {rim_x, depth_y})
        .mark({left, depth_y}, "p", Side::left)
        .label(lblvaloreprofondita, {rim_x, depth_y}, Side::right)
        .dimension({left, focal_length_y}, {focus_x, focal_length_y})
        .mark({(left + focus_x) / 2, focal_length_y}, "f", Side::below)
        .label(lblvalorefuoco, {(left + focus_x) / 2, focal_length_y + 2}, Side::below);
  }

  /// Of a paraboloid from its vertex to its rim, and the same on the other side of the axis.
  static std::vector<ui::At> section(ui::At vertex, ui::At rim) {
    constexpr int pieces = 60;
    std::vector<ui::At> places;
    for (int piece = -pieces; piece <= pieces; ++piece) {
      const double share = static_cast<double>(piece) / pieces;
      places.push_back(
          {vertex.x + (rim.x - vertex.x) * share * share, vertex.y + (rim.y - vertex.y) * share});
    }
    return places;
  }

  void compute() override {
    const Real diameter_cm = txtdiametro.value();
    const Real depth_cm = txtprofondita.value();
    const DishFocus focus = dish_focus(diameter_cm, depth_cm);
    lblfuoco = "DISTANZA FOCALE = " + fixed(focus.focal_length, 1) + " cm.";
    lblrapporto = "RAPPORTO F / D = " + fixed(focus.focal_ratio, 2);
    lblangolo = "ANGOLO VISTO DALL'ILLUMINATORE = " + fixed(focus.feed_angle_degrees, 1) + " GRADI";
    lblbordo = "DISTANZA DEL FUOCO DAL BORDO = " + fixed(focus.focus_to_rim, 1) + " cm.";
    draw(diameter_cm, focus);
    lblvalorediametro = plain(diameter_cm) + " cm.";
    lblvaloreprofondita = plain(depth_cm) + " cm.";
    lblvalorefuoco = fixed(focus.focal_length, 1) + " cm.";
  }
};

const ui::Registration<frmfuoco> registration{"frmfuoco"};

}  // namespace

}  // namespace eterlab::signals
