#include <algorithm>

#include "support/form_test.h"
#include "ui/plot.h"

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

using frmparaboliche = FormTest;

TEST_F(frmparaboliche, FromAWavelengthOn) {
  use("mnuparaboliche", "txtfrequenza txtdiametro txtrendimento",
      "lblguadagno lblapertura lblarea lblcampo lblerrore");
  EXPECT_EQ(window.text("txtrendimento"), "55");
  expect("10368|60|55",
         "GUADAGNO = 33,7 dBi, 31,5 dBd|APERTURA DEL FASCIO A 3 dB = 3,37 GRADI|"
         "AREA EFFICACE = 0,1555 mq|CAMPO LONTANO OLTRE 24,9 mt.|"
         "ERRORE DI SUPERFICIE (EFFICACE) PER 1 dB DI PERDITA = 1,1 mm");
  const auto& plot = dynamic_cast<ui::Plot&>(window.control("plot"));
  const auto is_written = [&plot](const QString& text) {
    return std::ranges::count(plot.letters(), text, &ui::Letters::text);
  };
  EXPECT_EQ(is_written("A 3 dB 3,37°"), 1);
  // Just a wavelength: (pi)^2 are 9.94 dB.
  expect("299.792458|100|100",
         "GUADAGNO = 9,9 dBi, 7,8 dBd|APERTURA DEL FASCIO A 3 dB = 70,00 GRADI|"
         "AREA EFFICACE = 0,7854 mq|CAMPO LONTANO OLTRE 2 mt.|"
         "ERRORE DI SUPERFICIE (EFFICACE) PER 1 dB DI PERDITA = 38,2 mm");
  enter("1e12|1e12|1e-12");
  EXPECT_EQ(boxes(), Boxes{});
  expect_refusal("144|60|55", "txtdiametro", "IL DIAMETRO DEVE ESSERE ALMENO UNA LUNGHEZZA D'ONDA");
  expect_refusal("144|60|100.1", "txtrendimento", "IL RENDIMENTO NON PUO' SUPERARE IL 100 %");
  EXPECT_EQ(is_written("A 3 dB 3,37°"), 0);
}

}  // namespace
}  // namespace eterlab::test
