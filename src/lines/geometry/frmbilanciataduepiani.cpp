#include "common/rounding.h"
#include "lines/geometry/enclosed_pair_window.h"
#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/section_drawing.h"
#include "ui/measures.h"

namespace eterlab::lines {

namespace {

// Two rods midway between two metal plates.
class frmbilanciataduepiani final : public EnclosedPairWindow {
 public:
  frmbilanciataduepiani()
      : EnclosedPairWindow{
            {.window = "frmbilanciataduepiani",
             .title = "IMPEDENZA DELLA LINEA BIFILARE TRA DUE PIANI DI TERRA",
             .enclosure_box = "txtpiani",
             .enclosure_prompt = "DISTANZA TRA I DUE PIANI in mm",
             .enclosure_letter = "H",
             .note = "CONDUTTORI A META' TRA I PIANI; PIANI LARGHI ALMENO D + 2 H"}} {
    draw();
  }

  void show_example() override { fill_in({"3", "15", "20", "1"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double top = 3;
    constexpr double bottom = 22;
    constexpr double radius = 2;
    constexpr ui::At first{9, 12.5};
    constexpr ui::At second{19, 12.5};
    drawing.shaded_circle(first, radius).shaded_circle(second, radius);
    plane(drawing, {25, top}, {2, top});
    plane(drawing, {25, bottom}, {2, bottom});
    measure_width(drawing, {first.x - radius, first.y}, {first.x + radius, first.y}, 16.5,
                  lblquota1, below);
    measure_width(drawing, first, second, 8.5, lblquota2, above);
    measure_height(drawing, {25, top}, {25, bottom}, 26.5, lblquota3, right);
  }

  Real checked_factor(Real diameter_mm, Real spacing_mm, Real plate_distance_mm) override {
    advise(reaches(plate_distance_mm, 1.5 * diameter_mm), enclosure,
           "LA DISTANZA TRA I PIANI DEVE ESSERE ALMENO 1,5 VOLTE IL DIAMETRO");
    return pair_between_plates_factor(diameter_mm, spacing_mm, plate_distance_mm);
  }
};

const ui::Registration<frmbilanciataduepiani> registration{"frmbilanciataduepiani"};

}  // namespace

}  // namespace eterlab::lines
