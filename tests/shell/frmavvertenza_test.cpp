#include "support/window_test.h"

namespace eterlab {
namespace {

class frmavvertenza : public test::WindowTest {};

TEST_F(frmavvertenza, IsModalAndSaysItsText) {
  desktop().show("frmavvertenza", ui::Showing::modal);
  const test::Driven window = driven("frmavvertenza");
  EXPECT_EQ(window.window().windowTitle(), "AVVERTENZA");
  EXPECT_EQ(window.window().size(), QSize(462, 174));
  EXPECT_TRUE(window.window().isModal());
  EXPECT_EQ(window.text("Label1"),
            "Le formule utilizzate sono quelle riportate sui vari testi e/o articoli "
            "sull'argomento. I risultati ottenuti, sono in ogni caso da considerare come "
            "indicativi, in quanto, a prescindere dall'esattezza delle formule stesse, troppi "
            "fattori, anche imprevedibili, fanno si che l'attuazione pratica si discosti dal "
            "calcolo teorico.  Esso rimane, tuttavia, indispensabile quale dato di partenza ai "
            "fini della realizzazione.");
  window.click("cmdchiudi");
  EXPECT_FALSE(is_open("frmavvertenza"));
}

}  // namespace
}  // namespace eterlab
