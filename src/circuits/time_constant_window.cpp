#include "circuits/time_constant_window.h"

#include <string>

#include "circuits/time_constant.h"
#include "common/number_text.h"

namespace eterlab::circuits {

namespace {

constexpr ui::Input::Traits optional_number{
    .tooltip = "facoltativo", .range = {{.lowest = -1e12, .highest = 1e12}}, .is_optional = true};

}  // namespace

TimeConstantWindow::TimeConstantWindow(const TimeConstantKind& kind)
    : Calculator{kind.window, kind.title},
      kind_{kind},
      part{this, kind.part_box, kind.part_prompt},
      txtvolt{this, "txtvolt", "TENSIONE in VOLT", optional_number},
      txttempo{this, "txttempo", "TEMPO in millisecondi", optional_number} {
  draw();
  set_axes(true, 100);
  lay_out(ui::row(ui::column(ui::form(txtohm, part, txtvolt, txttempo), lbltau, lbl95, lbl99,
                             lblcarica, lblscarica, ui::stretch()),
                  ui::column(drawing, plot)));
}

void TimeConstantWindow::draw() {
  constexpr double left = 6;
  constexpr double contact = 18;
  constexpr double right = 38;
  constexpr double top = 5;
  constexpr double bottom = 16;
  drawing.battery({left, top}, {left, bottom})
      .named("U", lblvaloretensione)
      .open_contact({left, top}, {contact, top})
      .resistor({contact, top}, {right, top})
      .named("R", lblvaloreresistenza)
      .wire({{left, bottom}, {right, bottom}});
  (drawing.*kind_.draw_part)({right, top}, {right, bottom})
      .named(kind_.part_letter, lblvalorecomponente);
}

void TimeConstantWindow::set_axes(bool in_percent, Real final_value) {
  plot.axes({.title = "TEMPO", .unit = "s"},
            {.title = std::string{kind_.quantity},
             .unit = std::string{in_percent ? "%" : kind_.quantity_unit},
             .range = {{0, final_value.value()}}});
}

void TimeConstantWindow::compute() {
  const Real resistance_ohm = txtohm.value();
  const Real part_value = kind_.part_unit * part.value();
  const Real tau_s = kind_.time_constant_s(resistance_ohm, part_value);
  const auto time_to = [tau_s](Real percent) {
    return eng(tau_s * time_constants_until(percent, 100), "s");
  };
  const std::string risen{kind_.rise};
  lbltau = "COSTANTE DI TEMPO = " + eng(tau_s, "s");
  lbl95 = risen + " AL 95 % IN " + time_to(95);
  lbl99 = risen + " AL 99 % IN " + time_to(99);
  lblvaloreresistenza = eng(resistance_ohm, "Ohm");
  lblvalorecomponente = eng(part_value, kind_.part_result_unit);

  Rise rise{100, tau_s, {}};
  const Real supply_v = txtvolt.value();
  const Real time_ms = txttempo.value();
  if (supply_v > 0 && time_ms > 0) {
    rise = {final_value(supply_v, resistance_ohm), tau_s, time_ms / 1000};
    lblvaloretensione = eng(supply_v, "V");
  }
  set_axes(!rise.asked_time_s, rise.final_value);
  const Real end_s = plotted_time_constants * tau_s;
  plot.curve(
      [rise](Real time_s) { return risen_to(rise.final_value, time_s, rise.time_constant_s); }, 0,
      end_s, kind_.curve_name);
  for (int count = 1; count <= plotted_time_constants; count += 2) {
    plot.marker(count * tau_s, std::to_string(count) + " \u03c4");
  }
  if (rise.asked_time_s && *rise.asked_time_s <= end_s) {
    plot.marker(*rise.asked_time_s, eng(*rise.asked_time_s, "s"));
  }
  tell(rise);
}

}  // namespace eterlab::circuits
