#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmfuoco = FormTest;

TEST_F(frmfuoco, ShallowAndDeep) {
  use("mnufuoco", "txtdiametro txtprofondita",
      "lblfuoco lblrapporto lblangolo lblbordo lblvalorefuoco");
  expect("120|20",
         "DISTANZA FOCALE = 45,0 cm.|RAPPORTO F / D = 0,38|"
         "ANGOLO VISTO DALL'ILLUMINATORE = 134,8 GRADI|DISTANZA DEL FUOCO DAL BORDO = 65,0 cm.|"
         "45,0 cm.");
  // Deeper than its focus: 400 / 304 = 1.3158, 4 atan(3.8) = 301.03 degrees.
  expect("20|19",
         "DISTANZA FOCALE = 1,3 cm.|RAPPORTO F / D = 0,07|"
         "ANGOLO VISTO DALL'ILLUMINATORE = 301,0 GRADI|DISTANZA DEL FUOCO DAL BORDO = 20,3 cm.|"
         "1,3 cm.");
  for (const char* extreme : {"1e12|1e-12", "1e-12|1e12"}) {
    enter(extreme);
    EXPECT_EQ(boxes(), Boxes{}) << extreme;
  }
  expect_refusal("120|0", "txtprofondita");
}

using frmbarattolo = FormTest;

TEST_F(frmbarattolo, BetweenTheCutOffsAndBeyond) {
  use("mnubarattolo", "txtfrequenza txtdiametro",
      "lbltaglio lbltagliosup lbllambda lblsonda lbllunghezza lblavviso");
  expect("2437|84",
         "FREQUENZA DI TAGLIO TE11 = 2,092 GHz|MODO SUPERIORE TM01 DA 2,732 GHz|"
         "LUNGHEZZA D'ONDA IN GUIDA = 239,7 mm|SONDA A 59,9 mm DAL FONDO, LUNGA 29,2 mm|"
         "LUNGHEZZA DEL BARATTOLO ALMENO 179,8 mm|");
  EXPECT_EQ(window.text("lblvalorediametro lblvalorefondo lblvaloresonda lblvalorelunghezza"),
            "84 mm|59,9 mm|29,2 mm|179,8 mm");
  enter("2437|95");
  EXPECT_EQ(window.text("lbltagliosup lblavviso"),
            "MODO SUPERIORE TM01 DA 2,416 GHz|"
            "ATTENZIONE: SI PROPAGA ANCHE IL MODO TM01, MEGLIO UN DIAMETRO MINORE");
  expect_refusal("1296|100", "txtdiametro", "BARATTOLO TROPPO STRETTO: DIAMETRO MINIMO 136 mm");
  expect_refusal("1296|", "txtdiametro");
  enter("1296|136");
  EXPECT_EQ(boxes(), Boxes{});
}

}  // namespace
}  // namespace eterlab::test
