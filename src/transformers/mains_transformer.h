#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "common/arithmetic.h"
#include "transformers/laminated_core.h"
#include "transformers/winding_wire.h"

namespace eterlab::transformers {

/// A kind of transformer sheet.
struct Lamination {
  std::string_view name;  ///< as lists show it, in Italian
  double induction_t;     ///< peak
  double loss_w_per_kg;   ///< at 1 T and 50 Hz; it goes with the square of the induction
};

/// The catalogue, in the order of lists.
std::span<const Lamination> laminations();

/// What a secondary winding has to give.
struct Secondary {
  Real voltage_v;                 ///< r.m.s.; of each half of a centre-tapped winding
  Real current_a;                 ///< r.m.s.; behind the rectifier of a centre-tapped winding
  bool is_centre_tapped = false;  ///< for a full-wave rectifier with capacitor input
};

/// What is asked of a transformer for mains of 50 Hz.
struct MainsTransformerTask {
  Real mains_v;                        ///< r.m.s.
  Lamination lamination;               ///< of the core
  std::vector<Secondary> secondaries;  ///< one or more
};

/// A winding of a transformer. A centre-tapped one has two halves.
struct MainsWinding {
  Real turns;               ///< of each half
  Real current_a;           ///< r.m.s., in each half
  int halves;               ///< 1 of a plain winding
  const WindingWire* wire;  ///< none when there is none so thick
  Real copper_g;            ///< of both halves; 0 without a wire
};

/// A transformer on a core.
struct MainsTransformer {
  Real turns_per_volt;                    ///< without load
  Real output_va;                         ///< through the core
  Real efficiency;                        ///< at full load, of 1
  MainsWinding primary;                   ///< at the mains
  std::vector<MainsWinding> secondaries;  ///< in the order of the task
  bool fits;                              ///< whether the window of the core holds the copper
};

/// Turns that make up for the drop at full load, wires at 2.5 A/mm2 and losses with the copper at
/// 75 degrees Celsius. Good for 50 Hz and resistive loads or rectifiers with capacitor input, whose
/// halves carry 1.15 times the direct current in turn. Source: Faraday's law; Radiotron Designer's
/// Handbook, 4th edition, chapter 5.
MainsTransformer mains_transformer(const MainsTransformerTask& task, const LaminatedCore& core);

}  // namespace eterlab::transformers
