#include <benchmark/benchmark.h>

#include <array>
#include <string>

#include "antennas/beams/yagi.h"
#include "antennas/dipoles/coax_trap.h"
#include "antennas/dipoles/coil_loaded_dipole.h"
#include "antennas/dipoles/eh_antenna.h"
#include "antennas/dipoles/folded_dipole.h"
#include "antennas/dipoles/g5rv.h"
#include "antennas/dipoles/ladder_line.h"
#include "antennas/dipoles/linear_loading.h"
#include "antennas/dipoles/linear_trap_dipole.h"
#include "antennas/dipoles/off_centre_dipole.h"
#include "antennas/dipoles/trap_dipole.h"
#include "antennas/dipoles/wire_antennas.h"
#include "antennas/l_network.h"
#include "antennas/loops/magnetic_loop.h"
#include "antennas/loops/wire_loops.h"
#include "antennas/radiation_resistance.h"
#include "antennas/straight_wire.h"
#include "antennas/verticals/base_loading.h"
#include "antennas/verticals/capacity_hat.h"
#include "antennas/verticals/loaded_vertical.h"
#include "antennas/verticals/microvert.h"
#include "antennas/verticals/whip.h"
#include "benchmarks.h"
#include "capacitors/series_capacitor.h"
#include "circuits/handbook_reactance.h"
#include "circuits/handbook_resonance.h"
#include "circuits/lc_matching.h"
#include "circuits/ohms_law.h"
#include "circuits/pi_network.h"
#include "circuits/proportioned_tank.h"
#include "circuits/quality_factor.h"
#include "circuits/time_constant.h"
#include "circuits/tuning_range.h"
#include "coils/ferrite/ferrite_cores.h"
#include "coils/ferrite/ferrite_transformer.h"
#include "coils/flat_spiral.h"
#include "coils/layered_coil.h"
#include "coils/multilayer_coil.h"
#include "coils/printed_coil.h"
#include "coils/resonant_line.h"
#include "coils/self_resonance.h"
#include "coils/short_coil.h"
#include "coils/single_layer_coil.h"
#include "coils/spaced_coil.h"
#include "coils/straight_wire.h"
#include "coils/toroids/toroid_cores.h"
#include "coils/toroids/toroid_transformer.h"
#include "coils/toroids/toroid_tuning.h"
#include "coils/winding_inductance.h"
#include "filters/filter_response.h"
#include "filters/lc_filters.h"
#include "filters/lc_notch.h"
#include "filters/rc_filters.h"
#include "lines/baluns/air_balun.h"
#include "lines/baluns/ferrite_balun.h"
#include "lines/coax_cables.h"
#include "lines/geometry/coaxial_line.h"
#include "lines/geometry/facing_strips.h"
#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/round_rods.h"
#include "lines/geometry/uniform_line.h"
#include "lines/geometry/wire_over_ground.h"
#include "lines/matching/gamma_match.h"
#include "lines/matching/matched_load.h"
#include "lines/standing_wave.h"
#include "materials/copper_wire.h"
#include "materials/metals.h"
#include "materials/skin_effect.h"
#include "materials/strand.h"
#include "power/rectifier.h"
#include "power/regulator_circuits.h"
#include "power/three_terminal_regulator.h"
#include "resistors/meter_resistance.h"
#include "resistors/pads/handbook_pads.h"
#include "resistors/pads/resistive_pads.h"
#include "resistors/power_rating.h"
#include "resistors/series_resistor.h"
#include "resistors/voltage_divider.h"
#include "resistors/voltmeter_probe.h"
#include "signals/decibel.h"
#include "signals/decibel_microvolt.h"
#include "signals/free_space.h"
#include "signals/power_level.h"
#include "signals/radio_horizon.h"
#include "signals/waveform.h"
#include "transformers/laminated_core.h"
#include "transformers/mains_transformer.h"
#include "transformers/smoothing_choke.h"
#include "transformers/universal_autotransformer.h"
#include "transistors/emitter_bias.h"
#include "transistors/stage_matching.h"
#include "units/locator.h"
#include "units/mils.h"
#include "units/temperature.h"
#include "units/wire_gauge.h"
#include "valves/output_transformer.h"
#include "valves/pi_network.h"

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

