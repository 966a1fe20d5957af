#include <string>

#include "common/number_text.h"
#include "lines/baluns/two_cable_balun.h"
#include "lines/line_section.h"
#include "lines/section_window.h"
#include "lines/standing_wave.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

// Two cables that feed the sides of a balanced antenna in opposite phase.
class frmbaluncoax3quarti final : public LineWindow {
  ui::Input txtfrequenza = section_frequency_input(this);
  ui::Input txtr{this,
                 "txtr",
                 "IMPEDENZA DELL'ANTENNA in OHM",
                 {.range = section_impedance_range_ohm, .prompt_name = "Label2"}};
  ui::Input txtz0{this,
                  "txtz0",
                  "IMPEDENZA DELLA LINEA in OHM",
                  {.range = section_impedance_range_ohm, .prompt_name = "Label3"}};
  ui::Input txtvelocita{
      this,
      "txtvelocita",
      "FATTORE DI VELOCITA' DEI DUE CAVI",
      {.holds = "0.66", .range = section_velocity_range, .prompt_name = "Label4"}};
  ui::Schematic drawing{this, "drawing", 52, 30};
  ui::Value lbl14{drawing, "lbl14"};
  ui::Value lbl34{drawing, "lbl34"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lblcavo{this, "lblcavo"};
  ui::Result lblzin{this, "lblzin"};
  ui::Result lblros{this, "lblros"};
  ui::Result lblcorto{this, "lblcorto"};
  ui::Result lbllungo{this, "lbllungo"};
  ui::Note Label5{this, "Label5",
                  "LE CALZE DEI DUE CAVI VANNO UNITE AI DUE CAPI. BANDA CON ROS 1,5 : CIRCA 8 PER "
                  "CENTO SOPRA E SOTTO"};
  ui::CompanionButton cmdchiamacavi{*this, "cmdchiamacavi", "CAVI COASSIALI", cable_catalogue};

 public:
  frmbaluncoax3quarti()
      : LineWindow{"frmbaluncoax3quarti", "BALUN CON DUE CAVI DA 1/4 E 3/4 D'ONDA"} {
    draw();
    lay_out(ui::column(
                ui::row(ui::column(ui::form(txtfrequenza, txtr, txtz0, txtvelocita), lblimpedenza,
                                   lblcavo, lblzin, lblros, lblcorto, lbllungo, ui::stretch()),
                        drawing),
                Label5),
            {&cmdchiamacavi}, 119);
  }

  void show_example() override { fill_in({"145", "50", "50", "0.66"}); }

 private:
  void draw() {
    constexpr double line = 13;
    constexpr ui::CoaxialCable feed{{0.5, line}, {10, line}};
    constexpr ui::CoaxialCable quarter{{14, 6}, {40, 6}};
    constexpr double fork = 14;
    constexpr double antenna = 48;
    drawing.coaxial_cable(feed)
        .mark({5, line - 1}, "LINEA", Side::above)
        .wire({feed.to, {fork, line}})
        .junction({fork, line})
        .wire({{fork, quarter.from.y}, {fork, long_end}})
        .coaxial_cable(quarter)
        .label(lbl14, {(quarter.from.x + quarter.to.x) / 2, quarter.from.y - 1}, Side::above);
    drawing
        .mark({(quarter.from.x + quarter.to.x) / 2, quarter.from.y + 1}, "1/4 D'ONDA", Side::below)
        .mark({(fork + quarter.to.x) / 2, 27 + braid}, "3/4 D'ONDA", Side::below);
    draw_long_cable(fork, quarter.to.x);
    constexpr double upper_feed = 10;
    constexpr double lower_feed = 16;
    drawing.wire({quarter.to, {44, quarter.to.y}, {44, upper_feed}, {antenna, upper_feed}})
        .rod({{antenna, upper_feed}, {antenna, 1}})
        .wire({{quarter.to.x, long_end}, {quarter.to.x, lower_feed}, {antenna, lower_feed}})
        .rod({{antenna, lower_feed}, {antenna, 25}});
    join_braids(17, fork + braid, {feed.screen_to.x, line + 4});
    drawing.wire({feed.screen_to, {feed.screen_to.x, line + 4}});
    join_braids(36, quarter.to.x - braid, {33, line + 4});
  }

  /// As a loop below.
  void draw_long_cable(double from, double to) {
    constexpr double bottom = 27;
    for (const double side : {-braid, braid}) {
      drawing.wire({{from - side, long_end + 1},
                    {from - side, bottom + side},
                    {to + side, bottom + side},
                    {to + side, long_end + 1}});
    }
    for (const double end : {from, to}) {
      drawing.wire({{end - braid, long_end + 1}, {end + braid, long_end + 1}})
          .wire({{end, long_end}, {end, long_end + 1}});
    }
    drawing.label(lbl34, {(from + to) / 2, bottom - braid}, Side::above);
  }

  /// Of both cables at one end, and to the ground.
  void join_braids(double across, double long_braid, ui::At ground) {
    constexpr double short_braid = 6 + braid;
    constexpr double joined = long_end + 2.5;
    drawing.junction({across, short_braid})
        .wire({{across, short_braid}, {across, joined}, {long_braid, joined}})
        .junction({long_braid, joined})
        .wire({{across, ground.y}, ground})
        .junction({across, ground.y})
        .ground(ground);
  }

  void compute() override {
    constexpr double greatest_swr = 2;
    const Real line_ohm = txtz0.value();
    const TwoCableBalun balun = two_cable_balun(txtr.value(), line_ohm);
    const Real swr = standing_wave_ratio(balun.input_ohm, line_ohm);
    advise(swr <= greatest_swr, txtr, "NESSUN CAVO DA 50, 75 O 93 Ohm ADATTA QUESTA ANTENNA");
    const Real quarter_m = wavelength_in_line_m(txtfrequenza.value(), txtvelocita.value()) / 4;
    const std::string quarter = centimetres(quarter_m);
    const std::string three_quarters = centimetres(3 * quarter_m);
    lblimpedenza = "IMPEDENZA IDEALE DEI DUE CAVI = " + ohms(balun.impedance_ohm);
    lblcavo = "CAVO PIU' VICINO : " + std::string{balun.cable->name};
    lblzin = "IMPEDENZA ALL'INGRESSO = " + ohms(balun.input_ohm);
    lblros = "ROS SULLA LINEA = " + fixed(swr, 2);
    lblcorto = "CAVO CORTO 1/4 D'ONDA = " + quarter;
    lbllungo = "CAVO LUNGO 3/4 D'ONDA = " + three_quarters;
    lbl14 = quarter;
    lbl34 = three_quarters;
  }

  // On the drawing
  static constexpr double long_end = 18;
  static constexpr double braid = ui::CoaxialCable::half_thickness;
};

const ui::Registration<frmbaluncoax3quarti> registration{"frmbaluncoax3quarti"};

}  // namespace

}  // namespace eterlab::lines
