#pragma once

#include <optional>
#include <vector>

#include "common/arithmetic.h"
#include "common/complex.h"
#include "lines/line_section.h"
#include "lines/lines_on_sale.h"

namespace eterlab::lines {

/// The frequencies around that of the match, as multiples of it, between which it holds.
struct MatchedBand {
  Real from;  ///< up to 1
  Real to;    ///< from 1 on
};

/// A load on a line, with what matches it between them.
struct MatchedLoad {
  Complex load_ohm;                   ///< the same at all frequencies
  Real line_ohm;                      ///< impedance of the line
  std::vector<LineSection> sections;  ///< from the load to the line
  std::optional<Stub> stub = {};      ///< across the end of the sections

  /// What the line has at its end, at a frequency so many times that of the match.
  [[nodiscard]] Complex input_impedance_ohm(Real frequency_ratio = 1) const;
  /// On the line.
  [[nodiscard]] Real swr(Real frequency_ratio = 1) const;
  /// On the line without what matches it.
  [[nodiscard]] Real unmatched_swr() const;
  /// How far to both sides of the frequency of the match, where it has no more than the greatest
  /// standing-wave ratio, that is not exceeded; at most from 0.5 to 1.5 times it.
  [[nodiscard]] MatchedBand band(Real greatest_swr) const;
};

/// @name Matching sections
/// Of lossless lines. A load is matched already where its reflection coefficient is 0; the
/// impossible is empty. Source: Pozar, Microwave Engineering, chapter 5; Regier, "Impedance
/// matching with a series transmission line section", Proc. IEEE 59, 1971.
/// @{

/// A resistance matched by a quarter wave.
struct QuarterWaveMatch {
  Real impedance_ohm;       ///< the section should have
  const LineOnSale* cable;  ///< the nearest on sale; null where it would help little
  MatchedLoad matched;      ///< by that or, without it, by the section as it should be
};
/// A cable helps little above a standing-wave ratio of 1.5 or where it leaves 99 % of it.
QuarterWaveMatch quarter_wave_match(Real load_ohm, Real line_ohm);

/// A piece of the line itself, then a section of another impedance, the shorter of two solutions.
/// Sections of an impedance near to that of the line cannot do it.
std::optional<MatchedLoad> series_section_match(Complex load_ohm, Real line_ohm, Real section_ohm);
/// Sections with an impedance up to the first or from the second one can do it.
struct SeriesSectionLimits {
  Real greatest_low_ohm;  ///< Z0 / sqrt(S)
  Real least_high_ohm;    ///< Z0 sqrt(S)
};
/// For a standing-wave ratio on the line.
SeriesSectionLimits series_section_limits(Real line_ohm, Real standing_wave_ratio);

/// A piece of the line itself, then a stub across it, shorter than a quarter wave.
MatchedLoad stub_match(StubEnd end, Complex load_ohm, Real line_ohm, Real stub_ohm);

/// The twelfth-wave transformer between two lines: the electrical length of each of two sections,
/// first one of the other line's impedance, then one of the own. Source: Bramham, "A convenient
/// transformer for matching coaxial lines", CERN 59-37, 1959.
Real twelfth_wave_angle(Real line_ohm, Real other_line_ohm);

/// @}

}  // namespace eterlab::lines
