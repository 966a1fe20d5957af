#include <string_view>

#include "common/number_text.h"
#include "lines/geometry/coaxial_line.h"
#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/line_window.h"
#include "lines/geometry/uniform_line.h"
#include "ui/measures.h"

namespace eterlab::lines {

namespace {

constexpr std::string_view inner_prompt = "DIAMETRO DEL CONDUTTORE INTERNO in mm";
constexpr std::string_view screen_prompt = "DIAMETRO INTERNO DELLO SCHERMO in mm";
constexpr std::string_view impedance_prompt = "IMPEDENZA in Ohm";

// Coaxial line: its impedance, or one of its diameters.
class frmimpedenza final : public LineWindow {
  enum { find_impedance, find_inner_conductor, find_screen };

  ui::Frame Frame1{this, "Frame1"};
  ui::OptionArray Option1{
      Frame1,
      "Option1",
      {"TROVARE L'IMPEDENZA", "TROVARE IL CONDUTTORE INTERNO", "TROVARE LO SCHERMO"}};
  ui::InputArray txtinput{
      this, "txtinput", {"", ""}, {.tells_range = true, .prompt_name = "lblinput"}};
  DielectricInput dielectric{this, "Label1"};
  ui::Input txtlunghezza{
      this,
      "txtlunghezza",
      "LUNGHEZZA DEL TRATTO in metri (FACOLTATIVA)",
      {.range = length_range_m, .tells_range = true, .is_optional = true, .prompt_name = "Label2"}};
  ui::Schematic drawing{this, "drawing", 32, 27};
  ui::Value lblquota1{drawing, "lblquota1", "d"};
  ui::Value lblquota2{drawing, "lblquota2", "D"};
  ui::Result lblrisultato{this, "lblrisultato"};
  ui::Result lblcommerciale{this, "lblcommerciale"};
  LineResults line{this};
  ui::Result lblfrequenza{this, "lblfrequenza"};
  ui::Result lbltratto{this, "lbltratto"};
  ui::Note Label3{this, "Label3",
                  "CONDUTTORE A PIU' FILI: DIGITARE 0.94 (7 FILI) O 0.97 (19 FILI) VOLTE IL "
                  "DIAMETRO DELLA CORDA. IL TRATTO VALE COME CONDENSATORE SE MOLTO PIU' CORTO DI "
                  "LAMBDA/4"};

 public:
  frmimpedenza()
      : LineWindow{"frmimpedenza", "IMPEDENZA, CAPACITA' E INDUTTANZA DELLA LINEA COASSIALE"} {
    draw();
    Option1.preset(find_impedance);
    ask();
    lay_out(ui::column(Frame1.arrange(Option1), ui::form(txtinput, dielectric, txtlunghezza),
                       ui::row(ui::column(lblrisultato, line, lblfrequenza, lbltratto,
                                          lblcommerciale, ui::stretch()),
                               drawing),
                       Label3),
            {}, 100);

    Option1.on_click([this](int) {
      txtinput.clear();
      ask();
    });
  }

  void show_example() override { fill_in({"0.9", "2.95", "2.26", "0.5"}); }

 private:
  struct Section {
    Real diameter_mm;
    Real screen_diameter_mm;
    Real impedance_ohm;
  };

  void draw() {
    using enum ui::Schematic::Side;
    constexpr double radius = 3;
    constexpr double screen = 9;
    constexpr double wall = 0.8;
    constexpr ui::At axis{14, 10.5};
    drawing.shaded_ring(axis, screen, screen + wall)
        .shaded_circle(axis, radius)
        .wire({{axis.x + screen + wall, axis.y}, {28, axis.y}})
        .ground({28, axis.y});
    measure_width(drawing, {axis.x - radius, axis.y}, {axis.x + radius, axis.y}, 5.5, lblquota1,
                  above);
    measure_width(drawing, {axis.x - screen, axis.y}, {axis.x + screen, axis.y}, 22.5, lblquota2,
                  below);
  }

