#pragma once

#include <cstdint>
#include <functional>

#include "common/arithmetic.h"
#include "common/complex.h"

namespace eterlab {

/// What is searched and integrated. An ArithmeticFault that it throws passes through.
using RealFunction = std::function<Real(Real)>;

/// @name Searches
/// Each ends after 10000 steps at most. One that has not reached its tolerance by then throws
/// invalid_argument.
/// @{

/// Where f passes through zero between a and b, to 1E-15 of the root. Throws invalid_argument where
/// f(a) and f(b) have the same sign. A jump from one sign to the other counts as a zero.
Real root_between(Real a, Real b, const RealFunction& f);

/// Which way a function goes as its argument grows.
enum class Slope : std::uint8_t { rising, falling };
/// The zero of a monotone f among the numbers with the sign of a guess, searched outwards from it
/// by powers of two; as near as by root_between(). Without one, throws invalid_argument at the end
/// towards 0, which is no zero itself, and overflow at the other. A guess of 0 is an
/// invalid_argument.
Real root_near(Real guess, Slope slope, const RealFunction& f);

/// Where a function is smallest, and what it is there.
struct Minimum {
  Real at;     ///< argument
  Real value;  ///< of the function
};
/// A minimum of f between a and b, the smallest value if it is the only one, to 1E-7 of the
/// distance from a to b. One at an end is approached as near.
Minimum minimum_between(Real a, Real b, const RealFunction& f);

/// Integral of f from a to b, to 1E-8 of the integral of its magnitude; of a smooth f, to far more.
/// f may become infinite at a and b, where it is not asked for its values: at 0 without harm, at
/// other ends for half of the digits, as the numbers next to them are not close. Where it jumps
/// inside, that tolerance is not reached: split it there.
Real integral(Real a, Real b, const RealFunction& f);

/// @}

/// @name Special functions
/// To 1E-14 of the result, next to the zeros of bessel_j() and bessel_y() of 1. Beyond the range of
/// a double they throw overflow.
/// @{

/// Complete elliptic integral of the first kind, of the modulus k (the parameter m is k^2): above
/// -1 and below 1, else throws invalid_argument.
Real elliptic_k(Real k);
/// Complete elliptic integral of the second kind, of the modulus k: from -1 to 1, else throws
/// invalid_argument.
Real elliptic_e(Real k);

/// Bessel function of the first kind, J.
Real bessel_j(int order, Real x);
/// Bessel function of the second kind, Y; 0 and less throw invalid_argument.
Real bessel_y(int order, Real x);
/// Modified Bessel function of the first kind, I.
Real bessel_i(int order, Real x);
/// Modified Bessel function of the second kind, K; 0 and less throw invalid_argument.
Real bessel_k(int order, Real x);

/// Gamma function; zero and negative whole numbers throw invalid_argument.
Real gamma_function(Real x);

/// @}

/// @name Sine and cosine integral
/// To 1E-14 of the result, next to the zeros of cosine_integral() of 1.
/// @{

/// Si(x), the integral of sin(t) / t from 0 to x.
Real sine_integral(Real x);
/// Ci(x), the integral of cos(t) / t from infinity to x; 0 and less throw invalid_argument.
Real cosine_integral(Real x);
/// Both in one: the exponential integral E1(jx) = -Ci(x) + j (Si(x) - pi / 2), that of
/// exp(-jt) / t from x to infinity, also where it is small; 0 and less throw invalid_argument.
Complex imaginary_exponential_integral(Real x);

/// @}

}  // namespace eterlab
