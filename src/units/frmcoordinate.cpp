#include <optional>

#include "common/number_text.h"
#include "ui/message_box.h"
#include "ui/ui.h"
#include "units/locator.h"

namespace eterlab::units {

namespace {

// The hundredths of a minute stand where seconds would.
std::string text_of(Real angle_deg) {
  const DegreesAndMinutes angle = degrees_and_minutes(angle_deg);
  return plain(angle.degrees) + "°  " + plain(angle.minutes) + "'  " +
         plain(angle.hundredths_of_minute) + "\"";
}

// A locator turned into coordinates. The window for the other way round stands below it.
class frmcoordinate final : public ui::Window {
  ui::Heading Label6{this, "Label6", "DA  WORLD WIDE LOCATOR A COORDINATE SESSAGESIMALI"};
  ui::Label lblwwl{this, "lblwwl", "WORLD WIDE LOCATOR : "};
  ui::TextBox txtwwl{this, "txtwwl"};
  ui::Result lbllong{this, "lbllong"};
  ui::Result lbllat{this, "lbllat"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmcoordinate() : Window{"frmcoordinate", "  da  W W LOCATOR  a  COORDINATE"} {
    txtwwl.hold_text();
    arrange(ui::column(Label6, ui::form(field(lblwwl, txtwwl)), lbllong, lbllat,
                       ui::buttons(cmdcalcola, cmdesci)),
            72);

    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void load() override { centre_across_screen(1200); }

  void bring_forward() override {
    open("frmwwl");
    Window::bring_forward();
  }

  void show_example() override {
    txtwwl = "JN61FV";
    cmdcalcola.click();
  }

 private:
  void cmdcalcola_click() {
    const std::optional<Position> position = position_of(txtwwl.content());
    if (!position) {
      message_box(this, ui::Icon::critical, "DATI MANCANTI", "il WWL deve essere di 6 caratteri");
      return;
    }
    lbllong = "LONGITUDINE = " + text_of(position->longitude_deg);
    lbllat = "LATITUDINE    = " + text_of(position->latitude_deg);
  }
};

const ui::Registration<frmcoordinate> registration{"frmcoordinate"};

}  // namespace

}  // namespace eterlab::units
