#include <benchmark/benchmark.h>

#include <string>

#include "antennas/folded_dipole.h"
#include "antennas/loaded_vertical.h"
#include "antennas/radio_horizon.h"
#include "antennas/wire_antennas.h"
#include "antennas/yagi.h"
#include "benchmarks.h"
#include "circuits/lc_filters.h"
#include "circuits/ohms_law.h"
#include "circuits/power_level.h"
#include "circuits/reactance.h"
#include "circuits/resistive_pads.h"
#include "circuits/resonance.h"
#include "circuits/waveform.h"
#include "coils/copper_wire.h"
#include "coils/flat_spiral.h"
#include "coils/multilayer_coil.h"
#include "coils/proportioned_tank.h"
#include "coils/series_capacitor.h"
#include "coils/single_layer_coil.h"
#include "coils/straight_wire.h"
#include "coils/toroid_cores.h"
#include "coils/toroid_transformer.h"
#include "coils/toroid_tuning.h"
#include "lines/coax_cables.h"
#include "lines/free_space.h"
#include "lines/gamma_match.h"
#include "lines/standing_wave.h"
#include "power/series_resistor.h"
#include "power/three_terminal_regulator.h"
#include "units/decibel.h"
#include "units/decibel_microvolt.h"
#include "units/locator.h"
#include "units/mils.h"
#include "units/temperature.h"
#include "units/wire_gauge.h"

