#pragma once

#include "common/arithmetic.h"

namespace eterlab {

/// An impedance, an admittance, a phasor: a complex number whose every operation is tested as those
/// of Real are. Its parts know no negative zero, so that every result has one angle.
class Complex {
 public:
  constexpr Complex() noexcept = default;
  constexpr Complex(Real real, Real imaginary = 0)
      : real_{real + 0.0}, imaginary_{imaginary + 0.0} {}

  [[nodiscard]] constexpr Real real() const noexcept { return real_; }  ///< resistance, conductance
  [[nodiscard]] constexpr Real imaginary() const noexcept {             ///< reactance, susceptance
    return imaginary_;
  }

  /// @{
  /// As of complex numbers.
  constexpr Complex operator-() const { return {-real_, -imaginary_}; }
  friend constexpr bool operator==(const Complex&, const Complex&) noexcept = default;
  /// @}

 private:
  Real real_;
  Real imaginary_;
};

/// The root of -1.
inline constexpr Complex imaginary_unit{0, 1};

/// @{
/// A result beyond the range throws overflow. A division by zero throws division_by_zero, whatever
/// the dividend; else it overflows where the quotient does, and not on the way there.
constexpr Complex operator+(Complex a, Complex b) {
  return {a.real() + b.real(), a.imaginary() + b.imaginary()};
}
constexpr Complex operator+(Complex a, Real b) { return {a.real() + b, a.imaginary()}; }
constexpr Complex operator+(Real a, Complex b) { return b + a; }
constexpr Complex operator-(Complex a, Complex b) {
  return {a.real() - b.real(), a.imaginary() - b.imaginary()};
}
constexpr Complex operator-(Complex a, Real b) { return {a.real() - b, a.imaginary()}; }
constexpr Complex operator-(Real a, Complex b) { return {a - b.real(), -b.imaginary()}; }
constexpr Complex operator*(Complex a, Complex b) {
  return {a.real() * b.real() - a.imaginary() * b.imaginary(),
          a.real() * b.imaginary() + a.imaginary() * b.real()};
}
constexpr Complex operator*(Complex a, Real b) { return {a.real() * b, a.imaginary() * b}; }
constexpr Complex operator*(Real a, Complex b) { return b * a; }
Complex operator/(Complex a, Complex b);
inline Complex operator/(Complex a, Real b) { return {a.real() / b, a.imaginary() / b}; }
inline Complex operator/(Real a, Complex b) { return Complex{a} / b; }
/// @}

/// @name Functions of complex numbers
/// A result beyond the range throws overflow.
/// @{

/// Magnitude, the squares of the parts never out of range.
Real abs(Complex z);
/// Angle in radians, above -pi and up to pi; that of 0 is 0.
Real arg(Complex z);
/// Conjugate.
constexpr Complex conj(Complex z) { return {z.real(), -z.imaginary()}; }
/// e raised to z.
Complex exp(Complex z);
/// The square root whose real part is not negative; of a negative real number, the one with the
/// positive imaginary part.
Complex sqrt(Complex z);
/// Hyperbolic sine.
Complex sinh(Complex z);
/// Hyperbolic cosine.
Complex cosh(Complex z);
/// Hyperbolic tangent.
Complex tanh(Complex z);

/// @}

/// @{
/// Two impedances side by side: a b / (a + b), and 0 where both are. Two that cancel each other, as
/// the reactances of a circuit at resonance, throw division_by_zero.
Real parallel(Real a, Real b);
Complex parallel(Complex a, Complex b);
/// @}

}  // namespace eterlab
