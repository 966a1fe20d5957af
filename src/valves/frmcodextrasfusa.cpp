#include <algorithm>
#include <array>
#include <set>
#include <span>
#include <string_view>
#include <vector>

#include "ui/schematic.h"
#include "ui/ui.h"
#include "valves/lead_colours.h"

namespace eterlab::valves {

namespace {

using Side = ui::Schematic::Side;

constexpr int most_leads = 14;

/// A coil on the drawing and the colours at its ends, or at its ends and its tap between them, from
/// the top.
struct Coil {
  Side side;
  std::string_view name;
  std::vector<std::string_view> colours;
};

// Which lead is which in American radios.
class frmcodextrasfusa final : public ui::Calculator {
  ui::List cmbtipo{this, "cmbtipo", "TIPO"};
  ui::ResultTable table{this,
                        "table",
                        most_leads,
                        {{"lblfilo", "TERMINALE", ui::ResultTable::Kind::text},
                         {"lblcolore", "COLORE", ui::ResultTable::Kind::text},
                         {"lblinglese", "IN INGLESE", ui::ResultTable::Kind::text}}};
  ui::Schematic drawing{this, "drawing", 96, 30};
  ui::Note Label5{this, "Label5",
                  "IL SECONDO COLORE E' IL FILETTO. NON TUTTI I COSTRUTTORI SEGUONO IL CODICE: "
                  "CONTROLLARE CON L'OHMMETRO PRIMA DI DARE TENSIONE."};
  ui::Note Label6{this, "Label6",
                  "SE LA POLARITA' NON IMPORTA, NEL PUSH-PULL IL BLU PUO' SOSTITUIRE IL MARRONE E "
                  "IL VERDE IL GIALLO."};

 public:
  frmcodextrasfusa()
      : Calculator{"frmcodextrasfusa", "CODICE U.S.A. DEI COLORI DEI TRASFORMATORI",
                   Computes::as_typed} {
    name_exit("cmdchiudi", "CHIUDI");
    cmbtipo.offer(lead_colours());
    reserve_columns();
    lay_out(ui::column(ui::row(ui::form(cmbtipo), ui::stretch()), table, drawing, Label5, Label6));
  }

 private:
  enum Part : int { power, audio, intermediate_frequency, loudspeaker };

  static constexpr double coil_length = 4.8;
  static constexpr double between_coils = 2.8;
  static constexpr double centre_x = 48;
  static constexpr double middle_y = 15;

  /// The columns keep their width from one part to the other.
  void reserve_columns() const {
    std::array<std::set<std::string_view>, 3> texts;
    for (const LeadColours& part : lead_colours()) {
      for (const Lead& lead : part.leads) {
        texts[0].insert(lead.name);
        texts[1].insert(lead.colour);
        texts[2].insert(lead.english);
      }
    }
    for (int column = 0; const auto& texts_of_column : texts) {
      const auto longest = std::ranges::max(texts_of_column, {}, &std::string_view::size).size();
      for (const std::string_view text : texts_of_column) {
        if (text.size() > longest * 9 / 10) {  // no shorter one is the widest
          table.reserve(column, text);
        }
      }
      ++column;
    }
  }

  void compute() override {
    const LeadColours& part = cmbtipo.chosen_of(lead_colours());
    for (int row = 0; row < most_leads; ++row) {
      const bool is_there = row < static_cast<int>(part.leads.size());
      const Lead lead = is_there ? part.leads[static_cast<std::size_t>(row)] : Lead{};
      table.at(row, 0) = lead.name;
      table.at(row, 1) = lead.colour;
      table.at(row, 2) = lead.english;
    }
    drawing.clear();
    draw(static_cast<Part>(cmbtipo.chosen()), part.leads);
  }

