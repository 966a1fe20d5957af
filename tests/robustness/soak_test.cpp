#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPixmapCache>
#include <QRadioButton>
#include <cstddef>

#include "support/window_test.h"
#include "ui/registry.h"

#if ETERLAB_SANITIZED
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // NOLINT: the library's name
#elif defined(__GLIBC__)
#include <malloc.h>
#endif

// Every window opened, used and closed again and again: nothing of it stays behind. What nothing
// points to any more, the leak sanitizer tells at the end.
//
//   ETERLAB_SOAK_ROUNDS  how often, 100 times unless told, fewer under the sanitizers

namespace eterlab::test {
namespace {

/// 0 where no library tells. The C library counts what it keeps at hand for the next demand.
double heap_in_use_kib() {
#if ETERLAB_SANITIZED
  const std::size_t bytes = __sanitizer_get_current_allocated_bytes();
#elif defined(__GLIBC__)
  const struct mallinfo2 heap = mallinfo2();
  const std::size_t bytes = heap.uordblks + heap.hblkhd;
#else
  const std::size_t bytes = 0;
#endif
  return static_cast<double>(bytes) / 1024;
}
constexpr double noise_kib = ETERLAB_SANITIZED ? 16 : 192;
constexpr int usual_rounds = ETERLAB_SANITIZED ? 60 : 100;

class Soak : public WindowTest, public ::testing::WithParamInterface<std::string> {
 protected:
  // Pictures of controls, kept by the style, make way only when they are 10 MiB.
  void SetUp() override { QPixmapCache::setCacheLimit(0); }
  void TearDown() override { QPixmapCache::setCacheLimit(usual_cache_kib_); }

  void open_use_and_close(int times) {
    for (int time = 0; time < times; ++time) {
      open_use_and_close();
    }
  }

 private:
  void open_use_and_close() {
    ui::Window& window = open(GetParam());
    window.show_example();
    for (QRadioButton* option : window.findChildren<QRadioButton*>()) {
      option->click();
    }
    int number = 2;
    for (QLineEdit* box : window.findChildren<QLineEdit*>()) {
      box->selectAll();
      box->insert(QString::number(number++));
    }
    Driven{window}.press(Qt::Key_Return);
    if (is_open(GetParam())) {  // Enter may have closed it
      close(GetParam());
    }
    settle();
    boxes();
  }

  const int usual_cache_kib_ = QPixmapCache::cacheLimit();
};

TEST_P(Soak, OpeningsLeaveNothingBehind) {
  constexpr int rounds_that_fill_caches = 20;
  desktop().show("frmavvertenza");  // where the main window comes and goes, the program goes on
  open_use_and_close(rounds_that_fill_caches);
  const qsizetype widgets = QApplication::allWidgets().size();
  const int rounds =
      qEnvironmentVariable("ETERLAB_SOAK_ROUNDS", QString::number(usual_rounds)).toInt();
  // The toolkit drops fonts after some seconds and finds them again: once, where a leak goes on.
  double left_kib = noise_kib;
  for (int attempt = 0; attempt < 3 && left_kib >= noise_kib; ++attempt) {
    const double heap_kib = heap_in_use_kib();
    open_use_and_close(rounds - rounds_that_fill_caches);
    left_kib = heap_in_use_kib() - heap_kib;
  }
  EXPECT_LT(left_kib, noise_kib);
  EXPECT_FALSE(has_ended());
  EXPECT_EQ(QApplication::allWidgets().size(), widgets);
}

INSTANTIATE_TEST_SUITE_P(Windows, Soak, ::testing::ValuesIn(ui::registry::names()),
                         [](const auto& window) {
                           std::string name = window.param;
                           std::erase_if(name, [](char c) { return (c & 0x80) != 0; });
                           return name;
                         });

}  // namespace
}  // namespace eterlab::test
