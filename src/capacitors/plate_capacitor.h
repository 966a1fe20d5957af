#pragma once

#include "common/arithmetic.h"

namespace eterlab::capacitors {

/// @name Capacitors of flat plates
/// Equal plates at equal distances, every other one connected, with a dielectric between them:
/// C = e0 er (n - 1) A / d. Fringing at the edges is neglected: right to a few per cent where the
/// sides of the plates are over 100 times their distance; 8 % at 50 times, 17 % at 20. There are 2
/// or more `plates`.
/// @{

/// Capacitance in pF.
Real plate_capacitance_pf(Real relative_permittivity, Real plates, Real area_cm2, Real distance_mm);
/// Area of one plate in cm2.
Real plate_area_cm2(Real relative_permittivity, Real plates, Real capacitance_pf, Real distance_mm);
/// Distance between two neighbours in mm.
Real plate_distance_mm(Real relative_permittivity, Real plates, Real capacitance_pf, Real area_cm2);

/// The peak that an air gap may be asked to bear: 1500 V for a millimetre, half the breakdown
/// strength of dry air at sea level.
Real air_gap_voltage_v(Real distance_mm);

/// @}

}  // namespace eterlab::capacitors
