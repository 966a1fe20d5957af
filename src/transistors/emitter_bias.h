#pragma once

#include "common/arithmetic.h"

namespace eterlab::transistors {

/// What a common-emitter amplifier is designed for.
struct CommonEmitterGoal {
  Real supply_v;             ///< 3 or more
  Real collector_current_a;  ///< at rest
  Real current_gain;         ///< of direct current, hFE; 20 or more
  Real lowest_hz;            ///< where the gain has fallen by about 3 dB
};

/// Its parts, all of them preferred values: resistors of E24, capacitors of E6.
struct CommonEmitterParts {
  Real r1_ohm;             ///< from the supply to the base
  Real r2_ohm;             ///< from the base to ground
  Real collector_ohm;      ///< in the collector's lead
  Real emitter_ohm;        ///< in the emitter's lead
  Real input_coupling_f;   ///< into the base
  Real output_coupling_f;  ///< out of the collector
  Real emitter_bypass_f;   ///< across the emitter's resistor
};

/// What such a stage really does.
struct CommonEmitterStage {
  CommonEmitterParts parts;          ///< it is built of
  Real collector_current_a;          ///< at rest
  Real collector_emitter_v;          ///< at rest
  Real emitter_v;                    ///< at rest, against ground
  Real current_with_half_gain_a;     ///< the collector's, of a transistor with half the hFE
  Real current_with_double_gain_a;   ///< and with twice the hFE
  Real voltage_gain;                 ///< without a load
  Real voltage_gain_without_bypass;  ///< with the emitter's capacitor taken away
  Real input_ohm;                    ///< impedance of the input
  Real swing_v;                      ///< of the output, peak to peak, at most
  Real dissipation_w;                ///< of the transistor at rest
};

/// Four-resistor bias of a small silicon transistor at 300 K, whose base-emitter voltage is 0.65 V
/// at 1 mA: each part from the preferred values of those before it. The Early effect is neglected;
/// it takes about IC RC / 100 V off the gain. Source: Millman, Halkias, "Integrated Electronics";
/// hybrid-pi model: Gray, Meyer, "Analysis and Design of Analog Integrated Circuits".
CommonEmitterStage common_emitter_stage(const CommonEmitterGoal& goal);

}  // namespace eterlab::transistors
