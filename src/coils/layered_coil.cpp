#include "coils/layered_coil.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <utility>
#include <vector>

#include "coils/winding_inductance.h"
#include "common/physics.h"
#include "materials/metals.h"

namespace eterlab::coils {

namespace {

constexpr double copper_radius_ratio = 0.46;  // to the diameter with enamel

/// Turns of a round coil by their layers, from 0.
class RoundTurns {
 public:
  RoundTurns(const RoundForm& form, Real wire_m) : inner_m_{form.diameter_m}, wire_m_{wire_m} {}

  [[nodiscard]] Real length_m(int layer) const { return 2 * pi * radius_m(layer); }
  [[nodiscard]] Real self_h(int layer) const {
    return ring_inductance_h(radius_m(layer), copper_radius_ratio * wire_m_);
  }
  [[nodiscard]] Real mutual_h(int layer, int other, Real distance_m) const {
    return coaxial_circles_mutual_h(radius_m(layer), radius_m(other), distance_m);
  }

 private:
  [[nodiscard]] Real radius_m(int layer) const { return inner_m_ / 2 + (layer + 0.5) * wire_m_; }

  Real inner_m_;
  Real wire_m_;
};

/// The same of a rectangular one.
class RectangularTurns {
 public:
  RectangularTurns(const RectangularForm& form, Real wire_m) : form_{form}, wire_m_{wire_m} {}

  [[nodiscard]] Real length_m(int layer) const {
    return 2 * (side_m(form_.side_a_m, layer) + side_m(form_.side_b_m, layer));
  }
  [[nodiscard]] Real self_h(int layer) const {
    const Real mean_distance_m = exp(-0.25) * copper_radius_ratio * wire_m_;
    const Real a = side_m(form_.side_a_m, layer);
    const Real b = side_m(form_.side_b_m, layer);
    return of_sides_h(a, a, mean_distance_m, b) + of_sides_h(b, b, mean_distance_m, a);
  }
  [[nodiscard]] Real mutual_h(int layer, int other, Real distance_m) const {
    const Real a = side_m(form_.side_a_m, layer);
    const Real b = side_m(form_.side_b_m, layer);
    const Real other_a = side_m(form_.side_a_m, other);
    const Real other_b = side_m(form_.side_b_m, other);
    const auto near_m = [&](Real side, Real other_side) {
      return hypot((side - other_side) / 2, distance_m);
    };
    const auto far_m = [&](Real side, Real other_side) {
      return hypot((side + other_side) / 2, distance_m);
    };
    return of_sides_h(a, other_a, near_m(b, other_b), far_m(b, other_b)) +
           of_sides_h(b, other_b, near_m(a, other_a), far_m(a, other_a));
  }

 private:
  [[nodiscard]] Real side_m(Real of_form_m, int layer) const {
    return of_form_m + (2 * layer + 1) * wire_m_;
  }
  /// Two pairs of sides with their currents in one direction, two with opposite ones.
  static Real of_sides_h(Real length_m, Real other_length_m, Real near_m, Real far_m) {
    return 2 * (facing_segments_mutual_h(length_m, other_length_m, near_m) -
                facing_segments_mutual_h(length_m, other_length_m, far_m));
  }

  RectangularForm form_;
  Real wire_m_;
};

/// A coil to which turns are added one by one. The mutual inductance of two turns depends on their
/// layers and distance alone: it is computed once for all pairs that share them.
template <class Turns>
class GrowingCoil {
 public:
  GrowingCoil(Turns turns, const Layering& layering)
      : turns_{std::move(turns)},
        wire_m_{layering.wire_m},
        per_layer_{turns_per_layer(layering)},
        places_{std::min(per_layer_, most_turns(layering))} {}

