#include "valves/output_valves.h"

namespace eterlab::valves {

namespace {

constexpr auto single = OutputCircuit::single;
constexpr auto push_pull = OutputCircuit::push_pull;

constexpr OutputValve valves[] = {{"EL84", single, 5200, 5.7, 48},
                                  {"EL41", single, 7000, 3.9, 36},
                                  {"EL3N", single, 7000, 4.5, 36},
                                  {"ECL86", single, 7000, 4, 36},
                                  {"ECL82", single, 5600, 3.5, 35},
                                  {"EL34", single, 2000, 11, 100},
                                  {"6V6 / 6AQ5", single, 5000, 4.5, 45},
                                  {"6F6 / 42", single, 7000, 3.2, 34},
                                  {"6L6", single, 2500, 6.5, 72},
                                  {"50L6", single, 2000, 2.1, 49},
                                  {"45", single, 3900, 1.6, 34},
                                  {"2A3", single, 2500, 3.5, 60},
                                  {"2 x EL84 (250 V)", push_pull, 8000, 11, 0},
                                  {"2 x 6V6 (250 V)", push_pull, 10000, 10, 0},
                                  {"2 x 6L6 (360 V)", push_pull, 6600, 26.5, 0},
                                  {"2 x EL34 (375 V)", push_pull, 3400, 35, 0}};

}  // namespace

std::span<const OutputValve> output_valves() { return valves; }

}  // namespace eterlab::valves
