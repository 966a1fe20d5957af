#pragma once

#include <string>
#include <string_view>

#include "antennas/antenna_wire.h"
#include "antennas/thickness_range.h"
#include "ui/ui.h"

// Windows of antennas that are cut for a frequency and the diameter of their conductor.

namespace eterlab::antennas {

/// A length as a tape measures it, the unit first: "cm. 525,9".
std::string cm_and_length(Real length_m);

class ConductorWindow : public ui::Calculator {
 protected:
  /// What the box for the diameter asks for, and which diameters the antenna is known for.
  struct Diameter {
    std::string_view prompt;
    std::string_view tooltip;
    ThicknessRange suitable;
  };
  ConductorWindow(std::string_view name, std::string_view title, const Diameter& diameter);

  /// Of a suitable diameter; any other is refused.
  [[nodiscard]] AntennaWire conductor();

  ui::Input txtfrequenza;
  ui::Input txtdiametro;

 private:
  ThicknessRange suitable_;
};

/// One whose conductor is a wire, bare or insulated.
class WireWindow : public ConductorWindow {
 protected:
  WireWindow(std::string_view name, std::string_view title, const ThicknessRange& suitable);

  /// Of a suitable diameter; any other is refused.
  [[nodiscard]] AntennaWire wire();
  /// The boxes and the choice of the wire.
  [[nodiscard]] ui::Item questions();

 private:
  ui::Frame Frame1{this, "Frame1", "FILO"};
  ui::OptionArray Option1{Frame1, "Option1", {"NUDO", "ISOLATO IN PVC"}};
};

}  // namespace eterlab::antennas
