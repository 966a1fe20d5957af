#include "lines/geometry/enclosed_rod_window.h"
#include "lines/geometry/section_drawing.h"
#include "ui/measures.h"

namespace eterlab::lines {

namespace {

// A rod midway between two plates.
class frmsingoladuepiani final : public EnclosedRodWindow {
 public:
  frmsingoladuepiani()
      : EnclosedRodWindow{
            {.window = "frmsingoladuepiani",
             .title = "IMPEDENZA DI UN CONDUTTORE TRA DUE PIANI DI TERRA",
             .size_box = "txtpiani",
             .size_prompt = "DISTANZA TRA I DUE PIANI in mm",
             .size_letter = "H",
             .too_large = "IL CONDUTTORE NON STA TRA I PIANI: RIDURRE IL DIAMETRO",
             .too_thick =
                 "CONDUTTORE TROPPO GROSSO: LA DISTANZA DEVE ESSERE ALMENO 1,1 VOLTE IL DIAMETRO",
             .too_thin =
                 "CONDUTTORE TROPPO SOTTILE: IL DIAMETRO DEVE ESSERE ALMENO 1/1000 DELLA DISTANZA",
             .factor_of = rod_between_plates_factor,
             .note =
                 "CONDUTTORE A META' TRA I PIANI; PIANI LARGHI ALMENO 3 VOLTE LA LORO DISTANZA"}} {
    draw();
  }

  void show_example() override { fill_in({"20", "10", "1"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double top = 2;
    constexpr double bottom = 20;
    constexpr double radius = 3.5;
    constexpr ui::At axis{14, 11};
    drawing.shaded_circle(axis, radius);
    plane(drawing, {25, top}, {2, top});
    plane(drawing, {25, bottom}, {2, bottom});
    measure_height(drawing, {25, top}, {25, bottom}, 26.5, lblquota1, right);
    measure_width(drawing, {axis.x - radius, axis.y}, {axis.x + radius, axis.y}, 16, lblquota2,
                  below);
  }
};

const ui::Registration<frmsingoladuepiani> registration{"frmsingoladuepiani"};

}  // namespace

}  // namespace eterlab::lines
