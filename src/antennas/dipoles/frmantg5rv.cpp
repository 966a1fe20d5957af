#include <array>
#include <cstddef>

#include "antennas/dipoles/dipole_drawing.h"
#include "antennas/dipoles/dipole_window.h"
#include "antennas/dipoles/g5rv.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

constexpr ui::Range design_frequencies{.lowest = 7, .highest = 30};
constexpr std::array<double, 8> bands_mhz{3.65, 7.1, 10.125, 14.175, 18.118, 21.225, 24.94, 28.5};

// The doublet of three half waves, and what its coaxial cable sees on eight bands.
class frmantg5rv final : public DipoleWindow {
  ui::Input txtfrequenza{
      this,
      "txtfrequenza",
      "FREQUENZA DELLE TRE MEZZE ONDE in MHz",
      {.tooltip = "14.15 per l'antenna originale, 28.3 per la versione ridotta a metà",
       .holds = "14.15",
       .range = design_frequencies,
       .prompt_name = "Label1"}};
  ui::List cmblinea{this, "cmblinea", "LINEA BIFILARE"};
  ui::Input txtdiametro{
      this, "txtdiametro", "DIAMETRO DEL FILO in mm", {.range = any, .prompt_name = "Label3"}};
  ui::Frame Frame1{this, "Frame1", "DISCESA"};
  ui::OptionArray Option1{Frame1, "Option1", {"COASSIALE 50 OHM", "COASSIALE 75 OHM"}};
  ui::Result lblantenna{this, "lblantenna"};
  ui::Result lblbraccio{this, "lblbraccio"};
  ui::Result lbllinea{this, "lbllinea"};
  ui::Schematic drawing{this, "drawing", 39, 27};
  ui::Value lbltratto1{drawing, "lbltratto1"};
  ui::Value lbltratto2{drawing, "lbltratto2"};
  ui::Value lbltratto3{drawing, "lbltratto3"};
  ui::ResultTable table{
      this,
      "table",
      static_cast<int>(bands_mhz.size()),
      {{.name = "lblf",
        .head = "BANDA",
        .kind = ui::ResultTable::Kind::number,
        .head_name = "Label10"},
       {.name = "lblzant", .head = "Z AL CENTRO Ohm", .head_name = "Label11"},
       {.name = "lblzlinea", .head = "Z A FINE LINEA Ohm", .head_name = "Label12"},
       {.name = "lblros", .head = "ROS", .head_name = "Label13"}}};
  ui::Note Label7{this, "Label7",
                  "DOVE IL ROS SUPERA 3 OCCORRE L'ACCORDATORE, MEGLIO CON LA LINEA BIFILARE FINO "
                  "ALLA STAZIONE"};

 public:
  frmantg5rv() : DipoleWindow{"frmantg5rv", "ANTENNA G5RV"} {
    cmblinea.offer(ladder_lines());
    cmblinea.name_prompt("Label2");
    Option1.preset(0);
    for (std::size_t band = 0; band < bands_mhz.size(); ++band) {
      table.at(static_cast<int>(band), 0) = plain(bands_mhz[band]) + " MHz";
    }
    table.reserve(1, "12.345 - j12.345");
    table.reserve(2, "12.345 - j12.345");
    table.reserve(3, "OLTRE 20");
    draw();
    Frame1.arrange(ui::across(Option1));
    lay_out(ui::column(ui::row(ui::column(ui::form(txtfrequenza, cmblinea, txtdiametro), Frame1,
                                          lblantenna, lblbraccio, lbllinea, ui::stretch()),
                               drawing),
                       table, Label7));
  }

  void show_example() override {
    cmblinea.choose(1);
    fill_in({"14.15", "2"});
  }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double wire = 5.5;
    constexpr double middle = 19.5;
    constexpr double half = 16.5;
    constexpr double dimension = 3;
    constexpr double line_end = 17;
    constexpr double choke_end = 22;
    constexpr double bottom = 26.5;
    for (const double side : {-1.0, 1.0}) {
      const auto at = [&](double distance, double y) {
        return ui::At{middle + side * distance, y};
      };
      drawing.rod({at(half_feed_gap, wire), at(half, wire)})
          .wire({at(half_feed_gap, wire), at(half_feed_gap, line_end)})
          .wire({at(half_feed_gap, line_end), at(half_feeder, line_end + 1)})
          .terminal(at(half + 0.4, wire));
    }
    drawing.box({middle - half_feeder, line_end + 1}, {middle + half_feeder, line_end + 1.9});
    drawing.winding({middle, line_end + 1.9}, {middle, choke_end}, 3.4, 4);
    drawing.box({middle - half_feeder, choke_end}, {middle + half_feeder, bottom});
    draw_length(drawing, {middle - half, wire}, {middle, wire}, dimension, lbltratto1);
    drawing.extension({middle + half, wire - 0.8}, {middle + half, dimension - 0.6})
        .dimension({middle, dimension}, {middle + half, dimension})
        .label(lbltratto2, {middle + half / 2, dimension}, above);
    constexpr double beside = middle + 5;
    drawing.extension({middle + half_feed_gap + 0.8, line_end}, {beside + 0.6, line_end})
        .dimension({beside, wire + 0.3}, {beside, line_end})
        .label(lbltratto3, {beside, (wire + line_end) / 2}, right);
    drawing.mark({middle + 2.5, (line_end + 2 + choke_end) / 2}, "BALUN IN CAVO", right);
  }

  void compute() override {
    require_thin(txtdiametro, {design_frequencies.highest});
    const G5rv antenna =
        g5rv(txtfrequenza.value(), txtdiametro.value(), cmblinea.chosen_of(ladder_lines()));
    const Real coax_ohm = Option1.selected() == 0 ? 50 : 75;

    lbltratto1 = metres_text(antenna.antenna_m / 2);
    lbltratto2 = lbltratto1.content();
    lbltratto3 = metres_text(antenna.line_m);
    lblantenna = "LUNGHEZZA DELL'ANTENNA = " + metres_text(antenna.antenna_m);
    lblbraccio = "OGNI BRACCIO = " + lbltratto1.content();
    lbllinea = "LUNGHEZZA DELLA LINEA = " + lbltratto3.content();
    int row = 0;
    for (const double band_mhz : bands_mhz) {
      const Complex centre_ohm = antenna.centre_impedance_ohm(band_mhz);
      const Complex line_ohm = antenna.line_impedance_ohm(centre_ohm, band_mhz);
      table.at(row, 1) = impedance_text(centre_ohm);
      table.at(row, 2) = impedance_text(line_ohm);
      table.at(row, 3) = standing_wave_text(line_ohm, coax_ohm);
      ++row;
    }
  }
};

const ui::Registration<frmantg5rv> registration{"frmantg5rv"};

}  // namespace

}  // namespace eterlab::antennas
