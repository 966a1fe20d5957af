#include "common/physics.h"

#include <gtest/gtest.h>

namespace eterlab {
namespace {

// What the constants are to each other; the digits published carry 11 or 12.
TEST(Physics, ConstantsAgree) {
  const double impedance_ohm = vacuum_permeability_h_per_m * speed_of_light_m_per_s;
  EXPECT_NEAR(impedance_ohm / free_space_impedance_ohm, 1, 1e-11);
  EXPECT_NEAR(impedance_ohm * vacuum_permittivity_f_per_m * speed_of_light_m_per_s, 1, 1e-11);
  // kT/e at 300 K, as in tables of semiconductors.
  EXPECT_NEAR(boltzmann_constant_j_per_k * 300 / elementary_charge_c, 0.025852, 5e-7);
}

}  // namespace
}  // namespace eterlab
