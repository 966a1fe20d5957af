#include <cstdint>
#include <string>
#include <string_view>

#include "antennas/l_network.h"
#include "circuits/impedance.h"
#include "common/complex.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/standing_wave.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

constexpr ui::Range usual_range{1e-3, 1e6};

// The two L networks between an antenna that was measured and its line.
class frmreteadattamento final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz", {.range = usual_range}};
  ui::Input txtr{this, "txtr", "RESISTENZA DELL'ANTENNA in OHM", {.range = usual_range}};
  ui::Input txtx{this,
                 "txtx",
                 "REATTANZA DELL'ANTENNA in OHM",
                 {.tooltip = "positiva se induttiva, negativa se capacitiva",
                  .range = ui::Range{-1e6, 1e6},
                  .is_optional = true}};
  ui::Input txtz0{
      this, "txtz0", "IMPEDENZA DELLA LINEA in OHM", {.holds = "50", .range = usual_range}};
  ui::Result lblros{this, "lblros"};
  ui::Result lblposto{this, "lblposto"};
  ui::Heading Label1{this, "Label1", "PRIMA SOLUZIONE"};
  ui::Schematic drawing{this, "drawing", 44, 20};
  ui::Value lblvaloreserie1{drawing, "lblvaloreserie1"};
  ui::Value lblvaloreparallelo1{drawing, "lblvaloreparallelo1"};
  ui::Result lblserie1{this, "lblserie1"};
  ui::Result lblparallelo1{this, "lblparallelo1"};
  ui::Heading Label2{this, "Label2", "SECONDA SOLUZIONE"};
  ui::Schematic drawing2{this, "drawing2", 44, 20};
  ui::Value lblvaloreserie2{drawing2, "lblvaloreserie2"};
  ui::Value lblvaloreparallelo2{drawing2, "lblvaloreparallelo2"};
  ui::Result lblserie2{this, "lblserie2"};
  ui::Result lblparallelo2{this, "lblparallelo2"};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINE", {"frmbobine", {180, 180}, {4100, 2800}}};

 public:
  frmreteadattamento()
      : Calculator{"frmreteadattamento", "RETE L C PER ADATTARE L'ANTENNA ALLA LINEA"} {
    draw(drawing, Shunt::at_line, {Kind::coil}, lblvaloreserie1, {Kind::capacitor},
         lblvaloreparallelo1);
    draw(drawing2, Shunt::at_line, {Kind::capacitor}, lblvaloreserie2, {Kind::coil},
         lblvaloreparallelo2);
    lay_out(ui::column(ui::form(txtfrequenza, txtr, txtx, txtz0), lblros, lblposto,
                       ui::row(ui::column(Label1, drawing, lblserie1, lblparallelo1),
                               ui::column(Label2, drawing2, lblserie2, lblparallelo2))),
            {&cmdchiamabobine});
  }

  void show_example() override { fill_in({"7.1", "12", "-85", "50"}); }

 private:
  enum class Kind : std::uint8_t { none, coil, capacitor };
  struct Part {
    Kind kind = Kind::none;
    std::string value = {};

    [[nodiscard]] std::string_view letter() const { return kind == Kind::coil ? "L" : "C"; }
    [[nodiscard]] std::string told() const {
      return kind == Kind::none ? "NESSUNA" : std::string{letter()} + " = " + value;
    }
  };

  static void draw(ui::Schematic& network, Shunt shunt, const Part& series, ui::Value& series_value,
                   const Part& parallel, ui::Value& parallel_value) {
    using enum ui::Schematic::Side;
    constexpr double line = 4;
    constexpr double antenna = 39;
    constexpr double upper = 6.5;
    constexpr double lower = 16;
    const double branch = shunt == Shunt::at_line ? 13 : 25;
    const double from = shunt == Shunt::at_line ? 21 : 6;
    const double to = from + 16;
    network.clear();
    network.terminal({line, upper})
        .terminal({line, lower})
        .mark({line, (upper + lower) / 2}, "LINEA")
        .wire({{line + 0.4, upper}, {from, upper}})
        .wire({{to, upper}, {antenna, upper}})
        .antenna({antenna, upper})
        .wire({{line + 0.4, lower}, {antenna, lower}})
        .ground({antenna, lower});
    draw(network, series, {from, upper}, {to, upper}, series_value);
    if (parallel.kind != Kind::none) {
      network.junction({branch, upper}).junction({branch, lower});
      draw(network, parallel, {branch, upper}, {branch, lower}, parallel_value);
    }
  }

  static void draw(ui::Schematic& network, const Part& part, ui::At from, ui::At to,
                   ui::Value& value) {
    switch (part.kind) {
      case Kind::none:
        network.wire({from, to});
        return;
      case Kind::coil:
        network.inductor(from, to).named("L", value);
        break;
      case Kind::capacitor:
        network.capacitor(from, to).named("C", value);
        break;
    }
    value = part.value;
  }

  /// What has a reactance, positive of a coil.
  [[nodiscard]] Part part_of_reactance(Real reactance_ohm) const {
    const Real frequency_hz = 1e6 * txtfrequenza.value();
    return reactance_ohm > 0
               ? Part{Kind::coil,
                      eng(circuits::inductance_of_reactance_h(frequency_hz, reactance_ohm), "H")}
               : Part{Kind::capacitor,
                      eng(circuits::capacitance_of_reactance_f(frequency_hz, -reactance_ohm), "F")};
  }

  void show(const LNetwork& network, Shunt shunt, ui::Schematic& picture, ui::Result& series_text,
            ui::Value& series_value, ui::Result& parallel_text, ui::Value& parallel_value) const {
    const Part series = network.series_ohm == 0 ? Part{} : part_of_reactance(network.series_ohm);
    const Part parallel =
        network.shunt_siemens == 0 ? Part{} : part_of_reactance(-1 / network.shunt_siemens);
    series_text = "IN SERIE: " + series.told();
    parallel_text = "IN PARALLELO: " + parallel.told();
    draw(picture, shunt, series, series_value, parallel, parallel_value);
  }

  void compute() override {
    const Complex antenna_ohm{txtr.value(), txtx.value()};
    const Real line_ohm = txtz0.value();
    advise(!is_matched(antenna_ohm, line_ohm), txtr, "L'ANTENNA E' GIA' ADATTATA");
    constexpr double largest_reflection = 0.99;
    const bool is_large =
        reaches(abs(lines::reflection_coefficient(antenna_ohm, line_ohm)), largest_reflection);
    lblros = "ROS SENZA RETE = " +
             (is_large ? "OLTRE 199" : fixed(lines::standing_wave_ratio(antenna_ohm, line_ohm), 2));
    const auto& [shunt, networks] = l_match(antenna_ohm, line_ohm);
    lblposto = std::string{"IL COMPONENTE IN PARALLELO STA DAL LATO "} +
               (shunt == Shunt::at_antenna ? "DELL'ANTENNA" : "DELLA LINEA");
    show(networks[0], shunt, drawing, lblserie1, lblvaloreserie1, lblparallelo1,
         lblvaloreparallelo1);
    show(networks[1], shunt, drawing2, lblserie2, lblvaloreserie2, lblparallelo2,
         lblvaloreparallelo2);
  }
};

const ui::Registration<frmreteadattamento> registration{"frmreteadattamento"};

}  // namespace

}  // namespace eterlab::antennas
