#include "support/window_test.h"
#include "ui/window.h"

namespace eterlab::test {
namespace {

using CompanionWindows = WindowTest;

// The design's twips over 15.
TEST_F(CompanionWindows, StandAtTheirPlacesAlsoWhenTheyAreOpenAlready) {
  const std::tuple<const char*, const char*, QPoint, const char*, QPoint> table[] = {
      {"mnuvalinduttanza", "cmdchiamabobine", {12, 12}, "frmbobine", {273, 187}},
      {"mnuvalinduttanza", "cmdchiamatoroidi", {12, 12}, "frmamidon", {273, 187}},
      {"mnulcparallelo", "cmdchiamabobine", {12, 12}, "frmbobine", {273, 187}},
      {"mnuLCserieparall", "cmdchiamabobine", {12, 12}, "frmbobine", {273, 187}},
      {"mnuLL", "cmdchiamabobine", {27, 20}, "frmbobine", {273, 187}},
      {"mnuRL", "cmdchiamabobine", {27, 20}, "frmbobine", {273, 187}},
      {"mnuRLC", "cmdchiamabobine", {27, 20}, "frmbobine", {273, 187}},
      {"mnuverticale", "cmdchiamabobine", {12, 12}, "frmbobine", {273, 187}},
      {"mnureattanza", "cmdchiamabobine", {12, 12}, "frmbobine", {273, 187}},
      {"mnurisonanza", "cmdchiamabobine", {12, 12}, "frmbobine", {273, 187}},
      {"mnufiltripassaalto", "cmdbobine", {12, 12}, "frmbobine", {273, 187}},
      {"mnufiltronotchaf", "cmdchiamabobine", {12, 17}, "frmbobine", {533, 417}},
      {"mnufiltronotchbf", "cmdchiamabobine", {12, 17}, "frmbobine", {533, 417}},
      {"mnubobine", "cmdchiamaawg", {12, 12}, "frmawg", {273, 200}},
      {"mnumicrobobine", "cmdchiamaawg", {12, 12}, "frmawg", {273, 200}},
      {"mnuadattatorilc", "cmdchiamabobine", {12, 12}, "frmbobine", {273, 187}},
      {"mnumisureInglesi", "cmdaltreconversioni", {12, 12}, "frmaltreconversioni", {273, 187}},
      {"mnuyagi3", "cmdgamma", {23, 23}, "frmgammamatch", {533, 533}},
      {"mnuyagi5", "cmdgamma", {13, 13}, "frmgammamatch", {533, 533}},
  };
  for (const auto& [menu_entry, button, corner, name, companion_corner] : table) {
    SCOPED_TRACE(menu_entry);
    const Driven window = choose(menu_entry);
    dynamic_cast<ui::Window&>(window.window()).show_example();  // some show their buttons then
    window.click(button);
    EXPECT_EQ(window.window().pos(), corner);
    ASSERT_TRUE(is_open(name));
    QWidget& companion = driven(name).window();
    EXPECT_EQ(companion.pos(), companion_corner);
    EXPECT_FALSE(companion.isModal());
    companion.move(100, 100);
  }
  EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(CompanionWindows, LeaveSomeCallersInTheirPlace) {
  for (const auto& [menu_entry, button] : {std::pair{"mnupassabanda2", "cmdchiamabobine"},
                                           {"mnupbk", "cmdchiamabobine"},
                                           {"mnumulticircolare", "cmdchiamaawg"},
                                           {"mnuautorisonanza1", "cmdchiamaawg"},
                                           {"mnumultilayer", "cmdchiamaawg"}}) {
    const Driven window = choose(menu_entry);
    const QPoint corner = window.window().pos();
    window.click(button);
    EXPECT_EQ(window.window().pos(), corner);
  }
  EXPECT_TRUE(is_open("frmbobine"));
  EXPECT_EQ(driven("frmawg").window().pos(), QPoint(273, 200));
  // The window of VHF coils has been moved, but not shown.
  EXPECT_FALSE(is_open("frmmicrobobine"));
  const Driven short_coils = choose("mnumicrobobine");
  EXPECT_EQ(short_coils.window().pos(), QPoint(12, 12));
  short_coils.click("cmdaprebobineHF");
  EXPECT_EQ(short_coils.window().pos(), QPoint(12, 12));
  EXPECT_EQ(boxes(), Boxes{});
}

}  // namespace
}  // namespace eterlab::test
