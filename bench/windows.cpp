#include <benchmark/benchmark.h>

#include <QLineEdit>

#include "benchmarks.h"
#include "ui/registry.h"
#include "window_use.h"

namespace eterlab::bench {

namespace {

void open_window(benchmark::State& state, const std::string& name) {
  for ([[maybe_unused]] auto iteration : state) {
    open(name);
    state.PauseTiming();
    close_all();
    state.ResumeTiming();
  }
}

void open_bare_window(benchmark::State& state, const std::string& name, Texts texts) {
  open(name);
  const auto models = open_windows();
  for ([[maybe_unused]] auto iteration : state) {
    BareWindows bare = open_bare(models, texts);
    state.PauseTiming();
    bare.clear();
    state.ResumeTiming();
  }
  close_all();
}

/// Up to the changed labels, or up to the changed pixels.
enum class Until : bool { changed, painted };

void type(benchmark::State& state, QLineEdit& box, Until until) {
  for ([[maybe_unused]] auto iteration : state) {
    type_and_take_back(box);
    if (until == Until::painted) {
      settle();
    }
  }
  state.SetItemsProcessed(state.iterations() * strokes_typed);
}

void type_in_window(benchmark::State& state, const LiveBox& live, Until until) {
  type(state, open_example(live), until);
  close_all();
}

void type_in_bare_box(benchmark::State& state, Until until) {
  type(state, *open_bare_box(), until);
}

}  // namespace

void register_windows() {
  for (const std::string& name : ui::registry::names()) {
    const std::string title = "open/" + name;
    benchmark::RegisterBenchmark(title.c_str(), open_window, name);
    benchmark::RegisterBenchmark((title + "/bare").c_str(), open_bare_window, name, Texts::none);
    benchmark::RegisterBenchmark((title + "/bare, same texts").c_str(), open_bare_window, name,
                                 Texts::same);
  }
  const std::vector<LiveBox> boxes = live_boxes();
  for (const Until until : {Until::changed, Until::painted}) {
    const std::string title =
        until == Until::changed ? "two keystrokes/" : "two keystrokes, painted/";
    benchmark::RegisterBenchmark((title + "bare box").c_str(), type_in_bare_box, until);
    for (const LiveBox& live : boxes) {
      benchmark::RegisterBenchmark((title + live.window + "/" + live.box).c_str(), type_in_window,
                                   live, until);
    }
  }
}

}  // namespace eterlab::bench
