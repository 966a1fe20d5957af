#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::power {

/// @name Further circuits of the 78xx
/// Source: the makers' application notes. Out of its ground pin a regulator sends 5 mA, which is
/// typical; up to 8 mA.
/// @{

/// A fixed regulator lifted by a Zener or by diodes in its ground lead.
struct LiftedRegulator {
  Real nominal_v;  ///< of the regulator
  Real lift_v;     ///< of the Zener, or of all diodes
  int diodes;      ///< one to three 1N4148 in series; none where it is a Zener

  [[nodiscard]] Real output_v() const;                                ///< what results
  [[nodiscard]] Real dissipation_w(Real input_v, Real load_a) const;  ///< of the regulator
  [[nodiscard]] Real part_dissipation_w() const;  ///< of the Zener, or of each diode
};

/// With the part that comes nearest to an output: diodes of 0.7 V or a Zener of E24 from 2.4 to
/// 30 V.
LiftedRegulator lifted_regulator(Real nominal_v, Real output_v);

/// A fixed regulator with a resistor from its output to its ground pin, which feeds the load.
struct RegulatedCurrent {
  Real nominal_v;       ///< of the regulator
  Real resistance_ohm;  ///< of E24
  Real current_a;       ///< what results

  [[nodiscard]] Real highest_load_v(Real input_v) const;  ///< while the regulator regulates
  [[nodiscard]] Real dissipation_w(Real input_v) const;   ///< of the regulator, the load shorted
  [[nodiscard]] Real resistor_dissipation_w() const;      ///< of the resistor
};

/// With the resistor nearest to a current above 5 mA.
RegulatedCurrent regulated_current(Real nominal_v, Real current_a);

/// A fixed regulator beside a PNP power transistor, whose resistor between emitter and base leaves
/// it about half an ampere. The transistor opens at 0.8 V.
struct BoostedRegulator {
  Real nominal_v;       ///< of the regulator
  Real current_gain;    ///< hFE of the transistor
  Real resistance_ohm;  ///< of E12
  Real regulator_a;     ///< into the regulator
  Real transistor_a;    ///< out of the collector

  [[nodiscard]] Real dissipation_w(Real input_v) const;             ///< of the regulator
  [[nodiscard]] Real transistor_dissipation_w(Real input_v) const;  ///< of the PNP
  [[nodiscard]] Real resistor_dissipation_w() const;                ///< of the resistor
};

/// The least current gain, whole, that leaves 0.1 A or more for the resistor.
Real least_boost_gain(Real load_a);
/// Wants that gain at least, and a load of more than half an ampere.
BoostedRegulator boosted_regulator(Real nominal_v, Real load_a, Real current_gain);

/// @}

/// @name Heat sinks of a TO-220 case
/// Junction 125 and air 40 degrees; from junction to case 5, from case to sink 1, without a sink
/// from junction to air 65 degrees per watt.
/// @{

/// With a sink of 1 degree per watt, the most that stands to reason.
inline constexpr double highest_dissipation_w = 85.0 / 7;
/// The resistance of the sink in degrees per watt, at most; nothing where none is needed. The
/// dissipation is not above the highest one.
std::optional<Real> heat_sink_k_per_w(Real dissipation_w);

/// @}

/// @name Variable supply
/// An LM317 set by a potentiometer. Source: the makers' data, Vout = Vref (1 + R2 / R1) + Iadj R2
/// with 1.25 V and 50 microampere.
/// @{

/// The range of voltages wanted and the current to be given.
struct VariableSupplyGoal {
  Real lowest_v;           ///< 1.25 or more
  Real highest_v;          ///< above the lowest
  Real potentiometer_ohm;  ///< as a rheostat, in series with R2
};

/// Resistors of E24 whose range covers the one wanted, with a potentiometer of its nominal value.
struct VariableSupply {
  Real r1_ohm;                 ///< from the output to the adjusting pin
  std::optional<Real> r2_ohm;  ///< from there towards ground; nothing: a link
  Real lowest_v;               ///< with the potentiometer at nothing
  Real highest_v;              ///< with all of it
  Real potentiometer_w;        ///< its dissipation with all of it
  Real least_load_a;           ///< besides R1, to the 10 mA that keep it regulating
};
/// Wants a potentiometer that at least 1 mA sweeps over the range.
VariableSupply variable_supply(const VariableSupplyGoal& goal);

/// To be fed with: 3 V above the highest output.
Real variable_supply_input_v(Real highest_v);
/// The current that a regulator can give at every setting, with a heat sink of 1 degree per watt.
Real always_available_a(Real input_v, Real lowest_v, Real wanted_a);

/// @}

}  // namespace eterlab::power
