#include "number_pairs.h"

#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <string>
#include <string_view>

#include "common/leading_number.h"
#include "common/number_text.h"

namespace eterlab::bench {

namespace {

// What a user types: not for the compiler to know, which would else compute with it beforehand.
const volatile double typed_value = 1234.5678;
const char* const volatile typed_text = "1234.5678";

double std_parsed(std::string_view text) {
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

std::string std_written(double number, std::chars_format format, int digits) {
  std::array<char, 64> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number, format, digits);
  return {text.data(), end.ptr};
}

std::string std_fixed() { return std_written(typed_value, std::chars_format::fixed, 2); }

template <auto function>
void run() {
  benchmark::DoNotOptimize(function());
}

constexpr std::array pairs{
    NumberPair{"leading_number", "from_chars", run<[] { return leading_number(typed_text); }>,
               run<[] { return std_parsed(typed_text); }>},
    NumberPair{"fixed", "to_chars fixed", run<[] { return fixed(typed_value, 2); }>,
               run<std_fixed>},
    NumberPair{"pattern", "to_chars fixed", run<[] { return pattern(typed_value, "#,##0.##"); }>,
               run<std_fixed>},
    NumberPair{"plain", "to_chars general", run<[] { return plain(typed_value); }>,
               run<[] { return std_written(typed_value, std::chars_format::general, 15); }>},
    NumberPair{"rounded", "to_chars fixed, from_chars", run<[] { return rounded(typed_value, 2); }>,
               run<[] { return std_parsed(std_fixed()); }>},
};

}  // namespace

std::span<const NumberPair> number_pairs() { return pairs; }

}  // namespace eterlab::bench
