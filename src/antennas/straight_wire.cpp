#include "antennas/straight_wire.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <utility>

#include "antennas/wavelength.h"
#include "common/numerics.h"
#include "common/physics.h"
#include "common/rounding.h"

namespace eterlab::antennas {

namespace {

// Inside, plain numbers: what is computed from them is tested when it becomes a result.
using Phasor = std::complex<double>;

/// A product without the tests for infinities that the language asks for.
Phasor product(Phasor a, Phasor b) {
  return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

/// Square, row by row.
class Matrix {
 public:
  explicit Matrix(std::size_t order) : order_{order}, elements_(order * order) {}

  [[nodiscard]] std::size_t order() const { return order_; }
  [[nodiscard]] Phasor* row(std::size_t index) { return elements_.data() + index * order_; }
  [[nodiscard]] const Phasor* row(std::size_t index) const {
    return elements_.data() + index * order_;
  }
  Phasor& at(std::size_t row, std::size_t column) { return elements_[row * order_ + column]; }
  [[nodiscard]] Phasor at(std::size_t row, std::size_t column) const {
    return elements_[row * order_ + column];
  }

 private:
  std::size_t order_;
  std::vector<Phasor> elements_;
};

/// A part of the wire whose segments are of one length.
struct Piece {
  std::size_t first;  // node
  std::size_t last;
  double step_m;
};

/// The nodes at the ends of all segments, and which of them are the places that were told.
struct Nodes {
  std::vector<double> z_m;
  std::vector<Piece> pieces;

  [[nodiscard]] std::size_t of_place(std::size_t place) const {
    return place == 0 ? 0 : pieces[place - 1].last;
  }
  [[nodiscard]] double segment_m(std::size_t end) const { return z_m[end] - z_m[end - 1]; }
};

Nodes divided(std::span<const Real> places_m, Real longest_segment_m) {
  Nodes nodes{{places_m.front().value()}, {}};
  for (std::size_t place = 1; place < places_m.size(); ++place) {
    const Real length_m = places_m[place] - places_m[place - 1];
    const Real segments = rounded_up(length_m / longest_segment_m);
    const double step_m = (length_m / segments).value();
    const std::size_t first = nodes.z_m.size() - 1;
    const auto count = static_cast<std::size_t>(segments.value());
    for (std::size_t segment = 1; segment < count; ++segment) {
      nodes.z_m.push_back(places_m[place - 1].value() + static_cast<double>(segment) * step_m);
    }
    nodes.z_m.push_back(places_m[place].value());
    nodes.pieces.push_back({first, first + count, step_m});
  }
  return nodes;
}

/// E1(jk(R - z)) between all nodes, z being how far the one of the row stands beyond that of the
/// column and R their distance, from the surface to the axis: what the integrals of the field of a
/// sinusoidal current are made of. Those between different pieces before the first node that is
/// asked for are left out.
class FieldTable {
 public:
  FieldTable(const Nodes& nodes, std::size_t first, double wavenumber, double radius_m)
      : wavenumber_{wavenumber}, radius_m_{radius_m}, table_{nodes.z_m.size()} {
    for (const Piece& piece : nodes.pieces) {
      for (const Piece& other : nodes.pieces) {
        if (&other == &piece || (other.first < piece.first && piece.last > first)) {
          fill(nodes, piece, other);
        }
      }
    }
  }

  [[nodiscard]] Phasor at(std::size_t row, std::size_t column) const {
    return table_.at(row, column);
  }

 private:
  struct Pair {
    Phasor ahead;   // of z, and
    Phasor behind;  // of -z
  };

  [[nodiscard]] Phasor integral(double distance_m) const {
    const Complex value = imaginary_exponential_integral(wavenumber_ * distance_m);
    return {value.real().value(), value.imaginary().value()};
  }

  [[nodiscard]] Pair pair(double z_m) const {
    const double far_m = std::hypot(z_m, radius_m_) + std::abs(z_m);
    const double near_m = radius_m_ * radius_m_ / far_m;  // the difference would lose its digits
    const Pair pair{integral(near_m), integral(far_m)};
    return z_m < 0 ? Pair{pair.behind, pair.ahead} : pair;
  }

  void fill(const Nodes& nodes, const Piece& a, const Piece& b) {
    constexpr double noise = 1e-12;
    const auto set = [this](std::size_t row, std::size_t column, const Pair& pair) {
      table_.at(row, column) = pair.ahead;
      table_.at(column, row) = pair.behind;
    };
    const bool are_alike = std::abs(a.step_m - b.step_m) <= noise * a.step_m;
    for (std::size_t row = a.first; row <= a.last; ++row) {
      for (std::size_t column = b.first; column <= b.last; ++column) {
        if (are_alike && row > a.first && column > b.first) {  // as far apart as those before them
          set(row, column, {table_.at(row - 1, column - 1), table_.at(column - 1, row - 1)});
        } else {
          set(row, column, pair(nodes.z_m[row] - nodes.z_m[column]));
        }
      }
    }
  }

  double wavenumber_;
  double radius_m_;
  Matrix table_;
};

/// The generalised impedances of a wire between its inner nodes, from the first on that is asked
/// for.
class WireMatrix {
 public:
  WireMatrix(const Nodes& nodes, std::size_t first, const Conductor& conductor)
      : z_m_{nodes.z_m},
        wavenumber_{(2 * pi / conductor.wavelength_m()).value()},
        table_{nodes, first, wavenumber_, (conductor.diameter_mm / 2000).value()},
        phases_(z_m_.size()),
        sines_(z_m_.size()),
        cotangents_(z_m_.size()) {
    for (std::size_t node = 0; node < z_m_.size(); ++node) {
      phases_[node] = std::polar(1.0, wavenumber_ * z_m_[node]);
    }
    for (std::size_t node = 1; node < z_m_.size(); ++node) {
      const double angle = wavenumber_ * nodes.segment_m(node);
      sines_[node] = std::sin(angle);
      cotangents_[node] = 1 / std::tan(angle);
    }
  }

  /// From a node to all of them; of the first one, only to itself.
  void fill_row(std::size_t node, std::vector<Phasor>& row) {
    constexpr double scale = free_space_impedance_ohm / (4 * pi);
    weigh(node);
    row.assign(z_m_.size(), {});
    for (std::size_t n = 1; n + 1 < z_m_.size(); ++n) {
      const Phasor field = weighed_[n - 1] / sines_[n] -
                           (cotangents_[n] + cotangents_[n + 1]) * weighed_[n] +
                           weighed_[n + 1] / sines_[n + 1];
      row[n] = {-scale * field.imag(), scale * field.real()};
    }
  }

 private:
  /// The integrals of exp(-jkR) / R from every node, weighed by the current of one of them: a
  /// sinusoid that rises on the segment before it and falls on that behind it.
  void weigh(std::size_t node) {
    weighed_.resize(z_m_.size());
    for (std::size_t from = 0; from < z_m_.size(); ++from) {
      const auto slope = [&](std::size_t zero, std::size_t start, std::size_t end) {
        const Phasor turn = product(phases_[from], std::conj(phases_[zero]));
        return product(turn, table_.at(end, from) - table_.at(start, from)) +
               product(std::conj(turn), table_.at(from, end) - table_.at(from, start));
      };
      const Phasor sum = slope(node - 1, node - 1, node) / sines_[node] -
                         slope(node + 1, node, node + 1) / sines_[node + 1];
      weighed_[from] = {sum.imag() / 2, -sum.real() / 2};
    }
  }

  const std::vector<double>& z_m_;
  double wavenumber_;
  FieldTable table_;
  std::vector<Phasor> phases_;
  std::vector<double> sines_;       // of each segment, by the node at its end
  std::vector<double> cotangents_;  // likewise
  std::vector<Phasor> weighed_;
};

/// Eliminates all currents but the last ones from a symmetric matrix of which the upper half is
/// filled in, and leaves the impedances between those. Every pivot is the impedance at a node of a
/// part of the wire that radiates: none is zero.
std::vector<Complex> eliminated(Matrix& matrix, std::size_t remaining) {
  const std::size_t order = matrix.order();
  const std::size_t first = order - remaining;
  for (std::size_t pivot = 0; pivot < first; ++pivot) {
    const Phasor* const source = matrix.row(pivot);
    const Phasor reciprocal = 1.0 / source[pivot];
    for (std::size_t row = pivot + 1; row < order; ++row) {
      const Phasor factor = product(source[row], reciprocal);
      Phasor* const target = matrix.row(row);
      for (std::size_t column = row; column < order; ++column) {
        target[column] -= product(factor, source[column]);
      }
    }
  }
  std::vector<Complex> left;
  for (std::size_t row = first; row < order; ++row) {
    for (std::size_t column = first; column < order; ++column) {
      const Phasor element = matrix.at(std::min(row, column), std::max(row, column));
      left.emplace_back(element.real(), element.imag());
    }
  }
  return left;
}

/// In which order the currents of the nodes are eliminated: the ports last.
std::vector<std::size_t> with_ports_last(std::size_t first, std::size_t last,
                                         const std::vector<std::size_t>& ports) {
  std::vector<std::size_t> order;
  for (std::size_t node = first; node < last; ++node) {
    if (std::ranges::find(ports, node) == ports.end()) {
      order.push_back(node);
    }
  }
  order.insert(order.end(), ports.begin(), ports.end());
  return order;
}

Real longest_segment_m(const Conductor& conductor) {
  constexpr double segments_in_wavelength = 40;
  return conductor.wavelength_m() / segments_in_wavelength;
}

}  // namespace

Real Conductor::wavelength_m() const { return antennas::wavelength_m(frequency_mhz); }

WirePorts::WirePorts(std::vector<Complex> impedances_ohm, std::vector<int> counts)
    : impedances_ohm_{std::move(impedances_ohm)}, counts_{std::move(counts)} {}

/// The loads put in, and the currents eliminated one after the other.
std::vector<Complex> WirePorts::reduced(std::span<const Complex> loads_ohm) const {
  const std::size_t ports = counts_.size();
  std::vector<Complex> matrix = impedances_ohm_;
  for (std::size_t port = 0; port + 1 < ports; ++port) {
    const Complex* const source = &matrix[port * ports];
    const Complex pivot = source[port] + counts_[port] * loads_ohm[port];
    for (std::size_t row = port + 1; row < ports; ++row) {
      for (std::size_t column = port + 1; column < ports; ++column) {
        Complex& element = matrix[row * ports + column];
        element = element - source[row] * source[column] / pivot;
      }
    }
    matrix[port * ports + port] = pivot;
  }
  return matrix;
}

Complex WirePorts::feed_impedance_ohm(std::span<const Complex> loads_ohm) const {
  return reduced(loads_ohm).back();
}

std::vector<Complex> WirePorts::load_currents(std::span<const Complex> loads_ohm) const {
  const std::size_t ports = counts_.size();
  const std::vector<Complex> matrix = reduced(loads_ohm);
  std::vector<Complex> currents(ports, Complex{1});
  for (std::size_t port = ports - 1; port-- > 0;) {
    Complex voltage;
    for (std::size_t other = port + 1; other < ports; ++other) {
      voltage = voltage + matrix[port * ports + other] * currents[other];
    }
    currents[port] = -voltage / matrix[port * ports + port];
  }
  currents.pop_back();
  return currents;
}

/// The feed sees Z11 - w / (r + jt), w = Z01^2, r + jt the port with its load: its reactance is
/// zero for X11 t^2 + Re w t + X11 r^2 - Im w r = 0 and rises at the greater root, or the only one.
Real WirePorts::resonating_reactance_ohm() const {
  const Complex coupling = impedances_ohm_[1] * impedances_ohm_[1];
  const Real r = impedances_ohm_[0].real();
  const Real a = impedances_ohm_[3].imaginary();
  const Real b = coupling.real();
  const Real c = a * r * r - coupling.imaginary() * r;
  const Real root = sqrt(b * b - 4 * a * c);
  const Real t = b > 0 ? -2 * c / (b + root) : (root - b) / (2 * a);
  return (t - impedances_ohm_[0].imaginary()) / counts_[0];
}

WirePorts wire_ports(std::span<const Real> places_m, std::size_t feed, const Conductor& conductor) {
  const Nodes nodes = divided(places_m, longest_segment_m(conductor));
  std::vector<std::size_t> ports;
  for (std::size_t place = 1; place + 1 < places_m.size(); ++place) {
    if (place != feed) {
      ports.push_back(nodes.of_place(place));
    }
  }
  ports.push_back(nodes.of_place(feed));
  const std::vector<std::size_t> order = with_ports_last(1, nodes.z_m.size() - 1, ports);
  WireMatrix wire{nodes, 0, conductor};
  Matrix matrix{order.size()};
  std::vector<Phasor> row;
  for (std::size_t m = 0; m < order.size(); ++m) {
    wire.fill_row(order[m], row);
    for (std::size_t n = m; n < order.size(); ++n) {
      matrix.at(m, n) = row[order[n]];
    }
  }
  return {eliminated(matrix, ports.size()), std::vector<int>(ports.size(), 1)};
}

WirePorts dipole_ports(std::span<const Real> arm_places_m, const Conductor& conductor) {
  std::vector<Real> places_m;
  for (const Real place_m : arm_places_m) {
    places_m.insert(places_m.begin(), -place_m);
  }
  places_m.emplace_back(0);
  places_m.insert(places_m.end(), arm_places_m.begin(), arm_places_m.end());
  const Nodes nodes = divided(places_m, longest_segment_m(conductor));
  const std::size_t middle = nodes.of_place(arm_places_m.size());
  std::vector<std::size_t> ports;
  for (std::size_t load = 1; load < arm_places_m.size(); ++load) {
    ports.push_back(nodes.of_place(arm_places_m.size() + load));
  }
  ports.push_back(middle);
  // The currents of both arms are the same: those of one arm are unknown, and each of its equations
  // stands for two.
  const std::vector<std::size_t> order = with_ports_last(middle, nodes.z_m.size() - 1, ports);
  WireMatrix wire{nodes, middle, conductor};
  Matrix matrix{order.size()};
  std::vector<Phasor> row;
  for (std::size_t m = 0; m < order.size(); ++m) {
    wire.fill_row(order[m], row);
    for (std::size_t n = m; n < order.size(); ++n) {
      const std::size_t node = order[n];
      matrix.at(m, n) =
          node == middle ? 2.0 * row[node] : 2.0 * (row[node] + row[2 * middle - node]);
    }
  }
  matrix.at(order.size() - 1, order.size() - 1) /= 2;
  std::vector<int> counts(ports.size(), 2);
  counts.back() = 1;
  return {eliminated(matrix, ports.size()), std::move(counts)};
}

Complex dipole_impedance_ohm(std::span<const Real> arm_places_m, std::span<const Real> loads_ohm,
                             const Conductor& conductor) {
  std::vector<Complex> loads;
  for (const Real reactance_ohm : loads_ohm) {
    loads.emplace_back(0, reactance_ohm);
  }
  return dipole_ports(arm_places_m, conductor).feed_impedance_ohm(loads);
}

Complex dipole_impedance_ohm(Real arm_m, const Conductor& conductor) {
  return dipole_ports(std::array{arm_m}, conductor).feed_impedance_ohm();
}

Real half_wave_arm_m(const Conductor& conductor) {
  const Real wavelength_m = conductor.wavelength_m();
  return root_between(0.20 * wavelength_m, 0.26 * wavelength_m, [&](Real arm_m) {
    return dipole_impedance_ohm(arm_m, conductor).imaginary();
  });
}

}  // namespace eterlab::antennas