  void draw(Part part, std::span<const Lead> leads) {
    const auto colour = [leads](std::size_t row) { return leads[row].colour; };
    const auto tapped = [&colour](std::size_t row) {
      return std::vector{colour(row), colour(row + 1), colour(row)};
    };
    switch (part) {
      case power:
        draw_core(4);
        draw_coils({{Side::left, "PRIMARIO", {colour(0), colour(0)}},
                    {Side::left, "PRIMARIO CON PRESE", {colour(3), colour(2), colour(1)}},
                    {Side::left, "ALTA TENSIONE", tapped(4)},
                    {Side::right, "RADDRIZZATRICE", tapped(6)},
                    {Side::right, "FILAMENTI N. 1", tapped(8)},
                    {Side::right, "FILAMENTI N. 2", tapped(10)},
                    {Side::right, "FILAMENTI N. 3", tapped(12)}});
        break;
      case audio:
        draw_core(2);
        draw_coils({{Side::left, "PRIMARIO", {colour(0), colour(1), colour(2)}},
                    {Side::right, "SECONDARIO", {colour(3), colour(4), colour(5)}},
                    {Side::right, "USCITA", {colour(6), colour(7)}}});
        break;
      case intermediate_frequency:
        draw_coils({{Side::left, "PRIMARIO", {colour(0), colour(1)}},
                    {Side::right, "SECONDARIO", {colour(2), colour(3), colour(4)}}});
        break;
      case loudspeaker:
        draw_loudspeaker(colour(0), colour(1));
        draw_coils({{Side::right, "BOBINA DI CAMPO", {colour(2), colour(4), colour(3)}}});
        break;
    }
  }

  /// As long as so many coils.
  void draw_core(int coils) {
    const double half = stack(coils) / 2;
    for (const double x : {centre_x - 0.25, centre_x + 0.25}) {
      drawing.wire({{x, middle_y - half}, {x, middle_y + half}});
    }
  }

  static double stack(int coils) { return coils * coil_length + (coils - 1) * between_coils; }

  /// Those of each side under each other.
  void draw_coils(const std::vector<Coil>& coils) {
    for (const Side side : {Side::left, Side::right}) {
      const auto count = std::ranges::count(coils, side, &Coil::side);
      double top = middle_y - stack(static_cast<int>(count)) / 2;
      for (const Coil& coil : coils) {
        if (coil.side == side) {
          draw_coil(coil, top);
          top += coil_length + between_coils;
        }
      }
    }
  }

  void draw_coil(const Coil& coil, double top) {
    const double outwards = coil.side == Side::left ? -1 : 1;
    const double coil_x = centre_x + 2.2 * outwards;
    const double bottom = top + coil_length;
    if (coil.side == Side::left) {
      drawing.inductor({coil_x, top}, {coil_x, bottom});
    } else {
      drawing.inductor({coil_x, bottom}, {coil_x, top});
    }
    const double between_leads = coil_length / static_cast<double>(coil.colours.size() - 1);
    double y = top;
    for (const std::string_view colour : coil.colours) {
      draw_lead({coil_x, y}, coil.side, colour);
      y += between_leads;
    }
    drawing.mark({centre_x + 36 * outwards, top + coil_length / 2}, coil.name);
  }

  void draw_lead(ui::At from, Side side, std::string_view colour) {
    const ui::At end{centre_x + (side == Side::left ? -6.5 : 6.5), from.y};
    drawing.wire({from, end}).terminal(end).named(colour, side);
  }

  void draw_loudspeaker(std::string_view upper, std::string_view lower) {
    constexpr double half = coil_length / 2;
    constexpr double speaker_x = centre_x - 4;
    drawing.loudspeaker({speaker_x, middle_y - half}, {speaker_x, middle_y + half});
    draw_lead({speaker_x, middle_y - half}, Side::left, upper);
    draw_lead({speaker_x, middle_y + half}, Side::left, lower);
    drawing.mark({centre_x - 36, middle_y}, "BOBINA MOBILE");
  }
};

const ui::Registration<frmcodextrasfusa> registration{"frmcodextrasfusa"};

}  // namespace

}  // namespace eterlab::valves
