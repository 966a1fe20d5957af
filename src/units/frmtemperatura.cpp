#include "common/number_text.h"
#include "ui/ui.h"
#include "units/temperature.h"

namespace eterlab::units {

namespace {

// A temperature in degrees Celsius on three other scales, as the user types.
class frmtemperatura final : public ui::Window {
  ui::Heading Label1{this, "Label1",
                     "COMPARAZIONE TRA GRADI CENTIGRADI ED ALTRI SISTEMI DI MISURAZIONE"};
  ui::Label lblgradi{this, "lblgradi", "GRADI CENTIGRADI"};
  ui::TextBox txtcentigradi{this, "txtcentigradi"};
  ui::Label lblfarenheit{this, "lblfarenheit", "GRADI FAHRENHEIT"};
  ui::Result lblfahr{this, "lblfahr"};
  ui::Label lblreaumur{this, "lblreaumur", "GRADI REAUMUR"};
  ui::Result lblreau{this, "lblreau"};
  ui::Label lblkelvin{this, "lblkelvin", "GRADI KELVIN"};
  ui::Result lblkelv{this, "lblkelv"};
  ui::ExitButton cmdesci{this, "cmdesci", "CHIUDI"};

 public:
  frmtemperatura() : Window{"frmtemperatura", "COMPARAZIONI TERMOMETRICHE"} {
    arrange(ui::column(Label1,
                       ui::form(field(lblgradi, txtcentigradi), field(lblfarenheit, lblfahr),
                                field(lblreaumur, lblreau), field(lblkelvin, lblkelv)),
                       ui::buttons(cmdesci)),
            48);

    txtcentigradi.on_change([this] { txtcentigradi_change(); });
  }

  void show_example() override { txtcentigradi = "36.6"; }

 private:
  void txtcentigradi_change() {
    constexpr std::string_view mask = "#0.##";
    const Real celsius = txtcentigradi.number();
    lblfahr = pattern(fahrenheit_from_celsius(celsius), mask);
    lblreau = pattern(reaumur_from_celsius(celsius), mask);
    lblkelv = plain(kelvin_from_celsius(celsius));
  }
};

const ui::Registration<frmtemperatura> registration{"frmtemperatura"};

}  // namespace

}  // namespace eterlab::units
