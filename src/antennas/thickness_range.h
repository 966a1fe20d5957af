#pragma once

namespace eterlab::antennas {

/// The thickness of a conductor for which the dimensions of an antenna hold, both limits included.
struct ThicknessRange {
  double least;     ///< diameter over wavelength
  double greatest;  ///< diameter over wavelength
};

}  // namespace eterlab::antennas
