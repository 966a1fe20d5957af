#include "common/rounding.h"
#include "lines/geometry/enclosed_pair_window.h"
#include "lines/geometry/geometry_factor.h"
#include "ui/measures.h"

namespace eterlab::lines {

namespace {

// Two wires in a round tube or braid.
class frmbilanciataschermata final : public EnclosedPairWindow {
 public:
  frmbilanciataschermata()
      : EnclosedPairWindow{{.window = "frmbilanciataschermata",
                            .title = "IMPEDENZA DELLA LINEA BIFILARE SCHERMATA",
                            .enclosure_box = "txtschermo",
                            .enclosure_prompt = "DIAMETRO INTERNO DELLO SCHERMO in mm",
                            .enclosure_letter = "Ds",
                            .note = "CONDUTTORI SIMMETRICI RISPETTO ALL'ASSE DELLO SCHERMO"}} {
    draw();
  }

  void show_example() override { fill_in({"2", "8", "16", "1"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double radius = 1.5;
    constexpr double screen = 10;
    constexpr double wall = 0.8;
    constexpr ui::At axis{13, 11};
    constexpr ui::At first{axis.x - 3.4, axis.y};
    constexpr ui::At second{axis.x + 3.4, axis.y};
    drawing.shaded_ring(axis, screen, screen + wall)
        .shaded_circle(first, radius)
        .shaded_circle(second, radius)
        .wire({{axis.x + screen + wall, axis.y}, {28, axis.y}})
        .ground({28, axis.y});
    measure_width(drawing, {first.x - radius, first.y}, {first.x + radius, first.y}, 13.6,
                  lblquota1, below);
    measure_width(drawing, first, second, 7.5, lblquota2, above);
    measure_width(drawing, {axis.x - screen, axis.y}, {axis.x + screen, axis.y}, 23.5, lblquota3,
                  below);
  }

  Real checked_factor(Real diameter_mm, Real spacing_mm, Real screen_diameter_mm) override {
    require(!reaches(spacing_mm + diameter_mm, screen_diameter_mm), enclosure,
            "I FILI NON STANNO NELLO SCHERMO: AUMENTARE IL SUO DIAMETRO");
    advise(reaches(screen_diameter_mm, spacing_mm + 1.5 * diameter_mm), enclosure,
           "FILI TROPPO VICINI ALLO SCHERMO: AUMENTARE IL SUO DIAMETRO");
    return shielded_pair_factor(diameter_mm, spacing_mm, screen_diameter_mm);
  }
};

const ui::Registration<frmbilanciataschermata> registration{"frmbilanciataschermata"};

}  // namespace

}  // namespace eterlab::lines
