#pragma once

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// Two coils on the same field, connected in the four possible ways. Inductances in henry.
struct CoupledInductors {
  Real mutual_h;             ///< M = k sqrt(L1 L2)
  Real series_aiding_h;      ///< L1 + L2 + 2 M
  Real series_opposing_h;    ///< L1 + L2 - 2 M
  Real parallel_aiding_h;    ///< L1 L2 (1 - k^2) / (L1 + L2 - 2 M)
  Real parallel_opposing_h;  ///< L1 L2 (1 - k^2) / (L1 + L2 + 2 M)
};

/// Of two coils above zero and a coupling coefficient from 0 to 1. Coils so alike and so closely
/// coupled that less than 1E-12 of their sum is left when they oppose each other are one winding:
/// nothing in opposition, and L1 side by side. Source: inverse of the matrix of L1, L2 and M.
CoupledInductors coupled_inductors(Real l1_h, Real l2_h, Real coupling_coefficient);

}  // namespace eterlab::circuits
