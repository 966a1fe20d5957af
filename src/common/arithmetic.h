#pragma once

#include <compare>
#include <cstdint>
#include <stdexcept>

namespace eterlab {

/// A computation left the range of numbers. No window traps it: the program reports it and ends.
class ArithmeticFault : public std::runtime_error {
 public:
  /// What the computation did.
  enum class Kind : std::uint8_t {
    division_by_zero,
    overflow,         ///< the result is too large
    invalid_argument  ///< a function was asked for where it has no value
  };

  explicit ArithmeticFault(Kind kind);  ///< with an English text as its what()
  [[nodiscard]] Kind kind() const noexcept { return kind_; }  ///< what the computation did

 private:
  Kind kind_;
};

/// A double whose every operation is tested, so that formulas can be written as formulas.
/// Never infinite, never a NaN: what would become one throws ArithmeticFault. Underflow gives 0.
class Real {
 public:
  constexpr Real() noexcept = default;
  /// Throws overflow for an infinity and invalid_argument for a NaN.
  constexpr Real(double value) : value_{value} { require_finite(); }

  [[nodiscard]] constexpr double value() const noexcept { return value_; }  ///< as a plain number

  /// @{
  /// As of plain numbers.
  constexpr Real operator-() const { return Real{-value_}; }
  friend constexpr bool operator==(const Real&, const Real&) noexcept = default;
  // NOLINTNEXTLINE(modernize-use-nullptr): the checker misreads a defaulted comparison.
  friend constexpr auto operator<=>(const Real&, const Real&) noexcept = default;
  /// @}

 private:
  constexpr void require_finite() const {
    if (!(value_ - value_ == 0)) [[unlikely]] {  // false for an infinity as for a NaN
      fail();
    }
  }
  [[noreturn]] void fail() const;

  double value_ = 0;
};

/// @{
/// A result beyond the range of a double throws overflow; a division by zero throws
/// division_by_zero, whatever the dividend.
constexpr Real operator+(Real a, Real b) { return Real{a.value() + b.value()}; }
constexpr Real operator-(Real a, Real b) { return Real{a.value() - b.value()}; }
constexpr Real operator*(Real a, Real b) { return Real{a.value() * b.value()}; }
Real operator/(Real a, Real b);
constexpr Real& operator+=(Real& a, Real b) { return a = a + b; }
constexpr Real& operator-=(Real& a, Real b) { return a = a - b; }
constexpr Real& operator*=(Real& a, Real b) { return a = a * b; }
inline Real& operator/=(Real& a, Real b) { return a = a / b; }
/// @}

/// A value narrowed to single precision. Computing with it widens it back to Real.
class Single {
 public:
  constexpr Single() noexcept = default;
  /// Nearest single-precision value; a magnitude beyond its range throws overflow.
  explicit Single(Real value);

  [[nodiscard]] constexpr float value() const noexcept { return value_; }  ///< as a plain number
  constexpr operator Real() const { return Real{value_}; }                 ///< widened, unchanged

 private:
  float value_ = 0;
};

/// @name Functions
/// A result beyond the range of a double throws overflow. Angles are in radians.
/// @{

/// Distance from zero.
Real abs(Real x);
/// Square root; a negative argument throws invalid_argument.
Real sqrt(Real x);
/// Square root of a^2 + b^2, the squares never out of range.
Real hypot(Real a, Real b);
/// base raised to exponent; 0 to a negative power divides by zero, a negative base wants a whole
/// exponent.
Real pow(Real base, Real exponent);

/// e raised to x.
Real exp(Real x);
/// exp(x) - 1, without cancellation where x is small.
Real expm1(Real x);
/// Natural logarithm; zero or a negative argument throws invalid_argument.
Real ln(Real x);
/// ln(1 + x), without cancellation where x is small; -1 or less throws invalid_argument.
Real log1p(Real x);
/// Logarithm to base 10; zero or a negative argument throws invalid_argument.
Real log10(Real x);

/// Sine.
Real sin(Real angle);
/// Cosine.
Real cos(Real angle);
/// Tangent. No double is a pole: the one nearest to a quarter turn has the tangent 1.6E16.
Real tan(Real angle);
/// Angle from -pi/2 to pi/2 of that sine; one beyond -1 to 1 throws invalid_argument.
Real asin(Real sine);
/// Angle from 0 to pi of that cosine; one beyond -1 to 1 throws invalid_argument.
Real acos(Real cosine);
/// Angle from -pi/2 to pi/2 of that tangent.
Real atan(Real tangent);
/// Angle of the point (x, y), above -pi and up to pi; 0 for the origin.
Real atan2(Real y, Real x);

/// Hyperbolic sine.
Real sinh(Real x);
/// Hyperbolic cosine.
Real cosh(Real x);
/// Hyperbolic tangent.
Real tanh(Real x);
/// Inverse of sinh().
Real asinh(Real x);

/// The largest whole number not above x.
Real floor(Real x);
/// The smallest whole number not below x.
Real ceil(Real x);
/// Nearest whole number, half away from zero.
Real round(Real x);
/// Nearest whole number, ties to the even neighbour; beyond the 16-bit range throws overflow.
std::int16_t round_to_int16(Real x);

/// @}

}  // namespace eterlab
