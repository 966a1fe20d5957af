#include "coils/toroids/toroid_cores.h"

#include <array>

namespace eterlab::coils {

namespace {

// clang-format off
constexpr ToroidSize t12  {"T-12",   "3,18",   "1,27"};
constexpr ToroidSize t16  {"T-16",   "4,06",   "1,52"};
constexpr ToroidSize t20  {"T-20",   "5,08",   "1,78"};
constexpr ToroidSize t25  {"T-25",   "6,35",   "2,44"};
constexpr ToroidSize t30  {"T-30",   "7,80",   "3,25"};
constexpr ToroidSize t37  {"T-37",   "9,53",   "3,25"};
constexpr ToroidSize t44  {"T-44",   "11,18",  "4,04"};
constexpr ToroidSize t50  {"T-50",   "12,70",  "4,83"};
constexpr ToroidSize t68  {"T-68",   "17,53",  "4,83"};
constexpr ToroidSize t80  {"T-80",   "20,20",  "6,35"};
constexpr ToroidSize t94  {"T-94",   "23,93",  "7,92"};
constexpr ToroidSize t106 {"T-106",  "26,92",  "11,1"};
constexpr ToroidSize t130 {"T-130",  "33,02",  "11,1"};
constexpr ToroidSize t157 {"T-157",  "39,88",  "14,48"};
constexpr ToroidSize t184 {"T-184",  "46,74",  "18,03"};
constexpr ToroidSize t200 {"T-200",  "50,8",   "13,97"};
constexpr ToroidSize t200a{"T-200A", "50,8",   "25,40"};
constexpr ToroidSize t225 {"T-225",  "57,15",  "13,97"};
constexpr ToroidSize t225a{"T-225A", "57,15",  "25,40"};
constexpr ToroidSize t300 {"T-300",  "76,20",  "12,7"};
constexpr ToroidSize t300a{"T-300A", "76,20",  "25,4"};
constexpr ToroidSize t400 {"T-400",  "101,6",  "16,51"};
constexpr ToroidSize t400a{"T-400A", "101,6",  "25,4"};
constexpr ToroidSize t520 {"T-520",  "132,08", "20,32"};

// By mix and inductance index. Halves are rounded to the even number: 7.5 to 8, 18.5 to 18. Two
// rows are out of line with their powder, and stay as catalogued: T-50/15 and the second T-225/ 6.
constexpr std::array<ToroidCore, 170> cores{{
    {&t12,   0,  3},
    {&t12,   1,  48},
    {&t12,   2,  20},
    {&t12,   3,  60},
    {&t12,   6,  17},
    {&t12,   7,  18},
    {&t12,   10, 12},
    {&t12,   12, 8},
    {&t12,   15, 50},
    {&t12,   17, 8},
    {&t16,   0,  3},
    {&t16,   1,  44},
    {&t16,   2,  22},
    {&t16,   3,  61},
    {&t16,   6,  19},
    {&t16,   10, 13},
    {&t16,   12, 8},
    {&t16,   15, 55},
    {&t16,   17, 8},
    {&t16,   26, 145},
    {&t20,   0,  8},
    {&t20,   1,  52},
    {&t20,   2,  27},
    {&t20,   3,  76},
    {&t20,   6,  22},
    {&t20,   7,  24},
    {&t20,   10, 16},
    {&t20,   12, 10},
    {&t20,   15, 65},
    {&t20,   17, 10},
    {&t20,   26, 180},
    {&t25,   0,  8},
    {&t25,   1,  70},
    {&t25,   2,  34},
    {&t25,   3,  100},
    {&t25,   6,  27},
    {&t25,   7,  29},
    {&t25,   10, 19},
    {&t25,   12, 12},
    {&t25,   15, 85},
    {&t25,   17, 12},
    {&t25,   26, 235},
    {&t30,   0,  6},
    {&t30,   1,  85},
    {&t30,   2,  43},
    {&t30,   3,  140},
    {&t30,   6,  36},
    {&t30,   7,  37},
    {&t30,   10, 25},
    {&t30,   12, 16},
    {&t30,   15, 93},
    {&t30,   17, 16},
    {&t30,   26, 325},
    {&t37,   0,  8},
    {&t37,   1,  80},
    {&t37,   2,  40},
    {&t37,   3,  120},
    {&t37,   6,  30},
    {&t37,   7,  32},
    {&t37,   10, 25},
    {&t37,   12, 15},
    {&t37,   15, 90},
    {&t37,   17, 15},
    {&t37,   26, 275},
    {&t44,   0,  8},
    {&t44,   1,  105},
    {&t44,   2,  52},
    {&t44,   3,  180},
    {&t44,   6,  42},
    {&t44,   7,  46},
    {&t44,   10, 33},
    {&t44,   12, 18},
    {&t44,   15, 160},
    {&t44,   17, 18},
    {&t44,   26, 360},
    {&t50,   0,  18},
    {&t50,   1,  100},
    {&t50,   2,  49},
    {&t50,   3,  175},
    {&t50,   6,  40},
    {&t50,   7,  43},
    {&t50,   10, 31},
    {&t50,   12, 18},
    {&t50,   15, 1354},
    {&t50,   17, 18},
    {&t50,   26, 320},
    {&t68,   0,  18},
    {&t68,   1,  115},
    {&t68,   2,  57},
    {&t68,   3,  195},
    {&t68,   6,  47},
    {&t68,   7,  52},
    {&t68,   10, 32},
    {&t68,   12, 21},
    {&t68,   15, 180},
    {&t68,   17, 21},
    {&t68,   26, 420},
    {&t80,   0,  18},
    {&t80,   1,  115},
    {&t80,   2,  55},
    {&t80,   3,  180},
    {&t80,   6,  45},
    {&t80,   7,  50},
    {&t80,   10, 32},
    {&t80,   12, 22},
    {&t80,   15, 170},
    {&t80,   17, 22},
    {&t80,   26, 450},
    {&t94,   0,  18},
    {&t94,   1,  160},
    {&t94,   2,  84},
    {&t94,   3,  248},
    {&t94,   6,  70},
    {&t94,   10, 58},
    {&t94,   12, 32},
    {&t94,   15, 200},
    {&t94,   26, 590},
    {&t106,  0,  19},
    {&t106,  1,  325},
    {&t106,  2,  135},
    {&t106,  3,  450},
    {&t106,  6,  116},
    {&t106,  7,  133},
    {&t106,  15, 345},
    {&t106,  26, 900},
    {&t130,  0,  15},
    {&t130,  1,  200},
    {&t130,  2,  110},
    {&t130,  3,  350},
    {&t130,  6,  96},
    {&t130,  7,  103},
    {&t130,  15, 250},
    {&t130,  26, 785},
    {&t157,  1,  320},
    {&t157,  2,  140},
    {&t157,  3,  420},
    {&t157,  6,  115},
    {&t157,  15, 360},
    {&t157,  26, 970},
    {&t184,  1,  500},
    {&t184,  2,  240},
    {&t184,  3,  720},
    {&t184,  6,  195},
    {&t184,  26, 1640},
    {&t200,  1,  250},
    {&t200,  2,  120},
    {&t200,  3,  425},
    {&t200,  6,  100},
    {&t200,  7,  105},
    {&t200,  26, 895},
    {&t200a, 2,  218},
    {&t200a, 3,  460},
    {&t200a, 6,  180},
    {&t200a, 26, 1550},
    {&t225,  2,  120},
    {&t225,  3,  425},
    {&t225,  6,  100},
    {&t225,  6,  950},
    {&t225a, 2,  215},
    {&t225a, 26, 1600},
    {&t300,  2,  114},
    {&t300,  26, 800},
    {&t300a, 2,  228},
    {&t300a, 26, 1600},
    {&t400,  2,  185},
    {&t400,  26, 1300},
    {&t400a, 2,  360},
    {&t400a, 26, 2600},
    {&t520,  2,  207},
    {&t520,  26, 1460},
}};
// clang-format on

}  // namespace

std::string mix_code(const ToroidCore& core) {
  const std::string digits = std::to_string(core.mix);
  return digits.size() < 2 ? " " + digits : digits;
}

std::string name_of(const ToroidCore& core) {
  return std::string{core.size->name} + "/" + mix_code(core);
}

std::span<const ToroidCore> toroid_cores() { return cores; }

Real toroid_turns(Real inductance_uh, Real inductance_index_uh) {
  return 100 * sqrt(inductance_uh / inductance_index_uh);
}

}  // namespace eterlab::coils
