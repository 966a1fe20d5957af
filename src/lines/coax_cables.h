#pragma once

#include <span>
#include <string_view>

namespace eterlab::lines {

/// A coaxial cable as catalogues print it. The values are texts: with a decimal comma, "ignota"
/// where one is not known, " ?" after one that is not sure, "16x24" for the diameters of an oval
/// cable, and nothing where the catalogue has no entry.
struct CoaxCable {
  std::string_view name;                    ///< its type
  std::string_view impedance_ohm;           ///< characteristic impedance
  std::string_view capacitance_pf_per_m;    ///< between the conductors
  std::string_view outer_diameter_mm;       ///< with the jacket
  std::string_view loss_db_at_100_mhz;      ///< of 100 m
  std::string_view loss_db_at_400_mhz;      ///< of 100 m
  std::string_view max_voltage_kv;          ///< between the conductors
  std::string_view max_power_w_at_100_mhz;  ///< that it carries
  std::string_view velocity_factor;         ///< speed of a wave in it over that of light
};

/// The catalogue: the RG cables by number, then low-loss ones.
std::span<const CoaxCable> coax_cables();

/// The cable of exactly that name, or null.
const CoaxCable* find_coax_cable(std::string_view name);

}  // namespace eterlab::lines
