// Plans a dipole, a loading coil and a look at the SWR meter with the engineering library:
//
//     cmake -S examples/engine -B build/example && cmake --build build/example
//     build/example/shortwave 7.1

#include <antennas/dipoles/wire_antennas.h>
#include <coils/single_layer_coil.h>
#include <common/arithmetic.h>
#include <common/leading_number.h>
#include <common/number_text.h>
#include <lines/standing_wave.h>

#include <cstdlib>
#include <iostream>

namespace {

void plan(eterlab::Real frequency_mhz) {
  using eterlab::fixed;

  const eterlab::Real arm_m = eterlab::antennas::dipole_arm_m(eterlab::Single{frequency_mhz});
  std::cout << "Dipole for " << fixed(frequency_mhz, 2) << " MHz: two arms of " << fixed(arm_m, 2)
            << " m\n";

  const eterlab::coils::SingleLayerCoil coil =
      eterlab::coils::coil_of_inductance({.diameter_mm = 25, .length_mm = 40}, 10);
  std::cout << "Coil of 10 uH, 25 mm wide and 40 mm long: " << fixed(coil.turns, 1) << " turns\n";

  const eterlab::lines::Mismatch mismatch = eterlab::lines::mismatch_of(1.5);
  std::cout << "A standing-wave ratio of 1.5 reflects " << fixed(mismatch.reflected_percent, 1)
            << " % of the power\n";
}

}  // namespace

int main(int argc, char* argv[]) {
  try {
    plan(eterlab::leading_number(argc > 1 ? argv[1] : "7.1"));
    return EXIT_SUCCESS;
  } catch (const eterlab::ArithmeticFault& fault) {
    std::cerr << fault.what() << '\n';
    return EXIT_FAILURE;
  }
}
