#pragma once

#include <cstdint>
#include <vector>

#include "coils/ferrite/ferrite_cores.h"
#include "common/arithmetic.h"

namespace eterlab::lines {

/// The cores that baluns are wound on: of the mixes 43 and 61, those large enough.
const std::vector<coils::FerriteCore>& balun_cores();

/// The usual wideband transformers of wires side by side on a ring.
enum class FerriteBalunKind : std::uint8_t {
  current_one_to_one,   ///< a choke of two wires
  current_one_to_four,  ///< on two cores
  unun_one_to_four,     ///< autotransformer of two wires
  unun_one_to_nine,     ///< autotransformer of three wires
};

/// What a kind asks for.
struct FerriteBalunTraits {
  int wires;            ///< side by side
  int impedance_ratio;  ///< of the antenna's to the cable's
  int wires_ratio;      ///< of the wires' as a line to the cable's, for the widest band
  int least_impedance;  ///< of each wire over that of the cable: 5, of a choke 10
};
/// Source: Ruthroff, Proc. IRE 47, 1959; Guanella, Brown Boveri Rev. 31, 1944; ARRL Handbook.
FerriteBalunTraits traits_of(FerriteBalunKind kind);

/// What a transformer is wound for.
struct FerriteBalunTask {
  FerriteBalunKind kind;     ///< of the transformer
  coils::FerriteCore core;   ///< each of them
  Real lowest_frequency_hz;  ///< of the band
  Real cable_ohm;            ///< impedance of the cable
  Real power_w;              ///< into a matched antenna
};

/// A transformer with enough turns for its impedance, its flux density and the heat of its core. In
/// each kind, in the 1:1 with one side of the antenna earthed, one wire stands across the cable.
struct FerriteBalun {
  Real turns;                    ///< of each wire, whole
  Real inductance_h;             ///< of each wire
  Real impedance_ohm;            ///< of each wire at the lowest frequency, magnitude
  Real swr_at_lowest;            ///< that it adds there on the cable
  Real flux_density_t;           ///< peak
  Real greatest_flux_density_t;  ///< that the core admits
  Real greatest_wire_mm;         ///< thickest that fits in one layer, 2 at most, in tenths
  Real wire_length_cm;           ///< of each wire with its ends, whole
};

/// The laws of the core are those of coils/ferrite. One layer takes 90 % of the edge of the hole.
FerriteBalun ferrite_balun(const FerriteBalunTask& task);

}  // namespace eterlab::lines
