#include <fstream>
#include <iostream>
#include <iterator>

#include "support/random.h"

// Runs the fuzz target without libFuzzer: over a file (such as a finding of libFuzzer), or over so
// many inputs from the seeds 1, 2, 3...
//   fuzz_numbers FILE
//   fuzz_numbers --inputs COUNT

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void run(const std::string& input) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

std::string input_of(int seed) {
  eterlab::test::Random random{static_cast<std::uint64_t>(seed)};
  std::string input;
  constexpr int bytes_before_text = 21;
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
  if (argc == 2) {
    std::ifstream file{argv[1], std::ios::binary};
    run({std::istreambuf_iterator<char>{file}, {}});
  }
  const int count = argc == 3 ? std::stoi(argv[2]) : 0;
  for (int seed = 1; seed <= count; ++seed) {
    run(input_of(seed));
  }
  std::cout << count << " inputs from seeds\n";
}
