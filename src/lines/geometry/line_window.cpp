#include "lines/geometry/line_window.h"

#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/geometry/round_rods.h"
#include "lines/geometry/uniform_line.h"

namespace eterlab::lines {

namespace {

struct LineDielectric {
  std::string_view name;
  double relative_permittivity;
};

/// At radio frequencies.
constexpr LineDielectric dielectrics[] = {
    {"ARIA", 1},
    {"POLIETILENE ESPANSO", 1.5},
    {"TEFLON (PTFE)", 2.1},
    {"POLIETILENE", 2.26},
    {"POLISTIROLO", 2.55},
    {"PLEXIGLAS", 2.7},
    {"VETRONITE (FR4)", 4.4},
};

}  // namespace

std::string impedance_limits_text(Real least_ohm, Real greatest_ohm) {
  constexpr double half_digit = 0.05;
  return "IMPEDENZA NON REALIZZABILE: SCEGLIERE TRA " + fixed(least_ohm + half_digit, 1) + " E " +
         fixed(greatest_ohm - half_digit, 1) + " Ohm";
}

std::string impedance_text(Real impedance_ohm) {
  return "IMPEDENZA = " + fixed(impedance_ohm, 1) + " Ohm";
}

std::string millimetres(Real length_mm) { return plain(length_mm) + " mm"; }

std::string computed_millimetres(Real length_mm) { return millimetres(rounded(length_mm, 2)); }

std::string metres(Real length_m) { return plain(length_m) + " mt."; }

std::string picofarad_per_metre(Real capacitance_f_per_m) {
  return fixed(capacitance_f_per_m * 1e12, 2) + " pF/metro";
}

std::string microhenry_per_metre(Real inductance_h_per_m) {
  return fixed(inductance_h_per_m * 1e6, 3) + " uH/metro";
}

std::string rod_text(Real wanted_mm, Real thickest_mm,
                     const std::function<Real(Real rod_mm)>& impedance_ohm_with) {
  const auto rod_mm = nearest_rod_mm(wanted_mm);
  if (!rod_mm || !reaches(thickest_mm, *rod_mm)) {
    return "";
  }
  return "CON IL TONDO DA " + millimetres(*rod_mm) + " = " + fixed(impedance_ohm_with(*rod_mm), 1) +
         " Ohm";
}

ui::Input velocity_factor_input(ui::Parent parent, std::string_view prompt_name) {
  return {parent,
          "txtfattore",
          "FATTORE DI VELOCITA' (1 = ARIA)",
          {.tooltip = ": 0.95 con distanziatori, 0.9 piattina forata, 0.82 piattina",
           .holds = "1",
           .range = ui::Range{0.1, 1},
           .tells_range = true,
           .prompt_name = prompt_name}};
}

LineWindow::LineWindow(std::string_view name, std::string_view title) : Calculator{name, title} {
  name_hint("Label20");
}

void LineWindow::check() {
  check_presence();
  for (ui::Input* input : shown_inputs()) {
    if (input->value() > 0) {
      check_range(*input);
    }
  }
}

LineResults::LineResults(ui::Parent parent)
    : lblcapacita{parent, "lblcapacita"},
      lblinduttanza{parent, "lblinduttanza"},
      lblvelocita{parent, "lblvelocita"} {}

LineResults::operator ui::Item() { return ui::column(lblcapacita, lblinduttanza, lblvelocita); }

void LineResults::show(Real impedance_ohm, Real velocity_factor) {
  const LineConstants constants = line_constants(impedance_ohm, velocity_factor);
  lblcapacita = "CAPACITA' = " + picofarad_per_metre(constants.capacitance_f_per_m);
  lblinduttanza = "INDUTTANZA = " + microhenry_per_metre(constants.inductance_h_per_m);
  lblvelocita = "FATTORE DI VELOCITA' = " + fixed(velocity_factor, 3);
}

DielectricInput::DielectricInput(ui::Parent parent, std::string_view prompt_name)
    : txter{parent,
            "txter",
            "COSTANTE DIELETTRICA (1 = ARIA)",
            {.holds = "1",
             .range = ui::Range{1, 100},
             .tells_range = true,
             .prompt_name = prompt_name}},
      cmbdielettrico{parent, "cmbdielettrico", "DIELETTRICO",
                     ui::tooltip("scrive la costante dielettrica")} {
  for (const LineDielectric& dielectric : dielectrics) {
    cmbdielettrico.add(dielectric.name);
  }
  cmbdielettrico.on_choose(
      [this] { txter = as_typed(dielectrics[cmbdielettrico.chosen()].relative_permittivity); });
}

DielectricInput::operator ui::Field() const {
  return {&txter.prompt(), const_cast<ui::Input*>(&txter),
          const_cast<ui::ComboBox*>(&cmbdielettrico)};
}

EitherInput::EitherInput(ui::Parent parent, const Question& first, const Question& second)
    : Frame1{parent, "Frame1"},
      Option1{Frame1, "Option1", {first.option, second.option}},
      txtinput{parent,
               "txtinput",
               first.prompt,
               {.range = first.range, .tells_range = true, .prompt_name = "lblinput"}},
      first_{first},
      second_{second} {
  Option1.preset(0);
  Option1.on_click([this](int) {
    const Question& asked = is_first() ? first_ : second_;
    txtinput = "";
    txtinput.ask(asked.prompt, asked.range);
  });
  Frame1.arrange(Option1);
}

}  // namespace eterlab::lines
