#include "ui/fixed_area.h"

#include <QApplication>

#include "support/window_test.h"
#include "ui/theme.h"
#include "ui/ui.h"

namespace eterlab::test {
namespace {

// Twips by hand: 15 to the pixel, so the area is 300 x 200.
class Placed final : public ui::Window {
 public:
  ui::FixedArea area{this, "area", {4500, 3000}};
  ui::Label lblnota{area, "lblnota", "NOTA"};
  ui::Result lblrisultato{area, "lblrisultato"};

  Placed() : Window{"placed", "A POSTO"} {
    area.place(lblnota, {300, 1500}, {900, 750});
    area.place(lblrisultato, {3000, 2400});
    arrange(area);
  }
};

class FixedArea : public WindowTest {
 public:
  ~FixedArea() override { QApplication::setFont(usual); }

 protected:
  FixedArea() {
    window.show();
    settle();
  }
  Placed window;
  const QFont usual = QApplication::font();
};

TEST_F(FixedArea, EverythingStandsWhereItIsSaid) {
  EXPECT_EQ(window.size(), QSize(300, 200));
  EXPECT_EQ(window.lblnota.geometry(), QRect(20, 100, 60, 50));
  EXPECT_EQ(window.lblrisultato.pos(), QPoint(200, 160));

  window.area.place(window.lblnota, {1500, 750});
  settle();
  EXPECT_EQ(window.lblnota.pos(), QPoint(100, 50));
  EXPECT_EQ(window.lblnota.size(), window.lblnota.sizeHint());
}

TEST_F(FixedArea, GrowsWithLaterTexts) {
  window.lblnota = "UNA NOTA PIU' LUNGA DEI SESSANTA PUNTI DATI";
  window.lblrisultato = "DUE O TRE PAROLE VANNO A CAPO AL BORDO DESTRO";
  settle();
  EXPECT_EQ(window.lblnota.width(), window.lblnota.sizeHint().width());
  EXPECT_LT(window.lblrisultato.geometry().right(), window.width());
  EXPECT_EQ(window.lblrisultato.height(),
            window.lblrisultato.heightForWidth(window.lblrisultato.width()));
  EXPECT_GT(window.height(), 200);
}

TEST_F(FixedArea, PlacesMoveApartWithTheFont) {
  QFont font = usual;
  font.setPointSizeF(usual.pointSizeF() * 2);
  QApplication::setFont(font);
  Placed larger;
  larger.show();
  settle();
  const double scale = ui::theme::font_scale();
  EXPECT_GE(scale, 2);
  EXPECT_EQ(larger.lblnota.pos(), QPoint(20, 100) * scale);
  EXPECT_EQ(larger.size(), QSize(300, 200) * scale);
}

}  // namespace
}  // namespace eterlab::test
