#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::resistors {

/// @name Series resistors
/// The resistor between a supply and a diode. Source: Ohm's law.
/// @{

/// Power that a Zener diode bears.
enum class ZenerClass : std::uint8_t { half_watt, one_watt, two_watt };

/// The current that keeps a Zener diode of this class in its breakdown region.
int zener_standing_ma(ZenerClass zener);

/// The resistor of a Zener diode.
struct ZenerResistor {
  std::int16_t resistance_ohm;  ///< to the ohm
  Single dissipation_w;         ///< of the resistor
};

/// R = (Vcc - Vz) / (load + standing current), to the ohm, ties to even. Throws division_by_zero
/// where the two currents cancel, overflow for a resistor beyond the 16-bit range.
ZenerResistor zener_series_resistor(Real supply_v, Real zener_v, Real load_ma, int standing_ma);

/// Of the light of a diode.
enum class LedColour : std::uint8_t { red, green, yellow, orange, blue, white };

/// Voltage across a lit diode of this colour.
Real led_forward_v(LedColour colour);

/// R = (V - Vled) / 10 mA, to a hundredth of an ohm. A supply below the voltage of the diode gives
/// a negative value. Throws overflow beyond the range of single precision.
Single led_series_resistor_ohm(Real supply_v, Real forward_v);

/// @}

}  // namespace eterlab::resistors