  void add_turn() {
    const int layer = coil_.turns / per_layer_;
    const int place = coil_.turns % per_layer_;
    if (place == 0) {
      begin_layer(layer);
    }
    Real mutual_h = 0;
    for (int other = 0; other <= layer; ++other) {
      const std::vector<Real>& by_distance = mutual_h_[static_cast<std::size_t>(other)];
      const int turns = other < layer ? per_layer_ : place;
      for (int at = 0; at < turns; ++at) {
        mutual_h += by_distance[static_cast<std::size_t>(std::abs(place - at))];
      }
    }
    coil_.inductance_h += turns_.self_h(layer) + 2 * mutual_h;
    coil_.wire_length_m += turns_.length_m(layer);
    ++coil_.turns;
  }

  [[nodiscard]] LayeredCoil coil() const {
    const Real copper_radius_m = copper_radius_ratio * wire_m_;
    LayeredCoil coil = coil_;
    coil.layers = (coil_.turns + per_layer_ - 1) / per_layer_;
    coil.resistance_ohm = materials::copper.resistivity_ohm_m() * coil_.wire_length_m /
                          (pi * copper_radius_m * copper_radius_m);
    return coil;
  }

 private:
  void begin_layer(int layer) {
    mutual_h_.assign(static_cast<std::size_t>(layer) + 1, {});
    for (int other = 0; other <= layer; ++other) {
      std::vector<Real>& by_distance = mutual_h_[static_cast<std::size_t>(other)];
      // A turn does not meet itself in its own layer.
      by_distance.push_back(other < layer ? turns_.mutual_h(layer, other, 0) : Real{});
      for (int apart = 1; apart < places_; ++apart) {
        by_distance.push_back(turns_.mutual_h(layer, other, apart * wire_m_));
      }
    }
  }

  Turns turns_;
  Real wire_m_;
  int per_layer_;
  int places_;  // of a layer that may be filled
  LayeredCoil coil_{};
  std::vector<std::vector<Real>> mutual_h_;  // of the last layer with each: by places apart
};

template <class Turns>
LayeredCoil grown_to(const Turns& all_turns, const Layering& layering, int turns) {
  GrowingCoil growing{all_turns, layering};
  for (int i = 0; i < turns; ++i) {
    growing.add_turn();
  }
  return growing.coil();
}

template <class Turns>
std::optional<LayeredCoil> grown_near(const Turns& all_turns, const Layering& layering,
                                      Real inductance_h) {
  GrowingCoil growing{all_turns, layering};
  LayeredCoil before{};
  for (int i = 0; i < most_turns(layering); ++i) {
    growing.add_turn();
    const LayeredCoil coil = growing.coil();
    if (coil.inductance_h >= inductance_h) {
      const bool is_before_nearer = before.turns > 0 && inductance_h - before.inductance_h <=
                                                            coil.inductance_h - inductance_h;
      return is_before_nearer ? before : coil;
    }
    before = coil;
  }
  return {};
}

}  // namespace

int turns_per_layer(const Layering& layering) {
  constexpr double noise = 1e-6;
  return static_cast<int>(floor(layering.width_m / layering.wire_m + noise).value());
}

bool is_limited_by_layers(const Layering& layering) { return turns_per_layer(layering) < 15; }

int most_turns(const Layering& layering) {
  return is_limited_by_layers(layering) ? 100 * turns_per_layer(layering) : 1500;
}

LayeredCoil layered_coil(const RoundForm& form, const Layering& layering, int turns) {
  return grown_to(RoundTurns{form, layering.wire_m}, layering, turns);
}

LayeredCoil layered_coil(const RectangularForm& form, const Layering& layering, int turns) {
  return grown_to(RectangularTurns{form, layering.wire_m}, layering, turns);
}

std::optional<LayeredCoil> layered_coil_near(const RoundForm& form, const Layering& layering,
                                             Real inductance_h) {
  return grown_near(RoundTurns{form, layering.wire_m}, layering, inductance_h);
}

std::optional<LayeredCoil> layered_coil_near(const RectangularForm& form, const Layering& layering,
                                             Real inductance_h) {
  return grown_near(RectangularTurns{form, layering.wire_m}, layering, inductance_h);
}

}  // namespace eterlab::coils
