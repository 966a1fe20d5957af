#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "support/random.h"

// Runs the fuzz target without libFuzzer: over the files that it is given (such as a finding of
// libFuzzer), or over so many inputs from seeds that follow each other.
//   fuzz_numbers FILE...
//   fuzz_numbers --inputs COUNT [FIRST_SEED]

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using eterlab::test::Random;

void run(const std::string& input) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

std::string input_of(std::uint64_t seed) {
  Random random{seed};
  std::string input;
  constexpr int bytes_before_text = 23;
  for (int count = bytes_before_text; count > 0; --count) {
    input += static_cast<char>(random.below(256));
  }
  switch (random.below(4)) {
    case 0:
      return input + eterlab::test::garbage(random);
    case 1:
      return input + eterlab::test::wild_number(random);
    default:
      return input + eterlab::test::ordinary_number(random);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::string option = argc > 1 ? argv[1] : "";
  if (option != "--inputs") {
    for (int i = 1; i < argc; ++i) {
      std::ifstream file{argv[i], std::ios::binary};
      run({std::istreambuf_iterator<char>{file}, {}});
    }
    return EXIT_SUCCESS;
  }
  const std::uint64_t count = argc > 2 ? std::stoull(argv[2]) : 0;
  const std::uint64_t first = argc > 3 ? std::stoull(argv[3]) : 1;
  for (std::uint64_t seed = first; seed < first + count; ++seed) {
    run(input_of(seed));
  }
  std::cout << count << " inputs from seed " << first << '\n';
}
