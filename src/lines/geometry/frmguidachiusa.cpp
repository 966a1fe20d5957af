#include "lines/geometry/enclosed_rod_window.h"
#include "ui/measures.h"

namespace eterlab::lines {

namespace {

// A rod on the axis of a square tube.
class frmguidachiusa final : public EnclosedRodWindow {
 public:
  frmguidachiusa()
      : EnclosedRodWindow{
            {.window = "frmguidachiusa",
             .title = "IMPEDENZA DI UN CONDUTTORE IN GUIDA QUADRA CHIUSA",
             .size_box = "txtlato",
             .size_prompt = "LATO INTERNO DELLA GUIDA in mm",
             .size_letter = "A",
             .too_large = "IL CONDUTTORE NON STA NELLA GUIDA: RIDURRE IL DIAMETRO",
             .too_thick =
                 "CONDUTTORE TROPPO GROSSO: IL LATO DEVE ESSERE ALMENO 1,1 VOLTE IL DIAMETRO",
             .too_thin =
                 "CONDUTTORE TROPPO SOTTILE: IL DIAMETRO DEVE ESSERE ALMENO 1/1000 DEL LATO",
             .factor_of = rod_in_square_factor}} {
    draw();
  }

  void show_example() override { fill_in({"20", "8", "1"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double radius = 3.5;
    constexpr double half_side = 9;
    constexpr double wall = 0.8;
    constexpr ui::At axis{13, 10.5};
    constexpr double floor = axis.y + half_side;
    drawing
        .shaded_frame({axis.x - half_side, axis.y - half_side}, {axis.x + half_side, floor}, wall)
        .shaded_circle(axis, radius)
        .wire({{axis.x + half_side + wall, axis.y}, {27, axis.y}})
        .ground({27, axis.y});
    measure_width(drawing, {axis.x - half_side, floor}, {axis.x + half_side, floor}, floor + 2.5,
                  lblquota1, below);
    measure_width(drawing, {axis.x - radius, axis.y}, {axis.x + radius, axis.y}, 15.5, lblquota2,
                  below);
  }
};

const ui::Registration<frmguidachiusa> registration{"frmguidachiusa"};

}  // namespace

}  // namespace eterlab::lines
