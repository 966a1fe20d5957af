#include "antennas/dipoles/dipole_drawing.h"
#include "antennas/dipoles/dipole_window.h"
#include "antennas/dipoles/linear_trap_dipole.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A dipole for two bands without coils or capacitors: stubs of two-wire line are its traps.
class frmtrappolalineare final : public DipoleWindow {
  ui::Schematic drawing{this, "drawing", 78, 15};
  ui::Value lbltratto1{drawing, "lbltratto1"};
  ui::Value lblcorto{drawing, "lblcorto"};
  ui::Value lbltratto2{drawing, "lbltratto2"};
  ui::Input txtf1{
      this, "txtf1", "FREQUENZA PIU' ALTA in MHz", {.range = frequencies, .prompt_name = "Label1"}};
  ui::Input txtf2{this,
                  "txtf2",
                  "FREQUENZA PIU' BASSA in MHz",
                  {.range = frequencies, .prompt_name = "Label2"}};
  ui::List cmblinea{this, "cmblinea", "LINEA BIFILARE"};
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEL FILO ESTERNO in mm",
                        {.range = any, .prompt_name = "Label4"}};
  ui::Result lbllinea{this, "lbllinea"};
  ui::Result lblponte{this, "lblponte"};
  ui::Result lblesterno{this, "lblesterno"};
  ui::Result lbltotale{this, "lbltotale"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Note Label7{this, "Label7",
                  "AL CENTRO E AL PONTICELLO I DUE CONDUTTORI DELLA LINEA SONO UNITI; "
                  "ALL'ESTREMITA' ESTERNA UNO SI FERMA ISOLATO E L'ALTRO PROSEGUE"};
  ui::Button cmdavviso{this, "cmdavviso", "AVVERTENZA"};

 public:
  frmtrappolalineare()
      : DipoleWindow{"frmtrappolalineare", "DIPOLO PER DUE BANDE CON TRAPPOLE LINEARI"} {
    open_warning_by(cmdavviso);
    cmblinea.offer(ladder_lines());
    cmblinea.name_prompt("Label3");
    draw();
    lay_out(ui::column(ui::row(ui::stretch(), drawing, ui::stretch()),
                       ui::row(ui::form(txtf1, txtf2, cmblinea, txtdiametro), ui::stretch()),
                       lbllinea, lblponte, lblesterno, lbltotale, lblreattanza, Label7),
            {&cmdavviso});
  }

  void show_example() override {
    cmblinea.choose(1);
    fill_in({"7.1", "3.65", "2"});
  }

 private:
  void draw() {
    constexpr double upper = 6;
    constexpr double lower = 7.6;
    constexpr double middle = 39;
    constexpr double bridge = 9;  // from the middle
    constexpr double line = 22;
    constexpr double half = 36;
    constexpr double dimension = 3;
    for (const double side : {-1.0, 1.0}) {
      const auto at = [&](double distance, double y) {
        return ui::At{middle + side * distance, y};
      };
      drawing.wire({at(half_feed_gap, upper), at(half, upper)})
          .wire({at(half_feed_gap, upper), at(half_feed_gap, lower), at(line, lower)})
          .wire({at(bridge, upper), at(bridge, lower)})
          .junction(at(bridge, upper))
          .junction(at(bridge, lower))
          .junction(at(line, lower));
    }
    draw_feeder(drawing, {middle, lower}, 14.5);
    draw_length(drawing, {middle, upper}, {middle + line, upper}, dimension, lbltratto1);
    draw_length(drawing, {middle + bridge, lower}, {middle + line, lower}, lower + 3, lblcorto);
    drawing.extension({middle + half, upper - 0.8}, {middle + half, dimension - 0.6})
        .dimension({middle + line, dimension}, {middle + half, dimension})
        .label(lbltratto2, {middle + (line + half) / 2, dimension}, ui::Schematic::Side::above);
  }

  void compute() override {
    const Real high_mhz = txtf1.value();
    const Real low_mhz = txtf2.value();
    const LadderLine& line = cmblinea.chosen_of(ladder_lines());
    require_thin(txtdiametro, {high_mhz, low_mhz});
    require(reaches(0.9 * high_mhz, low_mhz), txtf2,
            "LA SECONDA FREQUENZA DEVE ESSERE ALMENO IL 10 % PIU' BASSA");
    advise(suits_linear_trap(line, high_mhz), cmblinea, "LINEA NON ADATTA A QUESTA FREQUENZA");
    const LinearTrapDipole dipole =
        linear_trap_dipole(line, high_mhz, low_mhz, txtdiametro.value());
    advise(dipole.outer_m >= 0.05 * dipole.line_m, txtf2, "BANDE TROPPO VICINE PER QUESTA LINEA");

    lbltratto1 = metres_text(dipole.line_m);
    lblcorto = metres_text(dipole.bridge_m);
    lbltratto2 = metres_text(dipole.outer_m);
    lbllinea = "LINEA PER OGNI BRACCIO = " + lbltratto1.content();
    lblponte = "PONTICELLO A " + lblcorto.content() + " DALL'ESTREMITA' ESTERNA DELLA LINEA";
    lblesterno = "FILO ESTERNO = " + lbltratto2.content();
    lbltotale = "LUNGHEZZA TOTALE = " + metres_text(2 * (dipole.line_m + dipole.outer_m));
    lblreattanza =
        "REATTANZA DELLA TRAPPOLA SULLA BANDA BASSA = " + fixed(dipole.trap_reactance_ohm, 0) +
        " Ohm";
  }
};

const ui::Registration<frmtrappolalineare> registration{"frmtrappolalineare"};

}  // namespace

}  // namespace eterlab::antennas
