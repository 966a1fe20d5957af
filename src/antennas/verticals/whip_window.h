#pragma once

#include <string_view>

#include "antennas/verticals/base_loading.h"
#include "antennas/verticals/whip.h"
#include "coils/spaced_coil.h"
#include "ui/ui.h"

// What the windows of short vertical antennas have in common.

namespace eterlab::antennas {

// What their boxes take
inline constexpr ui::Range whip_height_range_m{0.01, 1000};
inline constexpr ui::Range whip_diameter_range_mm{0.1, 1000};
inline constexpr ui::Range coil_diameter_range_mm{1, 1000};

/// A whip at a frequency, and the button that warns of theory.
class WhipWindow : public ui::Calculator {
 protected:
  WhipWindow(std::string_view name, std::string_view title, std::string_view warning_button);

  /// Its radiator must be slender.
  void check() override;
  [[nodiscard]] Whip whip() const { return {txtaltezza.value(), txtdiametro.value()}; }

  ui::Input txtfrequenza;
  ui::Input txtaltezza;
  ui::Input txtdiametro;
  ui::Button cmdavviso;
};

/// A whip that is loaded by a coil at its base.
class LoadedWhipWindow : public WhipWindow {
 protected:
  LoadedWhipWindow(std::string_view name, std::string_view title, std::string_view warning_button);

  /// And it must need a coil.
  void check() override;
  [[nodiscard]] BaseLoading loading() const;
  [[nodiscard]] ui::Item boxes() const;
  void show_efficiency(const BaseLoading& loading);
  void show_coil(const coils::SpacedCoil& coil);

  ui::Input txtterra;
  ui::Input txtbobina;
  ui::Result lblinduttanza;
  ui::Result lblspire;
  ui::Result lblfilo;
  ui::Result lblbase;
  ui::Result lblrendimento;
  ui::Result lblbanda;
};

}  // namespace eterlab::antennas
