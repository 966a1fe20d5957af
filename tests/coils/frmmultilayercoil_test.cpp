#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmmultilayercoil : public WindowTest {
 protected:
  test::Driven window = choose("mnumultilayer");

  void compute(const char* turns, const char* width, const char* radius, const char* wire) const {
    window.type("txtspire", turns);
    window.type("txtlarghezza", width);
    window.type("txtraggionucleo", radius);
    window.type("txtdiametrofilo", wire);
    window.click("cmdcalcola");
  }

  [[nodiscard]] std::vector<std::string> results() const {
    return {window.text("lblhenry"), window.text("lblnspirestrato"), window.text("lblnstrati"),
            window.text("lbllunghezzafilo"), window.text("lblrdc")};
  }
  [[nodiscard]] std::vector<std::string> sketch() const {
    return {window.text("lblr1"), window.text("lblr2"), window.text("lbllarg"),
            window.text("lblspessore")};
  }
};

TEST_F(frmmultilayercoil, Computes) {
  EXPECT_FALSE(window.shows("Frame1"));
  set_regional_settings(test::italian());
  compute("100", "10", "10", "0.5");
  EXPECT_TRUE(window.shows("Frame1"));
  EXPECT_EQ(results(), (std::vector<std::string>{
                           "L'INDUTTANZA E' µHenry :   218,45", "LE SPIRE PER STRATO SONO 20,0",
                           "GLI STRATI SONO  5,0", "L'AVVOLGIMENTO E' LUNGO CIRCA METRI 7,07",
                           "LA RESISTENZA ALLA CORRENTE CONTINUA E' 0,65 OHMS"}));
  EXPECT_EQ(sketch(), (std::vector<std::string>{"1 cm ", "1,3 cm", "1 cm", "0,25 cm"}));
}

TEST_F(frmmultilayercoil, TextsOfRoundedValuesKeepTheirZerosAndOthersDoNot) {
  compute("250", "12", "7.5", "0.4");
  EXPECT_EQ(results()[0], "L'INDUTTANZA E' µHenry :   842.60");
  EXPECT_EQ(results()[2], "GLI STRATI SONO  8.3");
  EXPECT_EQ(sketch(), (std::vector<std::string>{"0.75 cm ", "1.1 cm", "1.2 cm", "0.33 cm"}));
}

TEST_F(frmmultilayercoil, AboveAThousandMicrohenryInMillihenryOfTheRoundedValue) {
  set_regional_settings(test::italian());
  compute("2000", "10", "10", "0.5");
  EXPECT_EQ(results()[0], "L'INDUTTANZA E' milli Henry :   192,9375");
  EXPECT_EQ(results()[3], "L'AVVOLGIMENTO E' LUNGO CIRCA METRI 439,6");
  compute("300", "8", "6.4", "0.1");  // 1067.2329 uH
  EXPECT_EQ(results()[0], "L'INDUTTANZA E' milli Henry :   1,06723");
}

TEST_F(frmmultilayercoil, AnyChangeHidesTheResultsAndResetsTheSketch) {
  const std::vector<std::string> at_rest{"r", " R ", "larghezza", "Spessore"};
  EXPECT_EQ(sketch(), at_rest);
  for (const char* box : {"txtspire", "txtlarghezza", "txtraggionucleo", "txtdiametrofilo"}) {
    SCOPED_TRACE(box);
    compute("100", "10", "10", "0.5");
    window.type(box, "1");
    EXPECT_FALSE(window.shows("Frame1"));
    EXPECT_EQ(sketch(), at_rest);
  }
}

TEST_F(frmmultilayercoil, OnlyTheProductIsChecked) {
  compute("100", "10", "-10", "0.5");
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtdiametrofilo");
  EXPECT_FALSE(window.shows("Frame1"));
  compute("-100", "-10", "10", "0.5");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(results()[1], "LE SPIRE PER STRATO SONO -20.0");
}

TEST_F(frmmultilayercoil, WireGaugesStandAtTheirPlaceAndThisWindowStays) {
  const QPoint corner = window.window().pos();
  window.click("cmdchiamaawg");
  EXPECT_EQ(window.window().pos(), corner);
  EXPECT_TRUE(is_open("frmawg"));
  EXPECT_EQ(driven("frmawg").window().pos(), (QPoint{273, 200}));
  // The window of VHF coils would be moved, but not shown; that there is none is no matter.
  EXPECT_FALSE(is_open("frmmicrobobine"));
  EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(frmmultilayercoil, Texts) {
  EXPECT_EQ(window.text("lblraggionucleo"), "raggio interno bobina in mm (r)");
  EXPECT_EQ(window.tooltip("lblraggionucleo"), "calcolato al centro spira");
  EXPECT_EQ(window.tooltip("txtraggionucleo"),
            "digitare un dato compatibile con la sezione del filo");
  EXPECT_EQ(window.tooltip("txtdiametrofilo"), "diametro del supporto");
  EXPECT_EQ(window.text("cmdesci"), "E X I T");
}

}  // namespace
}  // namespace eterlab
