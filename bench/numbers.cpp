#include <benchmark/benchmark.h>

#include <string>

#include "benchmarks.h"
#include "number_pairs.h"

namespace eterlab::bench {

namespace {

void run(benchmark::State& state, void (*work)()) {
  for ([[maybe_unused]] auto iteration : state) {
    work();
  }
}

}  // namespace

void register_numbers() {
  for (const NumberPair& pair : number_pairs()) {
    const std::string name = std::string{"numbers/"} + pair.name;
    benchmark::RegisterBenchmark(name.c_str(), run, pair.run);
    benchmark::RegisterBenchmark((name + "/" + pair.nearest_name).c_str(), run, pair.run_nearest);
  }
}

}  // namespace eterlab::bench
