#pragma once

#include <memory>
#include <string_view>

#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/line_window.h"
#include "ui/schematic.h"

namespace eterlab::lines {

/// A round rod in the middle of an enclosure: its impedance, or the rod of an impedance.
class EnclosedRodWindow : public LineWindow {
 protected:
  struct Kind {
    std::string_view window;
    std::string_view title;
    std::string_view size_box;
    std::string_view size_prompt;
    std::string_view size_letter;
    std::string_view too_large;  ///< for the enclosure
    std::string_view too_thick;
    std::string_view too_thin;
    EnclosedRodFactor factor_of;
    std::string_view note = {};
  };
  explicit EnclosedRodWindow(const Kind& kind);

  ui::Schematic drawing;
  ui::Value lblquota1;
  ui::Value lblquota2;

 private:
  void compute() override;
  [[nodiscard]] Real impedance_of(Real diameter_mm, Real size_mm) const;
  void find_impedance(Real size_mm);
  void find_diameter(Real size_mm);

  Kind kind_;
  EitherInput either;
  ui::Input size;
  DielectricInput dielectric;
  ui::Result lblrisultato;
  ui::Result lblcommerciale;
  LineResults line;
  std::unique_ptr<ui::Note> Label3;
};

}  // namespace eterlab::lines
