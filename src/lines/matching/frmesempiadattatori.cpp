#include <string>

#include "common/number_text.h"
#include "lines/matching/usual_sections.h"
#include "lines/section_window.h"
#include "ui/result_table.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

// The matching sections that amateurs build most, with the lengths to cut.
class frmesempiadattatori final : public ui::Calculator {
  enum Column { load, section, length, input_impedance, swr };

  ui::Input txtfrequenza = section_frequency_input(this);
  ui::Input txtvelocita{
      this,
      "txtvelocita",
      "FATTORE DI VELOCITA' DEI CAVI",
      {.holds = "0.66", .range = section_velocity_range, .prompt_name = "Label2"}};
  ui::Schematic drawing{this, "drawing", 56, 9};
  ui::ResultTable Table{this,
                        "Table",
                        static_cast<int>(usual_sections().size()),
                        {{"lblcaso", "CASO", ui::ResultTable::Kind::text},
                         {"lbltratto", "TRATTO DI ADATTAMENTO", ui::ResultTable::Kind::text},
                         {"lbllunghezza", "LUNGHEZZA"},
                         {"lblzin", "Z INGRESSO", ui::ResultTable::Kind::number},
                         {"lblros", "ROS", ui::ResultTable::Kind::number}}};
  ui::Note Label3{this, "Label3",
                  "LUNGHEZZE DAL CARICO VERSO LA LINEA. CAVI IN PARALLELO: CENTRALI UNITI E CALZE "
                  "UNITE AI DUE CAPI. IN SERIE: SI USANO I DUE CENTRALI, CALZE UNITE FRA LORO. IN "
                  "COPPIA SERVE LO STESSO FATTORE DI VELOCITA'"};
  ui::CompanionButton cmdchiamacavi{*this, "cmdchiamacavi", "CAVI COASSIALI", cable_catalogue};

 public:
  frmesempiadattatori()
      : Calculator{"frmesempiadattatori", "ESEMPI DI ADATTATORI CON TRATTI DI CAVO",
                   Computes::as_typed} {
    name_hint("Label20");
    draw();
    list_sections();
    lay_out(
        ui::column(ui::row(ui::column(ui::form(txtfrequenza, txtvelocita), ui::stretch()), drawing),
                   Table, Label3),
        {&cmdchiamacavi});
  }

  void show_example() override { fill_in({"145", "0.66"}); }

 private:
  void draw() {
    constexpr double middle = 3;
    constexpr double half_height = 2;
    constexpr double below = 7;
    constexpr double load_end = 9;
    constexpr double between = 28;
    constexpr double line = 47;
    for (const double half_gap : {-0.8, 0.8}) {
      drawing.wire({{load_end, middle + half_gap}, {line, middle + half_gap}});
    }
    drawing.box({0.5, middle - half_height}, {load_end, middle + half_height})
        .named("CARICO", Side::centre)
        .box({line, middle - half_height}, {55.5, middle + half_height})
        .named("LINEA", Side::centre)
        .wire({{between, middle - half_height}, {between, middle + half_height}});
    for (const double end : {load_end, between, line}) {
      drawing.extension({end, middle + half_height}, {end, below + 0.5});
    }
    drawing.dimension({load_end, below}, {between, below})
        .mark({(load_end + between) / 2, below}, "TRATTO 1", Side::above)
        .dimension({between, below}, {line, below})
        .mark({(between + line) / 2, below}, "TRATTO 2", Side::above);
  }

  void list_sections() {
    int row = 0;
    for (const UsualSection& usual : usual_sections()) {
      Table.at(row, load) = usual.load;
      Table.at(row, section) = usual.section;
      Table.at(row, input_impedance) = ohms(usual.input_impedance_ohm());
      Table.at(row, swr) = fixed(usual.swr(), 2);
      ++row;
    }
    Table.wrap(load, 31);
    Table.wrap(section, 39);
    Table.reserve(length, "2.914,2 + 555,0 cm.");
  }

  void compute() override {
    const auto frequency_mhz = txtfrequenza.usable();
    const auto velocity_factor = txtvelocita.usable();
    if (!frequency_mhz || !velocity_factor) {
      return;
    }
    const Real wavelength_m = wavelength_in_line_m(*frequency_mhz, *velocity_factor);
    int row = 0;
    for (const UsualSection& usual : usual_sections()) {
      std::string lengths;
      for (const LineSection& piece : usual.matched.sections) {
        lengths += (lengths.empty() ? "" : " + ") +
                   fixed(100 * wavelength_m * (piece.angle / (2 * pi)), 1);
      }
      Table.at(row++, length) = lengths + " cm.";
    }
  }
};

const ui::Registration<frmesempiadattatori> registration{"frmesempiadattatori"};

}  // namespace

}  // namespace eterlab::lines