namespace eterlab::bench {

namespace {

/// Measures a call of a function with these arguments.
template <class Function, class... Arguments>
void call(const char* name, Function function, Arguments... arguments) {
  benchmark::RegisterBenchmark(name, [=](benchmark::State& state) mutable {
    (benchmark::DoNotOptimize(&arguments), ...);
    for ([[maybe_unused]] auto iteration : state) {
      benchmark::ClobberMemory();  // the arguments might be others each time
      benchmark::DoNotOptimize(function(arguments...));
    }
  });
}

void register_antennas() {
  using namespace antennas;
  const FoldedDipoleTubes tubes{10, 20, 60};
  const LoadedVertical vertical{6, Single{3}, 25, 7.1};
  call("antennas/folded_dipole_length_m", folded_dipole_length_m, 14.2);
  call("antennas/impedance_step_up", impedance_step_up, tubes);
  call("antennas/reaches_half_wave", reaches_half_wave, vertical);
  call("antennas/has_coil_beyond_tip", has_coil_beyond_tip, vertical);
  call("antennas/loading_inductance_uh", loading_inductance_uh, vertical);
  call("antennas/electrical_length_degrees", electrical_length_degrees, vertical);
  call("antennas/radiation_resistance_ohm", radiation_resistance_ohm, vertical);
  call("antennas/radial_length_m", radial_length_m, 7.1);
  call("antennas/radio_horizon_km", radio_horizon_km, 100.0);
  call("antennas/dipole_arm_m", dipole_arm_m, Single{14.2});
  call("antennas/inverted_v_arm_m", inverted_v_arm_m, Single{14.2});
  call("antennas/harmonic_wire_m", harmonic_wire_m, 2.0, 14.2);
  call("antennas/three_element_yagi", three_element_yagi, 145.0);
  call("antennas/five_element_yagi", five_element_yagi, 145.0);
}

void register_circuits() {
  using namespace circuits;
  call("circuits/low_pass", low_pass, FilterForm::pi, 30.0, 50.0);
  call("circuits/high_pass", high_pass, FilterForm::tee, 30.0, 50.0);
  call("circuits/trap_low_pass", trap_low_pass, 30.0, 50.0);
  call("circuits/band_pass", band_pass, 50.0, 7.0, 7.2);
  call("circuits/split", split, band_pass(50, 7, 7.2));
  call("circuits/from_voltage_and_current", from_voltage_and_current, 12.0, 0.5);
  call("circuits/from_voltage_and_resistance", from_voltage_and_resistance, 12.0, 24.0);
  call("circuits/from_voltage_and_power", from_voltage_and_power, 12.0, 6.0);
  call("circuits/from_current_and_resistance", from_current_and_resistance, 0.5, 24.0);
  call("circuits/from_current_and_power", from_current_and_power, 0.5, 6.0);
  call("circuits/from_resistance_and_power", from_resistance_and_power, 24.0, 6.0);
  call("circuits/rms_voltage", rms_voltage, 100.0, 50.0, watt_to_volt);
  call("circuits/level_dbm", level_dbm, 100.0, watt_to_volt);
  call("circuits/inductive_reactance_ohm", inductive_reactance_ohm, 7.1, 10.0);
  call("circuits/capacitive_reactance_ohm", capacitive_reactance_ohm, 7.1, 100.0);
  call("circuits/minimum_loss_pad", minimum_loss_pad, 75.0, 50.0);
  call("circuits/least_loss_db", least_loss_db, 75.0, 50.0);
  call("circuits/told_in_whole_db", told_in_whole_db, 5.72);
  call("circuits/t_pad", t_pad, 75.0, 50.0, 10.0);
  call("circuits/pi_pad", pi_pad, 75.0, 50.0, 10.0);
  call("circuits/bridged_t_pad", bridged_t_pad, 50.0, 10.0);
  call("circuits/resonance", resonance, 10.0, 100.0);
  call("circuits/from_rms", from_rms, 230.0, Waveform::sine);
  call("circuits/from_peak", from_peak, 325.0, Waveform::sine);
  call("circuits/from_peak_to_peak", from_peak_to_peak, 650.0, Waveform::sine);
  call("circuits/average_v", average_v, 325.0, Waveform::sine);
}

void register_coils() {
  using namespace coils;
  const CoilForm form{20, 40};
  call("coils/copper_wire", copper_wire, 0.5, 100.0);
  call("coils/flat_spiral", flat_spiral, 10.0, 10.0, 40.0);
  call("coils/multilayer_coil", multilayer_coil, 200.0, 2.0, 1.0, 0.05);
  call("coils/proportioned_tank", proportioned_tank, 7.1);
  call("coils/series_capacitor_pf", series_capacitor_pf, 100.0, 60.0);
  call("coils/coil_of_inductance", coil_of_inductance, form, 10.0);
  call("coils/coil_of_turns", coil_of_turns, form, 35.0);
  call("coils/straight_wire_inductance_uh", straight_wire_inductance_uh, 2.0, 1.0);
  call("coils/mix_code", mix_code, toroid_cores().back());
  call("coils/name_of", name_of, toroid_cores().back());
  call("coils/toroid_turns", toroid_turns, 10.0, 49.0);
  call("coils/matching_windings", matching_windings, 7.1, 300.0, 50.0, 49.0);
  call("coils/from_inductance_and_capacitance", from_inductance_and_capacitance, 10.0, 100.0);
  call("coils/from_frequency_and_inductance", from_frequency_and_inductance, 7.1, 10.0);
  call("coils/from_frequency_and_capacitance", from_frequency_and_capacitance, 7.1, 100.0);
}

void register_lines() {
  using namespace lines;
  call("lines/find_coax_cable", find_coax_cable, coax_cables().back().name);
  call("lines/free_space_path", free_space_path, 145.0, 100.0);
  call("lines/gamma_match", gamma_match, 28.5);
  call("lines/mismatch_of", mismatch_of, 1.5);
}

void register_power() {
  using namespace power;
  call("power/zener_standing_ma", zener_standing_ma, ZenerClass::one_watt);
  call("power/zener_series_resistor", zener_series_resistor, 12.0, 5.1, 20.0, 10);
  call("power/led_forward_v", led_forward_v, LedColour::green);
  call("power/led_series_resistor_ohm", led_series_resistor_ohm, 12.0, 2.0);
  call("power/raised_fixed_regulator", raised_fixed_regulator, 5.0, 9.0);
  call("power/adjustable_regulator", adjustable_regulator, 9.0);
  call("power/adjustable_regulator_highest_input_v", adjustable_regulator_highest_input_v, 9.0);
  call("power/constant_current_resistor_ohm", constant_current_resistor_ohm, 100.0);
}

void register_units() {
  using namespace units;
  call("units/from_voltages", from_voltages, 1.0, 10.0);
  call("units/from_powers", from_powers, 1.0, 10.0);
  call("units/ratios_from_decibels", ratios_from_decibels, 6.0);
  call("units/level_dbuv", level_dbuv, 50.0);
  call("units/voltage_uv", voltage_uv, 34.0);
  call("units/position_of", position_of, std::string{"JN61FW"});
  call("units/locator_of", locator_of, Position{12.5, Single{41.9}});
  call("units/degrees_of", degrees_of, 12.0, 30.0, 15.0);
  call("units/degrees_and_minutes", degrees_and_minutes, 12.504);
  call("units/mils_from_mm", mils_from_mm, 1.0);
  call("units/metric_from_mils", metric_from_mils, 40.0);
  call("units/fahrenheit_from_celsius", fahrenheit_from_celsius, 25.0);
  call("units/reaumur_from_celsius", reaumur_from_celsius, 25.0);
  call("units/kelvin_from_celsius", kelvin_from_celsius, 25.0);
  call("units/awg_diameter_mm", awg_diameter_mm, 18.0);
}

}  // namespace

void register_engineering() {
  register_antennas();
  register_circuits();
  register_coils();
  register_lines();
  register_power();
  register_units();
}

}  // namespace eterlab::bench
