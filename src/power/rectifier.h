#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "common/arithmetic.h"

namespace eterlab::power {

/// How the diodes stand between a winding and the reservoir capacitor.
enum class RectifierCircuit : std::uint8_t { half_wave, centre_tap, bridge };

/// A rectifier on the mains of 50 Hz with a reservoir capacitor and a load of constant current.
struct RectifierSupply {
  RectifierCircuit circuit;  ///< of the diodes
  Real winding_v;            ///< rms without a load; with a centre tap, of one half
  Real winding_ohm;          ///< the transformer's, seen from the same winding
  Real load_a;               ///< constant
  Real capacitance_f;        ///< of the reservoir
};

/// A rectifier in its steady state: exact for diodes with a constant drop of 0.9 V, as 1N400x have
/// at the peaks of charging. Angles are those of the mains, in radians. Source: O. H. Schade,
/// "Analysis of Rectifier Operation", Proc. IRE, July 1943.
class Rectifier {
 public:
  /// Nothing where the output falls to zero. The winding's peak must be above the diodes' drop.
  static std::optional<Rectifier> in_steady_state(const RectifierSupply& supply);

  [[nodiscard]] Real no_load_v() const;        ///< output without a load
  [[nodiscard]] Real mean_v() const;           ///< of the output
  [[nodiscard]] Real lowest_v() const;         ///< valley of the output
  [[nodiscard]] Real highest_v() const;        ///< crest of the output
  [[nodiscard]] Real inverse_v() const;        ///< that each diode blocks
  [[nodiscard]] Real pulse_peak_a() const;     ///< of the current that charges
  [[nodiscard]] Real pulse_rms_a() const;      ///< of the charging current
  [[nodiscard]] Real diode_mean_a() const;     ///< through each diode
  [[nodiscard]] Real switch_on_a() const;      ///< peak into the empty capacitor
  [[nodiscard]] Real winding_rms_a() const;    ///< with a centre tap, in each half
  [[nodiscard]] Real winding_va() const;       ///< apparent power of the whole winding
  [[nodiscard]] Real capacitor_rms_a() const;  ///< ripple current of the capacitor
  [[nodiscard]] Real ripple_hz() const;        ///< how often the capacitor is charged

  [[nodiscard]] Real output_v(Real angle) const;     ///< at an angle of the mains, 0 or more
  [[nodiscard]] Real rectified_v(Real angle) const;  ///< the winding less the drop; negative: none

 private:
  explicit Rectifier(const RectifierSupply& supply);

  [[nodiscard]] Real forced_v(Real angle) const;
  /// Of the pulse that begins at an angle.
  [[nodiscard]] Real pulse_a(Real begin, Real angle) const;
  [[nodiscard]] Real pulse_end(Real begin) const;
  [[nodiscard]] Real winding_less_drop_v(Real angle) const;
  /// What the capacitor gains from one pulse to the next if they begin there.
  [[nodiscard]] Real gain_v(Real begin) const;
  [[nodiscard]] Real peak_angle() const;

  RectifierSupply supply_;
  Real peak_v_;
  Real drop_v_;
  Real period_;         ///< angle from pulse to pulse
  Real time_constant_;  ///< of winding and capacitor, as an angle
  Real opening_;        ///< where the winding rises above the drop
  Real begin_;
  Real end_;
};

/// What the diodes of a supply must bear, in the usual types.
struct RectifierDiodes {
  std::optional<std::string> type;  ///< the first one of 1N4001..7 and 1N5400..8 that is enough
  Real least_current_a;             ///< rating without a type of these families, whole
  Real least_inverse_v;             ///< likewise
};

/// With a reserve of 20 % in the current, for the pulses, and of half as much again in the voltage.
/// Source: the makers' data.
RectifierDiodes suitable_diodes(const Rectifier& rectifier);

}  // namespace eterlab::power
