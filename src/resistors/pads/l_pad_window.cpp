#include "resistors/pads/l_pad_window.h"

#include "common/number_text.h"
#include "resistors/pads/handbook_pads.h"

namespace eterlab::resistors {

LPadWindow::LPadWindow(std::string_view name, std::string_view title) : Window{name, title} {
  constexpr double top = 6;
  schematic.terminal({left, top})
      .terminal({left, bottom})
      .terminal({right, top})
      .terminal({right, bottom})
      .resistor({left, top}, {shunt, top})
      .named("R1", lblR1)
      .wire({{shunt, top}, {right, top}})
      .resistor({shunt, top}, {shunt, bottom})
      .named("R2", lblR2)
      .junction({shunt, top})
      .junction({shunt, bottom})
      .label(Label2, {left, 1.5})
      .label(Label4, {right, 1.5});
  for (ui::Label* end : {&Label2, &Label4}) {
    end->set_role(ui::Label::Role::text);  // the values stand out from them
  }
  cmdcalcola.on_click([this] { cmdcalcola_click(); });
}

void LPadWindow::show_example() {
  txtRH = "75";
  txtRL = "50";
  cmdcalcola.click();
}

void LPadWindow::cmdcalcola_click() {
  const Real higher_ohm = txtRH.number();
  const Real lower_ohm = txtRL.number();
  if (higher_ohm * lower_ohm <= 0) {
    refuse(txtRH);
    return;
  }
  if (higher_ohm <= lower_ohm) {
    refuse(txtRH, "L'impedenza IN deve essere maggiore dell'impedenza OUT", "messaggio di errore");
    return;
  }
  const HandbookMinimumLossPad pad = handbook_minimum_loss_pad(higher_ohm, lower_ohm);
  write_series_resistors(pad.series_ohm);
  lblR2 = fixed(pad.shunt_ohm, 1);
  lblperdita = "L'ATTENUAZIONE E' " + plain(pad.loss_db) + " dB";
}

}  // namespace eterlab::resistors
