#include <benchmark/benchmark.h>

#include "benchmarks.h"
#include "program.h"

int main(int argc, char* argv[]) {
  using namespace eterlab;
  const bench::Program program{argc, argv};
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
    return 1;
  }
  bench::register_numbers();
  bench::register_engineering();
  bench::register_windows();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
