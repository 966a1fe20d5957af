#include <array>
#include <optional>

#include "antennas/dipoles/coax_trap.h"
#include "antennas/dipoles/dipole_drawing.h"
#include "antennas/dipoles/dipole_window.h"
#include "antennas/dipoles/trap_dipole.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A dipole for two bands with traps wound of coaxial cable.
class frmantcoaxmulti final : public DipoleWindow {
  ui::Input txtf1{this,
                  "txtf1",
                  "FREQUENZA PIU' ALTA E DELLE TRAPPOLE in MHz",
                  {.range = frequencies, .prompt_name = "Label1"}};
  ui::Input txtf2{this,
                  "txtf2",
                  "FREQUENZA PIU' BASSA in MHz",
                  {.range = frequencies, .prompt_name = "Label2"}};
  ui::List cmbcavo{this, "cmbcavo", "CAVO COASSIALE"};
  ui::Input txtsupporto{this,
                        "txtsupporto",
                        "DIAMETRO ESTERNO DEL SUPPORTO in mm",
                        {.range = {{1, 500}}, .prompt_name = "Label4"}};
  ui::Input txtdiametro{
      this, "txtdiametro", "DIAMETRO DEL FILO in mm", {.range = any, .prompt_name = "Label5"}};
  ui::Frame Frame1{this, "Frame1", "USCITA DELLA TRAPPOLA"};
  ui::OptionArray Option1{
      Frame1,
      "Option1",
      {"SUL CONDUTTORE CENTRALE (ALTA IMPEDENZA)", "SULLA CALZA (BASSA IMPEDENZA)"}};
  ui::Schematic drawing{this, "drawing", 46, 31};
  ui::Schematic drawing2{this, "drawing2", 46, 31};
  ui::Value lbltratto1{drawing, "lbltratto1"};
  ui::Value lbltratto2{drawing, "lbltratto2"};
  ui::Result lblspire{this, "lblspire"};
  ui::Result lblcavo{this, "lblcavo"};
  ui::Result lblavvolgimento{this, "lblavvolgimento"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lbltotale{this, "lbltotale"};
  ui::Note Label7{
      this, "Label7",
      "SPIRE SERRATE. IL CENTRALE DELL'INIZIO VA UNITO ALLA CALZA DELLA FINE; IL FILO INTERNO ALLA "
      "CALZA DELL'INIZIO. AGGIUNGERE AL CAVO LE CODE PER LE SALDATURE E TARARE SPAZIANDO LE ULTIME "
      "SPIRE"};
  ui::Button cmdavviso{this, "cmdavviso", "AVVERTENZA"};

 public:
  frmantcoaxmulti()
      : DipoleWindow{"frmantcoaxmulti", "DIPOLO PER DUE BANDE CON TRAPPOLE IN CAVO COASSIALE"} {
    open_warning_by(cmdavviso);
    cmbcavo.offer(trap_cables());
    cmbcavo.name_prompt("Label3");
    Frame1.arrange(Option1);
    lay_out(ui::column(ui::row(ui::column(ui::form(txtf1, txtf2, cmbcavo, txtsupporto, txtdiametro),
                                          Frame1, lblspire, lblcavo, lblavvolgimento, lblinduttanza,
                                          lblcapacita, lbltotale, ui::stretch()),
                               ui::column(ui::alternatives(drawing, drawing2), ui::stretch())),
                       Label7),
            {&cmdavviso});

    Option1.preset(0);
    draw(TrapOutput::inner_conductor);
    Option1.on_click(
        [this](int index) { draw(index == 0 ? TrapOutput::inner_conductor : TrapOutput::joint); });
  }

  void show_example() override { fill_in({"7.05", "3.65", "40", "2"}); }

 private:
  void draw(TrapOutput output) {
    const bool is_inner = output == TrapOutput::inner_conductor;
    ui::Schematic& shown = is_inner ? drawing : drawing2;
    show_one(shown, is_inner ? drawing2 : drawing, {&lbltratto1, &lbltratto2});
    draw_half_dipole(shown);
    draw_winding(shown, output);
  }

  void draw_half_dipole(ui::Schematic& shown) {
    constexpr double wire = 5.5;
    constexpr double middle = 3;
    constexpr double trap = 22;
    constexpr double tip = 44;
    constexpr double half_width = 1.5;
    constexpr double half_height = 1;
    shown.terminal({middle - 0.4, wire})
        .rod({{middle, wire}, {trap - half_width, wire}})
        .box({trap - half_width, wire - half_height}, {trap + half_width, wire + half_height})
        .rod({{trap + half_width, wire}, {tip, wire}});
    draw_length(shown, {middle, wire}, {trap - half_width, wire}, 2.8, lbltratto1);
    draw_length(shown, {trap + half_width, wire}, {tip, wire}, 2.8, lbltratto2);
    // Seen larger below.
    shown.extension({trap - half_width, wire + half_height + 0.3}, {11, 14})
        .extension({trap + half_width, wire + half_height + 0.3}, {37, 14});
  }

  /// The cable on its form, both ends below it, where lines go from the shield and from the inner
  /// conductor.
  static void draw_winding(ui::Schematic& shown, TrapOutput output) {
    using enum ui::Schematic::Side;
    constexpr double top = 14;
    constexpr double bottom = 22;
    constexpr double first = 15;
    constexpr double pitch = 3;
    constexpr int turns = 6;
    constexpr double last = first + pitch * turns;
    constexpr double half_cable = 0.9;
    constexpr double shield = bottom + 1.6;  // where wires meet it
    constexpr double cut = bottom + 2.6;
    constexpr double joint = 27.6;
    constexpr double outer_wire = 45;
    shown.box({first - 4, top + 0.5}, {last + 4, bottom - 0.5});
    for (int turn = 0; turn < turns; ++turn) {
      const double x = first + pitch * turn;
      shown.shaded({{x - half_cable, bottom},
                    {x + pitch - half_cable, top},
                    {x + pitch + half_cable, top},
                    {x + half_cable, bottom}});
    }
    for (const double end : {first, last}) {
      shown.shaded_box({end - half_cable, bottom}, {end + half_cable, cut});
    }
    shown.wire({{1, shield}, {first - half_cable, shield}})
        .mark({6.5, shield}, "FILO INTERNO", below);
    shown
        .wire({{first, cut},
               {first, joint},
               {last - 3.5, joint},
               {last - 3.5, shield},
               {last - half_cable, shield}})
        .junction({first - half_cable, shield})
        .junction({last - half_cable, shield});
    if (output == TrapOutput::inner_conductor) {
      shown.wire({{last, cut}, {last, cut + 1.4}, {outer_wire, cut + 1.4}})
          .mark({39.7, cut + 1.4}, "FILO ESTERNO", below);
    } else {
      shown.wire({{last, cut}, {last, cut + 1}})
          .wire({{last - 3.5, joint}, {outer_wire, joint}})
          .junction({last - 3.5, joint})
          .mark({39.7, joint}, "FILO ESTERNO", below);
    }
  }

  void compute() override {
    const Real high_mhz = txtf1.value();
    const Real low_mhz = txtf2.value();
    const TrapCable& cable = cmbcavo.chosen_of(trap_cables());
    const Real form_mm = txtsupporto.value();
    const TrapOutput output =
        Option1.selected() == 0 ? TrapOutput::inner_conductor : TrapOutput::joint;
    require_thin(txtdiametro, {high_mhz, low_mhz});
    require(reaches(0.9 * high_mhz, low_mhz), txtf2,
            "LA SECONDA FREQUENZA DEVE ESSERE ALMENO IL 10 % PIU' BASSA");
    require(reaches(form_mm, 3 * cable.diameter_mm), txtsupporto,
            "SUPPORTO TROPPO STRETTO PER QUESTO CAVO");
    constexpr double least_turns = 2;
    require(coax_trap_hz(cable, form_mm, least_turns) >= high_mhz * 1e6, txtsupporto,
            "SUPPORTO TROPPO GRANDE: MENO DI 2 SPIRE");
    const CoaxTrap trap = coax_trap(cable, form_mm, high_mhz, output);
    const Real inner_m = half_wave_arm_m({high_mhz, txtdiametro.value()});
    const Real reactance_ohm = trap_reactance_ohm(low_mhz, high_mhz, trap.inductance_h);
    const std::optional<Real> outer_m =
        OuterSection{std::array{inner_m}, {low_mhz, txtdiametro.value()}}.length_m(
            std::array{reactance_ohm});
    advise(outer_m.has_value(), txtsupporto,
           "LA TRAPPOLA CARICA TROPPO: COLLEGARE L'USCITA ALLA CALZA O RIDURRE IL SUPPORTO");

    lblspire = "SPIRE = " + fixed(trap.turns, 1);
    lblcavo = "CAVO PER OGNI TRAPPOLA = " + fixed(100 * trap.cable_m, 0) + " cm.";
    lblavvolgimento = "LUNGHEZZA DELL'AVVOLGIMENTO = " + fixed(1000 * trap.winding_m, 0) + " mm";
    lblinduttanza = "INDUTTANZA AI CAPI = " + fixed(trap.inductance_h * 1e6, 2) + " uH";
    lblcapacita = "CAPACITA' AI CAPI = " + fixed(trap.capacitance_f * 1e12, 1) + " pF";
    lbltratto1 = metres_text(inner_m);
    lbltratto2 = metres_text(*outer_m);
    lbltotale = "LUNGHEZZA TOTALE = " + metres_text(2 * (inner_m + *outer_m));
  }
};

const ui::Registration<frmantcoaxmulti> registration{"frmantcoaxmulti"};

}  // namespace

}  // namespace eterlab::antennas