  void ask() const {
    switch (Option1.selected()) {
      case find_inner_conductor:
        txtinput[0].ask(screen_prompt, distance_range_mm);
        return txtinput[1].ask(impedance_prompt, impedance_range_ohm);
      case find_screen:
        txtinput[0].ask(inner_prompt, wire_range_mm);
        return txtinput[1].ask(impedance_prompt, impedance_range_ohm);
      default:
        txtinput[0].ask(inner_prompt, wire_range_mm);
        txtinput[1].ask(screen_prompt, distance_range_mm);
    }
  }

  void compute() override {
    const Real velocity = velocity_factor(dielectric.relative_permittivity());
    const Section section = checked_section(velocity);
    const auto& [diameter_mm, screen_diameter_mm, impedance_ohm] = section;
    line.show(impedance_ohm, velocity);
    const Real highest_hz = coaxial_highest_frequency_hz(
        diameter_mm / 1000, screen_diameter_mm / 1000, dielectric.relative_permittivity());
    lblfrequenza = "FREQUENZA MASSIMA = " + fixed(highest_hz / 1e6, 0) + " MHz";
    if (const Real length_m = txtlunghezza.value(); length_m > 0) {
      const LineConstants constants = line_constants(impedance_ohm, velocity);
      lbltratto = "NEL TRATTO : " + fixed(constants.capacitance_f_per_m * length_m * 1e12, 1) +
                  " pF   " + fixed(constants.inductance_h_per_m * length_m * 1e6, 3) + " uH";
    }
  }

  /// With the result that was asked for, and the values on the drawing.
  Section checked_section(Real velocity) {
    const Real first = txtinput[0].value();
    const Real second = txtinput[1].value();
    const auto impedance_with = [&](Real diameter_mm, Real screen_diameter_mm) {
      return single_ended_impedance_ohm(coaxial_factor(diameter_mm, screen_diameter_mm), velocity);
    };
    const Real factor = single_ended_geometry_factor(second, velocity);
    switch (Option1.selected()) {
      case find_inner_conductor: {
        advise(factor <= ln(first / wire_range_mm.lowest), txtinput[1],
               "CONDUTTORE PIU' SOTTILE DI 0,01 mm: RIDURRE L'IMPEDENZA");
        const Real diameter_mm = coaxial_inner_diameter(first, factor);
        lblrisultato = "DIAMETRO DEL CONDUTTORE INTERNO = " + fixed(diameter_mm, 2) + " mm";
        lblcommerciale = rod_text(diameter_mm, first / thickest_rod_ratio,
                                  [&](Real rod_mm) { return impedance_with(rod_mm, first); });
        lblquota1 = computed_millimetres(diameter_mm);
        lblquota2 = millimetres(first);
        return {diameter_mm, first, second};
      }
      case find_screen: {
        advise(factor <= ln(distance_range_mm.highest / first), txtinput[1],
               "SCHERMO PIU' GRANDE DI 100 METRI: RIDURRE L'IMPEDENZA");
        const Real screen_diameter_mm = coaxial_screen_diameter(first, factor);
        lblrisultato = "DIAMETRO INTERNO DELLO SCHERMO = " + fixed(screen_diameter_mm, 2) + " mm";
        lblquota1 = millimetres(first);
        lblquota2 = computed_millimetres(screen_diameter_mm);
        return {first, screen_diameter_mm, second};
      }
      default: {
        require(second > first, txtinput[1],
                "LO SCHERMO DEVE ESSERE PIU' GRANDE DEL CONDUTTORE INTERNO");
        const Real impedance_ohm = impedance_with(first, second);
        lblrisultato = impedance_text(impedance_ohm);
        lblquota1 = millimetres(first);
        lblquota2 = millimetres(second);
        return {first, second, impedance_ohm};
      }
    }
  }
};

const ui::Registration<frmimpedenza> registration{"frmimpedenza"};

}  // namespace

}  // namespace eterlab::lines
