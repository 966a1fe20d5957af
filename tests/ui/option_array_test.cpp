#include "ui/option_array.h"

#include <gtest/gtest.h>

#include <QTest>
#include <vector>

#include "ui/desktop.h"
#include "ui/theme.h"

namespace eterlab {
namespace {

class Options : public ::testing::Test {
 protected:
  ui::Desktop desktop;
  QWidget window;
  ui::OptionArray options{&window, "Option1", {"A", "B", "C"}};
};

TEST_F(Options, ArrowKeysChooseAsClicksDo) {
  std::vector<int> clicked;
  options.on_click([&](int index) { clicked.push_back(index); });
  for (int i = 0; i < 3; ++i) {
    options[i].move(0, 20 * i);
  }
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  options.preset(0);
  options[0].setFocus();
  QTest::keyClick(&options[0], Qt::Key_Down);
  QTest::keyClick(&options[1], Qt::Key_Down);
  QTest::keyClick(&options[2], Qt::Key_Up);
  EXPECT_EQ(clicked, (std::vector{1, 2, 1}));
  EXPECT_EQ(options.selected(), 1);
}

TEST_F(Options, MarkKeepsItsHueAndCanBeReadOnDarkWindows) {
  constexpr ui::Colour blue{0, 0, 192};
  options.mark(0, blue);
  EXPECT_EQ(ui::text_colour(options[0]), blue);

  const QPalette usual = QApplication::palette();
  ui::theme::set_palette(ui::theme::dark_palette());
  options.mark(1, blue);
  const auto [red, green, lighter_blue] = ui::text_colour(options[1]);
  EXPECT_GT(red, 128);
  EXPECT_EQ(red, green);
  EXPECT_EQ(lighter_blue, 255);
  // The others are as the system writes them.
  EXPECT_GT(ui::text_colour(options[0]).red, 200);
  ui::theme::set_palette(usual);
}

}  // namespace
}  // namespace eterlab
