#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QTextStream>
#include <algorithm>
#include <ctime>
#include <fstream>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "number_pairs.h"
#include "program.h"
#include "ui/registry.h"
#include "ui/text.h"
#include "window_use.h"

// Compares the program with the least that the toolkit and the standard library need for the same,
// and prints ratios: they hardly depend on the machine. What is compared runs in turns, so that
// both sides meet the same load. Of processor times the best of all turns counts, of the others the
// median.
namespace eterlab::bench {

namespace {

using Work = std::function<void()>;

/// What one side of a comparison takes, in turns.
using Costs = std::vector<double>;

double best(const Costs& costs) { return *std::ranges::min_element(costs); }

double median(Costs costs) {
  std::ranges::sort(costs);
  return costs[costs.size() / 2];
}

double processor_seconds(const Work& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// How many times the processor time of the second the first takes. What they leave is cleared up
/// outside of the measured time.
double ratio(
    int turns, const Work& ours, const Work& reference, const Work& clear_up = [] {}) {
  Costs our_costs;
  Costs reference_costs;
  for (int turn = 0; turn < turns; ++turn) {
    our_costs.push_back(processor_seconds(ours));
    clear_up();
    reference_costs.push_back(processor_seconds(reference));
    clear_up();
  }
  return best(our_costs) / best(reference_costs);
}

Work repeated(int times, const Work& work) {
  return [=] {
    for (int i = 0; i < times; ++i) {
      work();
    }
  };
}

class Table {
 public:
  static constexpr double no_reach = std::numeric_limits<double>::infinity();

  void title(const QString& text) { out_ << '\n' << text << "\n\n"; }

  void line(const QString& what, double ratio, double reach = no_reach) {
    out_ << qSetFieldWidth(72) << Qt::left << "  " + what << qSetFieldWidth(8) << Qt::right
         << QString::number(ratio, 'f', 2) << qSetFieldWidth(0);
    if (reach != no_reach) {
      out_ << "   at most " << reach << (ratio <= reach ? "" : "  MISSED");
    }
    out_ << Qt::endl;
  }

 private:
  QTextStream out_{stdout};
};

/// Starts of a program, each until its first painted frame.
struct Starts {
  Costs processor_us;
  Costs elapsed_ns;
  Costs memory_kib;

  void run(const QString& program, const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", FIRST_FRAME);
    process.setProcessEnvironment(environment);
    QElapsedTimer elapsed;
    elapsed.start();
    process.start(program, arguments);
    process.waitForFinished();
    elapsed_ns.push_back(static_cast<double>(elapsed.nsecsElapsed()));
    const QList<QByteArray> told = process.readAllStandardOutput().split(' ');
    if (told.size() != 2) {
      qFatal("%s did not paint", qPrintable(program));
    }
    processor_us.push_back(told[0].toDouble());
    memory_kib.push_back(told[1].trimmed().toDouble());
  }
};

void compare_starts(Table& table) {
  constexpr int turns = 21;
  Starts ours;
  Starts empty;
  Starts text;
  for (int turn = 0; turn < turns; ++turn) {
    ours.run(ETERLAB, {});
    empty.run(EMPTY_WINDOW, {});
    text.run(EMPTY_WINDOW, {"text"});
  }
  const auto lines = [&](const Starts& reference, double time, double memory) {
    table.line("processor time", best(ours.processor_us) / best(reference.processor_us), time);
    table.line("elapsed time", median(ours.elapsed_ns) / median(reference.elapsed_ns), time);
    table.line("peak memory", median(ours.memory_kib) / median(reference.memory_kib), memory);
  };
  table.title("Start to first painted frame, to an empty main window without a letter");
  lines(empty, Table::no_reach, Table::no_reach);
  table.title("Start to first painted frame, to a main window with a menu and a word");
  lines(text, 1.4, 1.15);
}

/// What it takes to open a window, and as many bare widgets.
struct Opening {
  QString window;
  double seconds;
  double to_empty;
  double to_same_texts;
};

Opening opening(const std::string& name) {
  constexpr int turns = 20;
  Costs ours;
  Costs empty;
  Costs same_texts;
  for (int turn = 0; turn < turns; ++turn) {
    ours.push_back(processor_seconds([&] { open(name); }));
    const auto models = open_windows();
    for (const Texts texts : {Texts::none, Texts::same}) {
      BareWindows bare;
      (texts == Texts::none ? empty : same_texts).push_back(processor_seconds([&] {
        bare = open_bare(models, texts);
      }));
    }
    close_all();
  }
  return {ui::to_qt(name), best(ours), best(ours) / best(empty), best(ours) / best(same_texts)};
}

void compare_opening(Table& table) {
  std::vector<Opening> openings;
  for (const std::string& name : ui::registry::names()) {
    if (name != "FRMETERLAB") {  // the main window opens once, as the start
      openings.push_back(opening(name));
    }
  }
  const auto line = [&](const QString& what, const Opening& window, double Opening::*times) {
    table.line(what + ": " + window.window, window.*times, 3);
  };
  const auto lines = [&](double Opening::*times) {
    line("the slowest window", *std::ranges::max_element(openings, {}, &Opening::seconds), times);
    line("the largest ratio of all windows", *std::ranges::max_element(openings, {}, times), times);
  };
  table.title("Opening a window, to as many bare widgets, empty");
  lines(&Opening::to_empty);
  table.title("Opening a window, to as many bare widgets with the same texts");
  lines(&Opening::to_same_texts);
}

void compare_keystrokes(Table& table) {
  constexpr int turns = 20;
  constexpr int strokes = 50;
  const auto bare = open_bare_box();
  const Work type_bare = repeated(strokes, [&] { type_and_take_back(*bare); });
  const Work paint_bare = repeated(strokes, [&] { type_and_take_back_in_sight(*bare); });
  struct Slowest {
    std::string box;
    double ratio = 0;

    void consider(const LiveBox& live, double its_ratio) {
      if (its_ratio > ratio) {
        *this = {live.window + "." + live.box, its_ratio};
      }
    }
  };
  Slowest changed;
  Slowest painted;
  for (const LiveBox& live : live_boxes()) {
    if (live.window == "frmcerca") {
      continue;  // its results are lists
    }
    QLineEdit& box = open_example(live);
    changed.consider(live,
                     ratio(turns, repeated(strokes, [&] { type_and_take_back(box); }), type_bare));
    painted.consider(
        live,
        ratio(turns, repeated(strokes, [&] { type_and_take_back_in_sight(box); }), paint_bare));
    close_all();
  }
  table.title("One keystroke in the slowest box that computes as the user types, to a bare box");
  table.line("to the changed labels: " + ui::to_qt(changed.box), changed.ratio, 3);
  table.line("to the painted labels: " + ui::to_qt(painted.box), painted.ratio);
}

void compare_finder(Table& table) {
  constexpr int turns = 20;
  constexpr int strokes = 20;
  QWidget& finder = open("frmcerca");
  auto& box = *finder.findChild<QLineEdit*>("txtcerca");
  const auto list = open_bare_list(*finder.findChild<QListWidget*>("lstcerca"));
  finder.activateWindow();
  table.title("One key in the finder, to a key in a bare list of as many rows");
  table.line("to the painted list",
             ratio(turns, repeated(strokes, [&] { type_and_take_back_in_sight(box); }),
                   repeated(strokes, [&] { go_down_and_back(*list); })),
             3);
  close_all();
}

void compare_numbers(Table& table) {
  constexpr int turns = 20;
  constexpr int times = 20'000;
  table.title("Numbers, to the standard library");
  for (const NumberPair& pair : number_pairs()) {
    table.line(QString{pair.name} + " to " + pair.nearest_name,
               ratio(turns, repeated(times, pair.run), repeated(times, pair.run_nearest)), 3);
  }
}

double resident_kib() {
  std::ifstream status{"/proc/self/status"};
  std::string word;
  while (status >> word && word != "VmRSS:") {
  }
  double kib = 0;
  status >> kib;
  return kib;
}

/// Must come first: memory that was used once is used again.
void compare_memory(Table& table) {
  table.title("Memory of a window, all open at once");
  open("FRMETERLAB");
  const double before = resident_kib();
  double pixels_kib = 0;
  const std::vector<std::string> names = ui::registry::names();
  for (const std::string& name : names) {
    const QWidget& window = open(name);
    constexpr double bytes_per_pixel = 4;
    pixels_kib += window.width() * window.height() * bytes_per_pixel / 1024;
  }
  const double all_kib = resident_kib() - before;
  close_all();
  table.line(QString{"to its own pixels, on average of %1 windows"}.arg(names.size()),
             all_kib / pixels_kib);
}

}  // namespace

}  // namespace eterlab::bench

int main(int argc, char* argv[]) {
  using namespace eterlab::bench;
  const Program program{argc, argv};
  Table table;
  compare_memory(table);
  compare_starts(table);
  compare_opening(table);
  compare_keystrokes(table);
  compare_finder(table);
  compare_numbers(table);
}
