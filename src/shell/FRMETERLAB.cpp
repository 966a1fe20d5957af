#include <QEvent>

#include "shell/landscape.h"
#include "shell/menu_catalogue.h"
#include "shell/product.h"
#include "ui/desktop.h"
#include "ui/fixed_area.h"
#include "ui/menu_bar.h"
#include "ui/timer.h"
#include "ui/ui.h"

namespace eterlab::shell {

namespace {

constexpr ui::Colour red{255, 0, 0};
constexpr ui::Colour blue{0, 0, 255};
constexpr ui::Colour ink{0x22, 0x2c, 0x3a};  // on the picture, which is light in every theme
constexpr ui::TwipsSize client_area{8505, 5910};

// The start-up window: a blinking title over a picture, and the menu bar that opens all the others.
class FRMETERLAB final : public ui::Window {
  ui::FixedArea background{this, "background", client_area, draw_landscape};
  ui::Label lbltitolo{background, "lbltitolo", title, ui::tooltip("clicca per fermare")};
  ui::Label LBLVERSIONE{background, "LBLVERSIONE", edition, ui::tooltip("maggio 2002")};
  ui::Label lblrisoluzione{background, "lblrisoluzione", "RISOLUZIONE 1280 x 1024"};
  ui::DoorButton cdmexit{background, "cdmexit", ui::tooltip("CHIUDI TUTTO")};
  ui::Timer Timer1{this, "Timer1"};

 public:
  FRMETERLAB() : Window{"FRMETERLAB", "ETERLAB    -   IL PRONTUARIO"} {
    lbltitolo.set_font("Times New Roman", 20.25, QFont::Bold);
    LBLVERSIONE.set_font("MS Sans Serif", 9.75);
    set_text_colour(lbltitolo, red);
    set_text_colour(LBLVERSIONE, ink);
    set_text_colour(lblrisoluzione, ink);

    arrange(background);
    background.place(lbltitolo, {480, 360});
    background.place(LBLVERSIONE, {480, 930});
    background.place(lblrisoluzione, {480, 1260});
    background.place(cdmexit, {7440, 5160}, {855, 615});
    add_menus();
    keep_open_on_escape();

    Timer1.on_tick([this] { Timer1_tick(); });
    lbltitolo.on_click([this] { Timer1.stop(); });
  }

  void load() override {
    constexpr int blink_ms = 1000;
    Timer1.start(blink_ms);
    setFocus();
  }

 protected:
  /// Back in front, nothing on it has the focus: Enter would press the door.
  bool event(QEvent* event) override {
    if (event->type() == QEvent::WindowActivate) {
      setFocus();
    }
    return Window::event(event);
  }

 private:
  void add_menus() {
    auto* bar = new ui::MenuBar{*this};
    for (const MenuEntry& entry : menu_catalogue()) {
      if (entry.is_submenu()) {
        bar->add_submenu(entry.name, entry.caption, entry.parent);
      } else {
        bar->add_entry(entry.name, entry.caption, entry.parent,
                       [&entry] { open(entry.window, entry.showing); });
      }
    }
    bar->condense_to(background.sizeHint().width());
    set_client_area(client_area);
  }

  void Timer1_tick() { set_text_colour(lbltitolo, text_colour(lbltitolo) == red ? blue : red); }
};

const ui::Registration<FRMETERLAB> registration{"FRMETERLAB"};

}  // namespace

}  // namespace eterlab::shell
