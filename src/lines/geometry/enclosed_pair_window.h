#pragma once

#include <string_view>

#include "lines/geometry/line_window.h"
#include "ui/schematic.h"

namespace eterlab::lines {

/// A pair of wires between plates or in a screen, in a dielectric that fills all of it.
class EnclosedPairWindow : public LineWindow {
 protected:
  struct Names {
    std::string_view window;
    std::string_view title;
    std::string_view enclosure_box;
    std::string_view enclosure_prompt;
    std::string_view enclosure_letter;
    std::string_view note;
  };
  explicit EnclosedPairWindow(const Names& names);

  /// Of a pair that is far enough from the enclosure: the geometry factor.
  virtual Real checked_factor(Real diameter_mm, Real spacing_mm, Real enclosure_mm) = 0;

  ui::Input txtdiametro;
  ui::Input txtdistanza;
  ui::Input enclosure;
  DielectricInput dielectric;
  ui::Schematic drawing;
  ui::Value lblquota1;
  ui::Value lblquota2;
  ui::Value lblquota3;

 private:
  void compute() override;

  ui::Result lblimpedenza;
  LineResults line;
  ui::Note Label5;
};

}  // namespace eterlab::lines
