#include "shell/dictionary.h"
#include "ui/fixed_area.h"
#include "ui/ui.h"

namespace eterlab::shell {

namespace {

// A pocket glossary in one drop-down list.
class frmdizionario final : public ui::Window {
  ui::FixedArea area{this, "area", {6000, 1560}};
  ui::ComboBox cbodizionario{area, "cbodizionario", "A/D  =  convertitore da analogico a digitale",
                             ui::tooltip("clicca sulla freccia")};
  ui::ExitButton cmdesci{area, "cmdesci", "ESCI"};

 public:
  frmdizionario() : Window{"frmdizionario", "Abbreviazioni e terminologia ricorrente"} {
    for (const std::string_view entry : dictionary()) {
      cbodizionario.add(entry);
    }
    area.place(ui::column(cbodizionario, ui::buttons(cmdesci)), {240, 240}, {4935, 1200});
    arrange(area);
  }

  void show_example() override { cbodizionario.choose(0); }
};

const ui::Registration<frmdizionario> registration{"frmdizionario"};

}  // namespace

}  // namespace eterlab::shell
