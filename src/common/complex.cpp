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

Complex tanh(Complex z) { return checked(std::tanh(unchecked(z))); }

Real parallel(Real a, Real b) { return a == 0 && b == 0 ? 0 : a * b / (a + b); }

// The product would take digits from the smaller part of the result; admittances do not.
Complex parallel(Complex a, Complex b) {
  return a == Complex{} || b == Complex{} ? Complex{} : 1 / (1 / a + 1 / b);
}

}  // namespace eterlab
