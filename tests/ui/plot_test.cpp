#include "ui/plot.h"

#include <QImage>
#include <QMouseEvent>
#include <QTest>

#include "support/window_test.h"
#include "ui/text.h"
#include "ui/text_box.h"
#include "ui/theme.h"

namespace eterlab::test {
namespace {

Real standing_wave_ratio(Real frequency_mhz) { return 1 + pow((frequency_mhz - 14.2) * 10, 2) / 4; }

class Bench final : public ui::Window {
 public:
  ui::TextBox txtf{this, "txtf"};
  ui::Plot plot{this, "plot", {"FREQUENZA", "MHz"}, {"ROS", "", ui::Scale::linear, {{1, 5}}}};

  Bench() : Window{"banco", "BANCO"} { arrange(ui::column(txtf, plot)); }
};

class Plot : public WindowTest {
 protected:
  Bench window;
  ui::Plot& plot = window.plot;

  Plot() {
    window.bring_forward();
    settle();
  }

  [[nodiscard]] QImage image() const {
    QImage picture{plot.size(), QImage::Format_RGB32};
    plot.render(&picture);
    return picture;
  }
  /// How much darker than the window the darkest pixel around a place is, out of 255.
  [[nodiscard]] static int ink(const QImage& picture, QPointF place) {
    int lightest = 255;
    for (int y = -1; y <= 1; ++y) {
      for (int x = -1; x <= 1; ++x) {
        lightest = std::min(lightest, qGray(picture.pixel(place.toPoint() + QPoint{x, y})));
      }
    }
    return qGray(QApplication::palette().color(QPalette::Window).rgb()) - lightest;
  }
  void point_at(Real x, Real y) const {
    const QPointF place = plot.place_of(x, y);
    QMouseEvent move{QEvent::MouseMove, place,        plot.mapToGlobal(place),
                     Qt::NoButton,      Qt::NoButton, Qt::NoModifier};
    QApplication::sendEvent(&plot, &move);
  }
  [[nodiscard]] std::string texts() const {
    std::string all;
    for (const ui::Letters& letters : plot.letters()) {
      all += (all.empty() ? "" : "|") + ui::from_qt(letters.text);
    }
    return all;
  }
};

constexpr int black = 150;

TEST_F(Plot, DrawsTheCurveWhereItsValuesAre) {
  plot.curve(standing_wave_ratio, 14, 14.4);
  const QImage picture = image();
  for (const double x : {14.02, 14.1, 14.17, 14.33}) {
    const Real y = standing_wave_ratio(x);
    EXPECT_GT(ink(picture, plot.place_of(x, y)), black) << x;
    EXPECT_LT(ink(picture, plot.place_of(x, y + 0.3)), black) << x;
  }
}

TEST_F(Plot, ReversedAxesGrowToTheLeftAndDownwards) {
  plot.axes({"", "", ui::Scale::logarithmic, {}, true}, {"", "", ui::Scale::linear, {}, true});
  plot.curve([](Real x) { return log10(x); }, 1, 100);
  const QRectF frame = plot.frame();
  EXPECT_NEAR(plot.place_of(100, 0).x(), frame.left(), 0.1);
  EXPECT_NEAR(plot.place_of(10, 0).x(), frame.center().x(), 0.1);
  EXPECT_NEAR(plot.place_of(1, 0).y(), frame.top(), 0.1);
  EXPECT_NEAR(plot.place_of(1, 2).y(), frame.bottom(), 0.1);
}

TEST_F(Plot, DrawsNoLineThroughAPoleNorThroughAGap) {
  plot.axes({"", "", ui::Scale::linear, {{0, 3}}}, {"", "", ui::Scale::linear, {{-9, 9}}});
  plot.curve([](Real x) { return tan(x); }, 0, 3);
  EXPECT_LT(ink(image(), plot.place_of(1.5708, 3)), black);
  plot.clear();
  plot.curve([](Real x) { return 4 + sqrt((x - 1) * (x - 2)); }, 0, 3);
  EXPECT_LT(ink(image(), plot.place_of(1.5, 4)), black);
  EXPECT_GT(ink(image(), plot.place_of(0.5, 4 + sqrt(0.75))), black);
}

TEST_F(Plot, IsBlankButForFrameAndTitles) {
  const std::string titles = "ROS|FREQUENZA in MHz";
  EXPECT_EQ(texts(), titles);
  const QImage empty = image();
  plot.curve(standing_wave_ratio, 14, 14.4, "antenna").marker(14.2, "minimo");
  EXPECT_NE(image(), empty);
  plot.blank();
  EXPECT_EQ(texts(), titles);
  EXPECT_EQ(image(), empty);
  // What cannot be drawn at all.
  plot.curve(standing_wave_ratio, 14, 14).marker(14, "niente");
  EXPECT_EQ(image(), empty);
}

TEST_F(Plot, WritesMarkersInsideTheFrameAndApart) {
  plot.axes({"", "", ui::Scale::linear, {{13.8, 14.6}}}, {"", "", ui::Scale::linear, {{1, 5}}});
  plot.curve(standing_wave_ratio, 13.8, 14.6);
  for (const double x : {13.8, 14.0, 14.19, 14.2, 14.21, 14.4, 14.6}) {
    plot.marker(x, "punto a " + std::to_string(x));
  }
  plot.marker(19, 2, "altrove");
  std::vector<QRectF> rooms;
  for (const ui::Letters& letters : plot.letters()) {
    if (letters.text.startsWith("punto")) {
      rooms.push_back(letters.room);
      EXPECT_TRUE(plot.frame().contains(letters.room)) << ui::from_qt(letters.text);
    }
  }
  EXPECT_EQ(rooms.size(), 7U);
  EXPECT_EQ(texts().find("altrove"), std::string::npos);
  for (std::size_t i = 0; i < rooms.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      EXPECT_FALSE(rooms[i].intersects(rooms[k])) << i << ' ' << k;
    }
  }
  plot.clear();
  plot.marker(14.1, 2, std::string(200, 'x'));
  EXPECT_TRUE(plot.letters().back().text.startsWith("xxx"));
  EXPECT_TRUE(plot.frame().contains(plot.letters().back().room));
}

TEST_F(Plot, ExtremeValuesNeitherEndNorHangTheProgram) {
  plot.axes({"", "Hz"}, {"", "V"});
  plot.curve([](Real x) { return x; }, -1.7e308, 1.7e308).marker(1e300, "1e300");
  EXPECT_FALSE(image().isNull());
  plot.clear();
  plot.curve([](Real x) { return 1 / x; }, -1e-300, 1e-300).marker(0, "polo").marker(1e-307, "");
  EXPECT_FALSE(image().isNull());
  plot.axes({"", "Hz", ui::Scale::logarithmic}, {"", "V", ui::Scale::logarithmic});
  plot.clear();
  plot.curve([](Real x) { return x - 1; }, 1e-300, 1e300).curve([](Real) { return -1; }, 1, 2);
  plot.curve([](Real x) { return x; }, -1, 1);  // no place on this axis
  EXPECT_FALSE(image().isNull());
}

TEST_F(Plot, TellsTheValueUnderTheMouse) {
  plot.curve(standing_wave_ratio, 14, 14.4);
  EXPECT_EQ(plot.readout(), "");
  point_at(14.1, 4);
  EXPECT_EQ(plot.readout(), "14,1 MHz ; 1,25");
  const QImage cross = image();
  EXPECT_GT(ink(cross, plot.place_of(14.1, 2.5)), black);
  QEvent leave{QEvent::Leave};
  QApplication::sendEvent(&plot, &leave);
  EXPECT_EQ(plot.readout(), "");
  EXPECT_LT(ink(image(), plot.place_of(14.1, 2.5)), black);
}

TEST_F(Plot, TellsValuesBesideWhatIsWritten) {
  plot.curve(standing_wave_ratio, 14, 14.4).marker(14.1, "a").marker(14.1, 4, "b").marker(14.2, "");
  const auto* readout = plot.findChild<QLabel*>("plot_readout");
  for (const double x : {14.05, 14.1, 14.11, 14.15, 14.2, 14.39}) {
    point_at(x, 3);
    for (const ui::Letters& letters : plot.letters()) {
      EXPECT_FALSE(letters.room.adjusted(1, 1, -1, -1).intersects(readout->geometry()))
          << x << ' ' << ui::from_qt(letters.text);
    }
  }
}

TEST_F(Plot, TellsValuesByTheKeyboard) {
  plot.curve(standing_wave_ratio, 14, 14.4, "A").curve([](Real) { return 3; }, 14, 14.4, "B");
  plot.marker(14.3, 3, "limite");
  QTest::keyClick(&window.txtf, Qt::Key_Tab);
  EXPECT_EQ(window.focusWidget(), &plot);
  EXPECT_EQ(plot.readout(), "A: 14,3 MHz ; 1,25");
  const std::pair<Qt::Key, const char*> table[] = {
      {Qt::Key_Right, "A: 14,305 MHz ; 1,276"}, {Qt::Key_Left, "A: 14,3 MHz ; 1,25"},
      {Qt::Key_Left, "A: 14,295 MHz ; 1,226"},  {Qt::Key_Down, "B: 14,295 MHz ; 3"},
      {Qt::Key_End, "B: 14,4 MHz ; 3"},         {Qt::Key_Right, "B: 14,4 MHz ; 3"},
      {Qt::Key_Up, "A: 14,4 MHz ; 2"},          {Qt::Key_Home, "A: 14 MHz ; 2"},
      {Qt::Key_Left, "A: 14 MHz ; 2"},
  };
  for (const auto& [key, readout] : table) {
    QTest::keyClick(&plot, key);
    EXPECT_EQ(plot.readout(), readout) << key;
  }
  plot.clear();
  EXPECT_EQ(plot.readout(), "");
  QTest::keyClick(&plot, Qt::Key_Right);
  EXPECT_EQ(plot.readout(), "");
}

TEST_F(Plot, ArrowKeysLeapOverGaps) {
  plot.curve([](Real x) { return 2 + sqrt((x - 1) * (x - 2)); }, 0, 3).marker(1, "bordo");
  QTest::keyClick(&window.txtf, Qt::Key_Tab);
  EXPECT_EQ(plot.readout(), "1 MHz ; 2");
  QTest::keyClick(&plot, Qt::Key_Right);
  EXPECT_EQ(plot.readout(), "2 MHz ; 2");
}

TEST_F(Plot, IsDescribedToScreenReaders) {
  EXPECT_EQ(ui::from_qt(plot.accessibleName()), "Grafico: ROS in funzione di FREQUENZA in MHz");
  EXPECT_EQ(plot.accessibleDescription(), "vuoto");
  plot.curve(standing_wave_ratio, 14, 14.4, "antenna").marker(14.2, "minimo");
  EXPECT_EQ(ui::from_qt(plot.accessibleDescription()),
            "FREQUENZA da 14 MHz a 14,4 MHz, ROS da 1 a 5, antenna, minimo: 14,2 MHz ; 1");
}

}  // namespace
}  // namespace eterlab::test
