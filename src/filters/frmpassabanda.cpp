#include "ui/ui.h"

namespace eterlab::filters {

namespace {

// How a band-pass is made of a high-pass and a low-pass, and the way to both.
class frmpassabanda final : public ui::Window {
  ui::Label Label1{
      this, "Label1",
      "Il filtro passa banda è costituito da un filtro passa alto collegato ad un filtro passa "
      "basso e, pertanto, si rimanda ai rispettivi procedimenti di calcolo. NOTA: la frequenza di "
      "taglio del filtro passa alto corrisponderà alla  più bassa frequenza che si intende non "
      "attenuare, mentre la frequenza di taglio del filtro passa basso corrisponderà alla più alta "
      "frequenza che si intende non attenuare."};
  ui::Button Command1{this, "Command1", "vai ai filtri passa basso"};
  ui::Button Command2{this, "Command2", "vai ai filtri passa alto"};
  ui::ExitButton Command3{this, "Command3", "CHIUDI"};

 public:
  frmpassabanda() : Window{"frmpassabanda", "FILTRI PASSA BANDA"} {
    Label1.setWordWrap(true);
    arrange(ui::column(Label1, ui::buttons(Command1, Command2, Command3)), 84);

    Command1.on_click([this] { go_to("frmpassabasso"); });
    Command2.on_click([this] { go_to("frmpassaalto"); });
  }

 private:
  // The other window first: the program ends with its last one.
  void go_to(std::string_view window) {
    open(window);
    close();
  }
};

const ui::Registration<frmpassabanda> registration{"frmpassabanda"};

}  // namespace

}  // namespace eterlab::filters
