#pragma once

#include <functional>
#include <optional>

#include "common/arithmetic.h"

namespace eterlab::transformers {

/// A core of scrapless EI laminations with a square stack, told by its gross section: tongue times
/// stack, above zero. Source: geometry of these laminations, whose windows are half a tongue wide
/// and one and a half high; R. Lee, Electronic Transformers and Circuits.
struct LaminatedCore {
  Real gross_section_cm2;                      ///< paper and air between the sheets included
  [[nodiscard]] Real tongue_m() const;         ///< width of the middle leg
  [[nodiscard]] Real iron_section_m2() const;  ///< 95 % of the gross one
  [[nodiscard]] Real iron_path_m() const;      ///< in the middle of legs and yokes
  [[nodiscard]] Real iron_mass_kg() const;     ///< of both outer legs as well
  [[nodiscard]] Real mean_turn_m() const;      ///< half way into the window
  /// What copper fills of a window at most, 30 %: the rest is enamel, paper and bobbin.
  [[nodiscard]] Real copper_room_mm2() const;
  /// Width of the tongue that is bought, in whole mm.
  [[nodiscard]] Real tongue_to_buy_mm() const;
};

/// The smallest core that suits, of those from a section on in steps of 0.1 cm2 up to 50; none when
/// not even that does.
std::optional<LaminatedCore> smallest_core(const std::function<bool(const LaminatedCore&)>& suits,
                                           Real from_cm2 = 1);

}  // namespace eterlab::transformers
