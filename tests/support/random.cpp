#include "support/random.h"

#include <string_view>

namespace eterlab::test {

namespace {

std::string characters_of(std::string_view set, int count, Random& random) {
  std::string text;
  while (count-- > 0) {
    text += random.any_of(set);
  }
  return text;
}

constexpr std::string_view digits = "0123456789";

}  // namespace

std::string ordinary_number(Random& random) {
  std::string text = random.one_in(12) ? "-" : "";
  text += characters_of(digits, random.between(0, 4), random);
  if (random.one_in(3)) {
    text += '.';
    text += characters_of(digits, random.between(1, 3), random);
  }
  return text;
}

std::string wild_number(Random& random) {
  constexpr std::string_view edges[] = {
      "0",      "-0",       "0.0",    "1",        "-1",         "32767",     "32768",
      "-32769", "65536",    "1e15",   "1e16",     "2147483648", "3.4028e38", "1e39",
      "1e308",  "-1.8e308", "1e-308", "4.9e-324", "1e-400",     "1e400",     "999999999999999.9",
  };
  switch (random.below(4)) {
    case 0:
      return std::string{random.any_of(edges)};
    case 1:
      return ordinary_number(random) + "e" + (random.one_in(2) ? "-" : "") +
             characters_of(digits, random.between(1, 3), random);
    case 2:
      return (random.one_in(2) ? "0." : "") +
             characters_of(random.one_in(2) ? "0" : digits, random.between(1, 400), random) +
             ordinary_number(random);
    default:
      return characters_of("0123456789..++--eEdD \t\n,", random.between(1, 24), random);
  }
}

std::string garbage(Random& random) {
  std::string text;
  for (int count = random.between(1, 12); count > 0; --count) {
    text += static_cast<char>(random.between(' ', '~'));
  }
  return text;
}

}  // namespace eterlab::test
