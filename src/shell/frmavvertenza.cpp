#include "ui/ui.h"

namespace eterlab::shell {

namespace {

// The warning that results are theory; opened by the windows to which it matters most.
class frmavvertenza final : public ui::Window {
  ui::Label Label1{
      this, "Label1",
      "Le formule utilizzate sono quelle riportate sui vari testi e/o articoli sull'argomento. I "
      "risultati ottenuti, sono in ogni caso da considerare come indicativi, in quanto, a "
      "prescindere dall'esattezza delle formule stesse, troppi fattori, anche imprevedibili, fanno "
      "si che l'attuazione pratica si discosti dal calcolo teorico.  Esso rimane, tuttavia, "
      "indispensabile quale dato di partenza ai fini della realizzazione."};
  ui::ExitButton cmdchiudi{this, "cmdchiudi", "CHIUDI"};

 public:
  frmavvertenza() : Window{"frmavvertenza", "AVVERTENZA"} {
    Label1.setWordWrap(true);
    arrange(ui::column(Label1, ui::buttons(cmdchiudi)), 0);
    set_client_area({6930, 2610});
  }
};

const ui::Registration<frmavvertenza> registration{"frmavvertenza"};

}  // namespace

}  // namespace eterlab::shell