void register_units() {
  using namespace units;
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

void register_signals() {
  using namespace signals;
  call("signals/radio_horizon_km", radio_horizon_km, 100.0);
  call("signals/rms_voltage", rms_voltage, 100.0, 50.0, watt_to_volt);
  call("signals/level_dbm", level_dbm, 100.0, watt_to_volt);
  call("signals/from_rms", from_rms, 230.0, Waveform::sine);
  call("signals/from_peak", from_peak, 325.0, Waveform::sine);
  call("signals/from_peak_to_peak", from_peak_to_peak, 650.0, Waveform::sine);
  call("signals/average_v", average_v, 325.0, Waveform::sine);
  call("signals/free_space_path", free_space_path, 145.0, 100.0);
  call("signals/from_voltages", from_voltages, 1.0, 10.0);
  call("signals/from_powers", from_powers, 1.0, 10.0);
  call("signals/ratios_from_decibels", ratios_from_decibels, 6.0);
  call("signals/level_dbuv", level_dbuv, 50.0);
  call("signals/voltage_uv", voltage_uv, 34.0);
}

void register_circuits() {
  using namespace circuits;
  call("circuits/from_voltage_and_current", from_voltage_and_current, 12.0, 0.5);
  call("circuits/from_voltage_and_resistance", from_voltage_and_resistance, 12.0, 24.0);
  call("circuits/from_voltage_and_power", from_voltage_and_power, 12.0, 6.0);
  call("circuits/from_current_and_resistance", from_current_and_resistance, 0.5, 24.0);
  call("circuits/from_current_and_power", from_current_and_power, 0.5, 6.0);
  call("circuits/from_resistance_and_power", from_resistance_and_power, 24.0, 6.0);
  call("circuits/handbook_inductive_reactance_ohm", handbook_inductive_reactance_ohm, 7.1, 10.0);
  call("circuits/handbook_capacitive_reactance_ohm", handbook_capacitive_reactance_ohm, 7.1, 100.0);
  call("circuits/handbook_resonance", handbook_resonance, 10.0, 100.0);
  call("circuits/proportioned_tank", proportioned_tank, 7.1);
  call("circuits/risen_to", risen_to, 12.0, 0.03, 0.047);
  call("circuits/fallen_to", fallen_to, 12.0, 0.03, 0.047);
  call("circuits/time_constants_until", time_constants_until, 8.0, 12.0);
  call("circuits/pi_section", pi_section, 2000.0, 50.0, 12.0);
  call("circuits/pi_network", pi_network, PiTerminations{33.0, 50, 7.03e6}, 3.0);
  call("circuits/loaded_resonator", loaded_resonator, 250.0, 50.0);
  call("circuits/parts_for_range", parts_for_range, VariableCapacitor{10e-12, 365e-12},
       TuningRange{0.52e6, 1.62e6});
}

void register_filters() {
  using namespace filters;
  call("filters/low_pass", low_pass, FilterForm::pi, 30.0, 50.0);
  call("filters/high_pass", high_pass, FilterForm::tee, 30.0, 50.0);
  call("filters/trap_low_pass", trap_low_pass, 30.0, 50.0);
  call("filters/band_pass", band_pass, 50.0, 7.0, 7.2);
  call("filters/split", split, band_pass(50, 7, 7.2));
  const NotchTask notch{7.1e6, 400e3, 50};
  call("filters/trap", trap, TrapForm::series_to_ground, notch);
  call("filters/notch_edges", notch_edges, notch);
  call("filters/notch_attenuation_db", notch_attenuation_db, notch, 150.0, 7.0e6);
  const ThreeElementFilter pi_filter{PassBand::low, FilterForm::pi, 1.59e-6, 318e-12, 50};
  call(
      "filters/attenuation_db",
      [](const ThreeElementFilter& filter, Real frequency_hz) {
        return attenuation_db(filter, frequency_hz);
      },
      pi_filter, 14.2e6);
  call("filters/cutoff_hz", cutoff_hz, pi_filter);
  call("filters/active_low_pass_f", active_low_pass_f, 2700.0, 1e4);
  call("filters/active_high_pass_ohm", active_high_pass_ohm, 300.0, 1e-8);
  call("filters/butterworth_attenuation_db", butterworth_attenuation_db, PassBand::low, 2, 2700.0,
       5000.0);
  call("filters/twin_t_attenuation_db", twin_t_attenuation_db, 50.0, 60.0);
}

void register_resistors() {
  using namespace resistors;
  call("resistors/handbook_minimum_loss_pad", handbook_minimum_loss_pad, 75.0, 50.0);
  call("resistors/handbook_least_loss_db", handbook_least_loss_db, 75.0, 50.0);
  call("resistors/told_in_whole_db", told_in_whole_db, 5.72);
  call("resistors/handbook_t_pad", handbook_t_pad, 75.0, 50.0, 10.0);
  call("resistors/handbook_pi_pad", handbook_pi_pad, 75.0, 50.0, 10.0);
  call("resistors/handbook_bridged_t_pad", handbook_bridged_t_pad, 50.0, 10.0);
  call("resistors/attenuator_cell", attenuator_cell, Cell::t, 50.0, 6.0);
  call("resistors/dissipated_share", dissipated_share, 6.0);
  call("resistors/least_loss_db", least_loss_db, 600.0, 300.0);
  call("resistors/h_pad", h_pad, 600.0, 300.0, 15.0);
  call("resistors/o_pad", o_pad, 600.0, 300.0, 15.0);
  call("resistors/loaded_divider", loaded_divider, 12.0, 1000.0, 2200.0, 10000.0);
  call("resistors/design_divider", design_divider, 13.8, 5.0, 0.02, 0.005);
  call("resistors/power_rating", power_rating, 470.0, 0.25);
  call("resistors/voltmeter_probe", voltmeter_probe, 1e7, 10.0, 3000.0);
  call("resistors/meter_resistance_ohm", meter_resistance_ohm, 47000.0, 1000.0, 1e-4, 5e-5);
  call("resistors/zener_standing_ma", zener_standing_ma, ZenerClass::one_watt);
  call("resistors/zener_series_resistor", zener_series_resistor, 12.0, 5.1, 20.0, 10);
  call("resistors/led_forward_v", led_forward_v, LedColour::green);
  call("resistors/led_series_resistor_ohm", led_series_resistor_ohm, 12.0, 2.0);
}

void register_capacitors() {
  using namespace capacitors;
  call("capacitors/series_capacitor_pf", series_capacitor_pf, 100.0, 60.0);
}

void register_coils() {
  using namespace coils;
  const CoilForm form{20, 40};
  call("coils/flat_spiral", flat_spiral, 10.0, 10.0, 40.0);
  call("coils/multilayer_coil", multilayer_coil, 200.0, 2.0, 1.0, 0.05);
  call("coils/coil_of_inductance", coil_of_inductance, form, 10.0);
  call("coils/coil_of_turns", coil_of_turns, form, 35.0);
  call("coils/straight_wire_inductance_uh", straight_wire_inductance_uh, 2.0, 1.0);
  call("coils/spaced_coil", spaced_coil, 18.2, 60.0);
  call("coils/mix_code", mix_code, toroid_cores().back());
  call("coils/name_of", name_of, toroid_cores().back());
  call("coils/toroid_turns", toroid_turns, 10.0, 49.0);
  call("coils/matching_windings", matching_windings, 7.1, 300.0, 50.0, 49.0);
  call("coils/from_inductance_and_capacitance", from_inductance_and_capacitance, 10.0, 100.0);
  call("coils/from_frequency_and_inductance", from_frequency_and_inductance, 7.1, 10.0);
  call("coils/from_frequency_and_capacitance", from_frequency_and_capacitance, 7.1, 100.0);
  call("coils/current_sheet_inductance_h", current_sheet_inductance_h, 0.01, 0.02, 10.0);
  call("coils/coaxial_circles_mutual_h", coaxial_circles_mutual_h, 0.01, 0.012, 0.001);
  call("coils/facing_segments_mutual_h", facing_segments_mutual_h, 0.3, 0.3, 0.001);
  const ShortCoil short_coil{0.007, 0.001};
  call("coils/fewest_turns", fewest_turns, short_coil, 0.0015, 0.1e-6);
  call("coils/stretched_pitch_m", stretched_pitch_m, short_coil, 6.0, 0.0015, 0.1e-6);
  call("coils/printed_coil_near", printed_coil_near,
       PrintedSpiral{SpiralShape::round, 0.006, 0.0008, 0.0008}, 0.25e-6);
  // The longest search: all 100 layers.
  call(
      "coils/layered_coil_near",
      [](Real inductance_h) {
        return layered_coil_near(RectangularForm{0.005, 0.005}, {0.014, 0.001}, inductance_h);
      },
      1.0);
  call("coils/resonant_line", resonant_line, 432e6, 3e-12, 112.4);
  call("coils/coil_self_resonance", coil_self_resonance, 0.05, 0.1, 20.0);
  call("coils/ferrite_transformer", ferrite_transformer, ferrite_cores()[5], 50.0, 120.0, 3.5e6);
}

void register_materials() {
  using namespace materials;
  call("materials/copper_wire", copper_wire, 0.5, 100.0);
  call("materials/round_wire_impedance_ratio", round_wire_impedance_ratio, 10.0);
  call("materials/wires_in_strand", wires_in_strand, 37);
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
  const Whip whip{2.5, 10};
  call("antennas/whip_radiation_resistance_ohm", whip_radiation_resistance_ohm, 0.4);
  call("antennas/self_resonance_mhz", self_resonance_mhz, whip);
  call("antennas/tapped_coil", tapped_coil, base_loading(whip, 7.05, 10), 60.0, 22);
  call("antennas/spoke_length_m", spoke_length_m, HatSpokes{4, 4}, 56.3, 6.0);
  call("antennas/microvert", microvert, 7.05, 40.0);
  call("antennas/dipole_arm_m", dipole_arm_m, Single{14.2});
  call("antennas/inverted_v_arm_m", inverted_v_arm_m, Single{14.2});
  call("antennas/harmonic_wire_m", harmonic_wire_m, 2.0, 14.2);
  call("antennas/dipole_radiation", dipole_radiation, 0.5);
  call("antennas/rectangular_loop", rectangular_loop, 2.0, 20.0, 0.002);
  call("antennas/l_match", l_match, Complex{12, -85}, 50.0);
  call("antennas/three_element_yagi", three_element_yagi, 145.0);
  call("antennas/five_element_yagi", five_element_yagi, 145.0);
  const MagneticLoop loop{LoopShape::circle, 3.14, 22, materials::copper.resistivity_ohm_m()};
  call("antennas/tuned_loop", tuned_loop, loop, 14.2e6);
  const EhAntenna eh{14.2e6, 0.05, 0.157, 0.002, 200};
  call("antennas/eh_body", eh_body, eh);
  call("antennas/eh_star", eh_star, eh, *eh_body(eh));
  call("antennas/eh_phasing", eh_phasing, eh, *eh_body(eh));
}

void register_dipoles() {
  using namespace antennas;
  const Conductor conductor{7.1, 2};
  call(
      "antennas/dipole_impedance_ohm",
      [](Real arm_m, const Conductor& wire) { return dipole_impedance_ohm(arm_m, wire); }, 5.0,
      conductor);
  call("antennas/half_wave_arm_m", half_wave_arm_m, conductor);
  const CoilLoadedDipole loaded{6, 3, conductor};
  call("antennas/is_resonant_without_coils", is_resonant_without_coils, loaded);
  call("antennas/coil_loading", coil_loading, loaded);
  call("antennas/coil_loading_efficiency", coil_loading_efficiency, loaded);
  call("antennas/trap_reactance_ohm", trap_reactance_ohm, 3.65, 7.1, 8e-6);
  call("antennas/trap_dipole", [] {
    return trap_dipole(std::array<Real, 3>{14.15, 7.1, 3.65}, std::array<Real, 2>{50, 100}, 2);
  });
  call("antennas/single_pair_dipole", single_pair_dipole, ThreeBands{3.65, 7.05, 14.15}, 2.0);
  call("antennas/single_pair_dipole_widest", single_pair_dipole, ThreeBands{3, 9, 30}, 2.0);
  call("antennas/coax_trap_hz", coax_trap_hz, trap_cables().front(), 40.0, 11.0);
  call("antennas/coax_trap", coax_trap, trap_cables().front(), 40.0, 7.05,
       TrapOutput::inner_conductor);
  call("antennas/linear_load", linear_load, LinearLoadedArm{6, conductor, 2, 100});
  const LadderLine line = ladder_lines()[1];
  call("antennas/suits_linear_trap", suits_linear_trap, line, 7.1);
  call("antennas/linear_trap_dipole", linear_trap_dipole, line, 7.1, 3.65, 2.0);
  call("antennas/g5rv", g5rv, 14.15, 2.0, line);
  call(
      "antennas/g5rv_at_28_5_mhz",
      [](const G5rv& antenna) { return antenna.centre_impedance_ohm(28.5); }, g5rv(14.15, 2, line));
  call("antennas/single_wire_tap", single_wire_tap, 600.0, conductor);
  call("antennas/cut_wire_tap", cut_wire_tap, 200.0, conductor);
}

void register_lines() {
  using namespace lines;
  call("lines/find_coax_cable", find_coax_cable, coax_cables().back().name);
  call("lines/gamma_match", gamma_match, 28.5);
  call("lines/mismatch_of", mismatch_of, 1.5);
  const PairOverGround pair{2, 100, 50};
  const FacingStrips strips{1.6, 0.035, 5, 4.4};
  call("lines/wire_pair_factor", wire_pair_factor, 2.0, 100.0);
  call("lines/wire_pair_spacing", wire_pair_spacing, 2.0, 4.6);
  call("lines/push_pull_factor", push_pull_factor, pair);
  call("lines/joined_factor", joined_factor, pair);
  call("lines/pair_between_plates_factor", pair_between_plates_factor, 3.0, 15.0, 20.0);
  call("lines/shielded_pair_factor", shielded_pair_factor, 2.0, 8.0, 16.0);
  call("lines/rod_between_plates_factor", rod_between_plates_factor, 10.0, 20.0);
  call("lines/rod_in_square_factor", rod_in_square_factor, 8.0, 20.0);
  call("lines/enclosed_rod_diameter", enclosed_rod_diameter, rod_between_plates_factor, 16.0, 0.8);
  call("lines/nearest_rod_mm", nearest_rod_mm, 8.8);
  call("lines/coaxial_highest_frequency_hz", coaxial_highest_frequency_hz, 0.001, 0.003, 2.26);
  call("lines/strip_line", strip_line, strips);
  call("lines/strip_width", strip_width, strips, 43.0);
  call("lines/horizontal_wire", horizontal_wire, 0.002, 6.0, 20.0);
  call("lines/vertical_wire_capacitance_f", vertical_wire_capacitance_f, 0.002, 10.0, 0.5);
  call("lines/line_constants", line_constants, 50.0, 0.66);
  call("lines/quarter_wave_match", quarter_wave_match, 112.0, 50.0);
  const Complex antenna{28, -15};
  call("lines/series_section_match", series_section_match, antenna, 50.0, 112.0);
  const MatchedLoad matched = stub_match(StubEnd::shorted, antenna, 50, 50);
  call(
      "lines/band", [](const MatchedLoad& load) { return load.band(1.5); }, matched);
  call("lines/air_balun", air_balun, AirBalunRatio::one, 3.5, 50.0, 30.0, 1.5);
  call("lines/cable_choke", cable_choke, 7.0, 50.0, 110.0, 5.0);
  const FerriteBalunTask balun{FerriteBalunKind::unun_one_to_nine, balun_cores().front(), 3.5e6, 50,
                               100};
  call("lines/ferrite_balun", ferrite_balun, balun);
}

void register_power() {
  using namespace power;
  call("power/raised_fixed_regulator", raised_fixed_regulator, 5.0, 9.0);
  call("power/adjustable_regulator", adjustable_regulator, 9.0);
  call("power/adjustable_regulator_highest_input_v", adjustable_regulator_highest_input_v, 9.0);
  call("power/constant_current_resistor_ohm", constant_current_resistor_ohm, 100.0);
  call("power/rectifier", Rectifier::in_steady_state,
       RectifierSupply{RectifierCircuit::bridge, 13.8, 0.9, 1, 2200e-6});
  call("power/lifted_regulator", lifted_regulator, 12.0, 37.0);
  call("power/variable_supply", variable_supply, VariableSupplyGoal{5, 15, 4700});
}

void register_transistors() {
  using namespace transistors;
  call("transistors/common_emitter_stage", common_emitter_stage,
       CommonEmitterGoal{12, 0.001, 200, 50});
  call("transistors/tapped_capacitor", tapped_capacitor, 1806.0, 50.0, 10.0, 14e6);
}

void register_transformers() {
  using namespace transformers;
  const MainsTransformerTask mains{230, laminations()[1], {{250, 0.06, true}, {6.3, 2}}};
  call("transformers/smallest_core", [mains] {
    return smallest_core(
        [&mains](const LaminatedCore& core) { return mains_transformer(mains, core).fits; });
  });
  call("transformers/smoothing_choke", smoothing_choke, ChokeTask{10, 0.06}, LaminatedCore{3.1});
  call("transformers/nearest_taps", nearest_taps, 230.0, 125.0);
}

void register_valves() {
  using namespace valves;
  const OutputStage stage{OutputCircuit::single, 5200, 5.7, 0.048, 8, 70};
  call("valves/output_transformer", output_transformer, stage, transformers::LaminatedCore{5.6});
  call("valves/pi_network", valves::pi_network, PiNetworkTask{2846, 50, 7.05e6, 12});
}

}  // namespace

void register_engineering() {
  register_units();
  register_signals();
  register_circuits();
  register_filters();
  register_resistors();
  register_capacitors();
  register_coils();
  register_materials();
  register_antennas();
  register_dipoles();
  register_lines();
  register_power();
  register_transistors();
  register_transformers();
  register_valves();
}

}  // namespace eterlab::bench
