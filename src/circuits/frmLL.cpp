#include <cstdint>
#include <string>
#include <string_view>

#include "circuits/coupled_inductors.h"
#include "circuits/impedance_parts.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

// Two coils, with or without coupling, in the four ways to connect them.
class frmLL final : public ui::Calculator {
  ui::Input txtl1{this, "txtl1", "PRIMA INDUTTANZA in uH"};
  ui::Input txtl2{this, "txtl2", "SECONDA INDUTTANZA in uH"};
  ui::Input txtk{this,
                 "txtk",
                 "COEFFICIENTE DI ACCOPPIAMENTO (DA 0 A 1)",
                 {.holds = "0", .range = ui::Range{0, 1}, .is_optional = true}};
  ui::Result lblserie{this, "lblserie"};
  ui::Result lblserie2{this, "lblserie2"};
  ui::Result lblparallelo{this, "lblparallelo"};
  ui::Result lblparallelo2{this, "lblparallelo2"};
  ui::Result lblmutua{this, "lblmutua"};
  ui::Schematic drawing{this, "drawing", 68, 20};
  ui::Value lblvaloreserie{drawing, "lblvaloreserie"};
  ui::Value lblvaloreserie2{drawing, "lblvaloreserie2"};
  ui::Value lblvaloreparallelo{drawing, "lblvaloreparallelo"};
  ui::Value lblvaloreparallelo2{drawing, "lblvaloreparallelo2"};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINE", {"frmbobine", {400, 300}, {4100, 2800}}};

 public:
  frmLL() : Calculator{"frmLL", "DUE INDUTTANZE IN SERIE E IN PARALLELO"} {
    draw();
    lay_out(ui::column(ui::form(txtl1, txtl2, txtk), drawing, lblserie, lblserie2, lblparallelo,
                       lblparallelo2, lblmutua),
            {&cmdchiamabobine});
  }

  void show_example() override { fill_in({"10", "22", "0.2"}); }

 private:
  enum class Sense : std::uint8_t { aiding, opposing };

  void draw() {
    constexpr double left = 2;
    constexpr double right = 36;
    draw_pair(left, Sense::aiding, "CONCORDI", lblvaloreserie, lblvaloreparallelo);
    draw_pair(right, Sense::opposing, "DISCORDI", lblvaloreserie2, lblvaloreparallelo2);
  }

  void draw_pair(double x, Sense sense, std::string_view name, ui::Value& series,
                 ui::Value& parallel) {
    constexpr double width = 20;
    constexpr double coil = width / 2;
    constexpr double series_y = 7;
    constexpr double upper_y = 13;
    constexpr double lower_y = 18;
    constexpr double parallel_y = (upper_y + lower_y) / 2;
    const double middle = x + width / 2;
    const double end = x + width;
    drawing.mark({middle, 1.5}, name);

    draw_coil(x, series_y, "L1", Sense::aiding);
    draw_coil(middle, series_y, "L2", sense);
    drawing.terminal({x, series_y}).terminal({end, series_y});
    drawing.label(series, {end + 0.5, series_y}, ui::Schematic::Side::right);

    const double from = middle - coil / 2;
    const double to = middle + coil / 2;
    draw_coil(from, upper_y, "L1", Sense::aiding);
    draw_coil(from, lower_y, "L2", sense);
    for (const double side : {from, to}) {
      drawing.wire({{side, upper_y}, {side, lower_y}}).junction({side, parallel_y});
    }
    drawing.wire({{x, parallel_y}, {from, parallel_y}}).wire({{to, parallel_y}, {end, parallel_y}});
    drawing.terminal({x, parallel_y}).terminal({end, parallel_y});
    drawing.label(parallel, {end + 0.5, parallel_y}, ui::Schematic::Side::right);
  }

  /// With the dot at its beginning, the left end of one that aids the other.
  void draw_coil(double x, double y, std::string_view name, Sense sense) {
    constexpr double length = 10;
    constexpr double to_dot = 3.2;
    const double middle = x + length / 2;
    drawing.inductor({x, y}, {x + length, y}).named(name);
    drawing.winding_dot({middle + (sense == Sense::aiding ? -to_dot : to_dot), y - 1});
  }

  void compute() override {
    const CoupledInductors coils = coupled_inductors(henry(txtl1), henry(txtl2), txtk.value());
    const std::string series_aiding = eng(coils.series_aiding_h, "H");
    const std::string series_opposing = eng(coils.series_opposing_h, "H");
    const std::string parallel_aiding = eng(coils.parallel_aiding_h, "H");
    const std::string parallel_opposing = eng(coils.parallel_opposing_h, "H");
    lblserie = "IN SERIE CONCORDI = " + series_aiding;
    lblserie2 = "IN SERIE DISCORDI = " + series_opposing;
    lblparallelo = "IN PARALLELO CONCORDI = " + parallel_aiding;
    lblparallelo2 = "IN PARALLELO DISCORDI = " + parallel_opposing;
    lblmutua = "MUTUA INDUTTANZA = " + eng(coils.mutual_h, "H");
    lblvaloreserie = series_aiding;
    lblvaloreserie2 = series_opposing;
    lblvaloreparallelo = parallel_aiding;
    lblvaloreparallelo2 = parallel_opposing;
  }
};

const ui::Registration<frmLL> registration{"frmLL"};

}  // namespace

}  // namespace eterlab::circuits
