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

/// Square root; a negative argument throws invalid_argument.
Real sqrt(Real x);
/// Natural logarithm; zero or a negative argument throws invalid_argument.
Real ln(Real x);
/// base raised to exponent; 0 to a negative power divides by zero, a negative base wants a whole
/// exponent.
Real pow(Real base, Real exponent);
/// The largest whole number not above x.
Real floor(Real x);
/// Nearest whole number, ties to the even neighbour; beyond the 16-bit range throws overflow.
std::int16_t round_to_int16(Real x);

}  // namespace eterlab
