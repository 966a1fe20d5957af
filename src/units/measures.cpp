#include "units/measures.h"

#include <array>

#include "common/physics.h"

namespace eterlab::units {

namespace {

constexpr double inch_m = 0.0254;
constexpr double foot_m = 0.3048;
constexpr double mile_m = 1609.344;
constexpr double nautical_mile_m = 1852;
constexpr double pound_kg = 0.45359237;
constexpr double hour_s = 3600;

constexpr std::array lengths{
    Unit{"POLLICI", inch_m},
    Unit{"PIEDI", foot_m},
    Unit{"IARDE", 0.9144},
    Unit{"MIGLIA TERRESTRI", mile_m},
    Unit{"MIGLIA NAUTICHE", nautical_mile_m},
    Unit{"MILLIMETRI", 0.001},
    Unit{"CENTIMETRI", 0.01},
    Unit{"METRI", 1},
    Unit{"CHILOMETRI", 1000},
};

// In gram.
constexpr std::array weights{
    Unit{"ONCE", 28.349523125}, Unit{"LIBBRE", pound_kg * 1000}, Unit{"GRANI", 0.06479891},
    Unit{"GRAMMI", 1},          Unit{"CHILOGRAMMI", 1000},
};

// In square metre.
constexpr std::array areas{
    Unit{"POLLICI QUADRATI", inch_m* inch_m},
    Unit{"PIEDI QUADRATI", foot_m* foot_m},
    Unit{"ACRI", 4046.8564224},
    Unit{"CENTIMETRI QUADRATI", 0.0001},
    Unit{"METRI QUADRATI", 1},
};

// In litre.
constexpr std::array volumes{
    Unit{"POLLICI CUBI", 0.016387064},
    Unit{"PINTE INGLESI", 0.56826125},
    Unit{"GALLONI INGLESI", 4.54609},
    Unit{"GALLONI U.S.A.", 3.785411784},
    Unit{"LITRI", 1},
};

// In pascal.
constexpr std::array pressures{
    Unit{"PSI", pound_kg* standard_gravity_m_per_s2 / (inch_m * inch_m)},
    Unit{"POLLICI DI MERCURIO", 3386.389},
    Unit{"BAR", 100000},
    Unit{"ATMOSFERE", 101325},
    Unit{"PASCAL", 1},
};

// In watt.
constexpr std::array powers{
    Unit{"HORSEPOWER", 550 * foot_m* pound_kg* standard_gravity_m_per_s2},
    Unit{"CAVALLI VAPORE", 75 * standard_gravity_m_per_s2},
    Unit{"BTU ALL'ORA", 1055.05585262 / hour_s},
    Unit{"WATT", 1},
    Unit{"KILOWATT", 1000},
};

// In metre per second.
constexpr std::array speeds{
    Unit{"MIGLIA ORARIE", mile_m / hour_s},
    Unit{"NODI", nautical_mile_m / hour_s},
    Unit{"PIEDI AL SECONDO", foot_m},
    Unit{"CHILOMETRI ORARI", 1000 / hour_s},
    Unit{"METRI AL SECONDO", 1},
};

constexpr std::array other_quantities{
    Quantity{"PESO", weights},        Quantity{"SUPERFICIE", areas}, Quantity{"VOLUME", volumes},
    Quantity{"PRESSIONE", pressures}, Quantity{"POTENZA", powers},   Quantity{"VELOCITA'", speeds},
};

}  // namespace

std::span<const Unit> length_units() { return lengths; }

std::span<const Quantity> quantities() { return other_quantities; }

Real converted(Real value, const Unit& from, const Unit& to) { return value * from.size / to.size; }

}  // namespace eterlab::units
