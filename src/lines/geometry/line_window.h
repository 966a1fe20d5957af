#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "common/arithmetic.h"
#include "common/rounding.h"  // IWYU pragma: export
#include "ui/ui.h"

// What the windows of lines and their cross-sections have in common.

namespace eterlab::lines {

// What their boxes take
inline constexpr ui::Range wire_range_mm{0.01, 1000};
inline constexpr ui::Range distance_range_mm{0.01, 100'000};
inline constexpr ui::Range length_range_m{0.001, 100'000};
inline constexpr ui::Range impedance_range_ohm{1, 2000};

/// For an impedance that is not between these: limits that can be typed.
std::string impedance_limits_text(Real least_ohm, Real greatest_ohm);

// Results and values on drawings
std::string impedance_text(Real impedance_ohm);
std::string millimetres(Real length_mm);           ///< as typed
std::string computed_millimetres(Real length_mm);  ///< to two decimals
std::string metres(Real length_m);
std::string picofarad_per_metre(Real capacitance_f_per_m);
std::string microhenry_per_metre(Real inductance_h_per_m);
/// The rod that is sold instead of the wanted one and the impedance with it; nothing without one
/// or where it is too thick.
std::string rod_text(Real wanted_mm, Real thickest_mm,
                     const std::function<Real(Real rod_mm)>& impedance_ohm_with);

/// A box for the velocity factor of a pair of wires.
ui::Input velocity_factor_input(ui::Parent parent, std::string_view prompt_name);

/// A window of this family.
class LineWindow : public ui::Calculator {
 protected:
  LineWindow(std::string_view name, std::string_view title);

  /// An optional number that is not above zero counts as not told.
  void check() override;
};

/// Capacitance, inductance and velocity factor.
class LineResults {
 public:
  explicit LineResults(ui::Parent parent);
  operator ui::Item();

  void show(Real impedance_ohm, Real velocity_factor);

 private:
  ui::Result lblcapacita;
  ui::Result lblinduttanza;
  ui::Result lblvelocita;
};

/// The relative permittivity, and a list of dielectrics that writes it.
class DielectricInput {
 public:
  DielectricInput(ui::Parent parent, std::string_view prompt_name);
  operator ui::Field() const;

  [[nodiscard]] Real relative_permittivity() const { return txter.value(); }

 private:
  ui::Input txter;
  ui::ComboBox cmbdielettrico;
};

/// A box that asks for what the option chosen does not look for.
class EitherInput {
 public:
  struct Question {
    std::string_view option;
    std::string_view prompt;
    ui::Range range;
  };
  EitherInput(ui::Parent parent, const Question& first, const Question& second);

  [[nodiscard]] bool is_first() const { return Option1.selected() == 0; }
  [[nodiscard]] Real value() const { return txtinput.value(); }

  ui::Frame Frame1;
  ui::OptionArray Option1;
  ui::Input txtinput;

 private:
  Question first_;
  Question second_;
};

}  // namespace eterlab::lines
