#include "common/complex.h"

#include <cmath>
#include <complex>

namespace eterlab {

namespace {

std::complex<double> unchecked(Complex z) { return {z.real().value(), z.imaginary().value()}; }

/// Of a function that is finite wherever it is asked: what is not finite has become too large, even
/// where the parts of the result are NaNs.
Complex checked(std::complex<double> z) {
  if (!std::isfinite(z.real()) || !std::isfinite(z.imag())) {
    throw ArithmeticFault{ArithmeticFault::Kind::overflow};
  }
  return {z.real(), z.imag()};
}

}  // namespace

Complex operator/(Complex a, Complex b) {
  if (b == Complex{}) {
    throw ArithmeticFault{ArithmeticFault::Kind::division_by_zero};
  }
  return checked(unchecked(a) / unchecked(b));
}

Real abs(Complex z) { return hypot(z.real(), z.imaginary()); }

Real arg(Complex z) { return atan2(z.imaginary(), z.real()); }

Complex exp(Complex z) { return checked(std::exp(unchecked(z))); }

Complex sqrt(Complex z) { return checked(std::sqrt(unchecked(z))); }

Complex sinh(Complex z) { return checked(std::sinh(unchecked(z))); }

Complex cosh(Complex z) { return checked(std::cosh(unchecked(z))); }

Complex tanh(Complex z) {
  // Kahan's formulas: the function of some C libraries overflows where the result is next to 1.
  constexpr double beyond_which_it_is_one = 20;
  const Real x = z.real();
  const Real y = z.imaginary();
  if (abs(x) > beyond_which_it_is_one) {
    return {x < 0 ? -1.0 : 1.0, 4 * sin(y) * cos(y) * exp(-2 * abs(x))};
  }
  const Real tangent = tan(y);
  const Real beta = 1 + tangent * tangent;
  const Real sine = sinh(x);
  const Real denominator = 1 + beta * sine * sine;
  return {beta * cosh(x) * sine / denominator, tangent / denominator};
}

Real parallel(Real a, Real b) { return a == 0 && b == 0 ? 0 : a * b / (a + b); }

// The product would take digits from the smaller part of the result; admittances do not.
Complex parallel(Complex a, Complex b) {
  return a == Complex{} || b == Complex{} ? Complex{} : 1 / (1 / a + 1 / b);
}

}  // namespace eterlab
