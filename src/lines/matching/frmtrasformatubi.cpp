#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "common/number_text.h"
#include "lines/line_section.h"
#include "lines/matching/tube_transformer.h"
#include "lines/section_window.h"
#include "ui/measures.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

constexpr std::array<std::string_view, 3> prompts{"DIAMETRO DEI TUBI in mm",
                                                  "DIAMETRO INTERNO DEL TUBO ESTERNO in mm",
                                                  "LATO INTERNO DEL TUBO QUADRO in mm"};

// A quarter-wave transformer of metal tubes in air.
class frmtrasformatubi final : public LineWindow {
  ui::OptionArray Option1{
      this, "Option1", {"DUE TUBI PARALLELI", "TUBI TONDI COASSIALI", "TUBO TONDO IN TUBO QUADRO"}};
  ui::Input txtfrequenza = section_frequency_input(this);
  ui::Input txtzantenna{this,
                        "txtzantenna",
                        "IMPEDENZA DELL'ANTENNA in OHM",
                        {.range = section_impedance_range_ohm, .prompt_name = "Label2"}};
  ui::Input txtzlinea{this,
                      "txtzlinea",
                      "IMPEDENZA DELLA LINEA in OHM",
                      {.range = section_impedance_range_ohm, .prompt_name = "Label3"}};
  ui::Input txtdiametro{
      this, "txtdiametro", prompts[0], {.range = conductor_range_mm, .prompt_name = "lblinput"}};
  ui::Input txtvelocita{this,
                        "txtvelocita",
                        "FATTORE DI VELOCITA'",
                        {.tooltip = "1 in sola aria, 0.975 con pochi distanziatori",
                         .holds = "0.975",
                         .range = section_velocity_range,
                         .prompt_name = "Label5"}};
  ui::Schematic drawing{this, "drawing", 46, 23};
  ui::Value lblgrande{drawing, "lblgrande"};
  ui::Value lblpiccolo{drawing, "lblpiccolo"};
  ui::Value lbltratto{drawing, "lbltratto"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lblmisura{this, "lblmisura"};
  ui::Result lblrapporto{this, "lblrapporto"};
  ui::Result lbllunghezza{this, "lbllunghezza"};

 public:
  frmtrasformatubi()
      : LineWindow{"frmtrasformatubi", "ADATTATORE D'IMPEDENZA A 1/4 D'ONDA CON TUBI"} {
    Option1.preset(0);
    draw();
    lay_out(ui::column(
        ui::row(ui::column(Option1,
                           ui::form(txtfrequenza, txtzantenna, txtzlinea, txtdiametro, txtvelocita),
                           ui::stretch()),
                drawing),
        lblimpedenza, lblmisura, lblrapporto, lbllunghezza));

    Option1.on_click([this](int index) {
      txtdiametro.ask(prompts[static_cast<std::size_t>(index)]);
      draw();
    });
  }

  void show_example() override { fill_in({"50.15", "450", "50", "12", "0.975"}); }

 private:
  [[nodiscard]] TubeForm form() const { return static_cast<TubeForm>(Option1.selected()); }

  void draw() {
    drawing.clear();
    if (form() == TubeForm::side_by_side) {
      draw_pair();
    } else {
      draw_enclosed();
    }
    drawing.mark({right + 3.5, 2.3}, "ANTENNA", Side::centre)
        .mark({left - 0.5, 2.3}, "LINEA", Side::centre);
    measure_width(drawing, {left, axis + 5.5}, {right, axis + 5.5}, 19, lbltratto, Side::below);
  }

  void draw_pair() {
    constexpr double radius = 2.5;
    constexpr double half_spacing = 4.5;
    constexpr ui::At first{9.5 - half_spacing, axis};
    constexpr ui::At second{9.5 + half_spacing, axis};
    drawing.shaded_circle(first, radius).shaded_circle(second, radius);
    measure_thin_diameter(first, radius, 5.5);
    measure_width(drawing, first, second, 16.5, lblgrande, Side::below);
    drawing.mark({first.x, 15.3}, "D", Side::left);
    for (const double wire : {axis - half_spacing, axis + half_spacing}) {
      drawing.shaded_box({left, wire - 0.8}, {right, wire + 0.8});
      lead(wire);
    }
  }

  void draw_enclosed() {
    constexpr double radius = 2.5;
    constexpr double half_size = 7.5;
    constexpr double wall = 0.8;
    constexpr ui::At middle{9.5, axis};
    if (form() == TubeForm::round_in_round) {
      drawing.shaded_ring(middle, half_size, half_size + wall);
    } else {
      drawing.shaded_frame({middle.x - half_size, middle.y - half_size},
                           {middle.x + half_size, middle.y + half_size}, wall);
    }
    drawing.shaded_circle(middle, radius);
    measure_thin_diameter(middle, radius, 7.5);
    measure_width(drawing, {middle.x - half_size, middle.y}, {middle.x + half_size, middle.y}, 20.5,
                  lblgrande, Side::below);
    drawing.mark({middle.x - half_size, 19.3}, "D", Side::left);
    constexpr double half_outside = 5;
    for (const double side : {-1, 1}) {
      const double inner = axis + side * half_outside;
      const double outer = inner + side * wall;
      drawing.shaded_box({left, std::min(inner, outer)}, {right, std::max(inner, outer)});
    }
    drawing.shaded_box({left - 1, axis - 1.2}, {right + 1, axis + 1.2});
    lead(axis);
  }

  void measure_thin_diameter(ui::At centre, double radius, double height) {
    measure_width(drawing, {centre.x - radius, centre.y}, {centre.x + radius, centre.y}, height,
                  lblpiccolo, Side::above);
    drawing.mark({centre.x - radius, height + 0.6}, "d", Side::left);
  }

  /// From both ends of the section.
  void lead(double wire) {
    drawing.wire({{left - 3, wire}, {left, wire}}).wire({{right, wire}, {right + 3, wire}});
  }

  void compute() override {
    const Real given_mm = txtdiametro.value();
    const Real impedance_ohm = quarter_wave_impedance_ohm(txtzantenna.value(), txtzlinea.value());
    const auto [diameter_mm, size_mm] = tube_section(form(), given_mm, impedance_ohm);
    require_buildable(diameter_mm, size_mm);
    const bool is_pair = form() == TubeForm::side_by_side;
    const Real length_m = wavelength_in_line_m(txtfrequenza.value(), txtvelocita.value()) / 4;
    lblimpedenza = "IMPEDENZA DEL TRATTO = " + ohms(impedance_ohm);
    lblmisura = is_pair ? "INTERASSE DEI TUBI = " + tenths_of_mm(size_mm)
                        : "DIAMETRO DEL TUBO INTERNO = " + tenths_of_mm(diameter_mm);
    lblrapporto = "RAPPORTO D/d = " + fixed(size_mm / diameter_mm, 2);
    lbllunghezza = "LUNGHEZZA DEL TRATTO = " + centimetres(length_m);
    lblgrande = tenths_of_mm(size_mm);
    lblpiccolo = tenths_of_mm(diameter_mm);
    lbltratto = centimetres(length_m);
  }

  void require_buildable(Real diameter_mm, Real size_mm) {
    constexpr double in_air = 1;
    const Real wavelength_mm = 1000 * wavelength_in_line_m(txtfrequenza.value(), in_air);
    if (form() == TubeForm::side_by_side) {
      require(size_mm - diameter_mm >= 1, txtdiametro,
              "TUBI TROPPO VICINI: USARE TUBI PIU' GROSSI O COASSIALI");
    } else {
      require(diameter_mm >= 0.5, txtdiametro,
              "TUBO INTERNO TROPPO SOTTILE: USARE I TUBI PARALLELI");
      const bool is_too_thick = form() == TubeForm::round_in_square && diameter_mm > 0.7 * size_mm;
      require(size_mm - diameter_mm >= 2 && !is_too_thick, txtdiametro,
              "TUBO INTERNO TROPPO GROSSO: AUMENTARE LE IMPEDENZE O IL TUBO ESTERNO");
    }
    require(size_mm <= wavelength_mm / 10, txtdiametro,
            "MISURE TROPPO GRANDI PER LA FREQUENZA: USARE TUBI PIU' SOTTILI");
  }

  // On the drawing
  static constexpr double axis = 10;
  static constexpr double left = 23;
  static constexpr double right = 38;
};

const ui::Registration<frmtrasformatubi> registration{"frmtrasformatubi"};

}  // namespace

}  // namespace eterlab::lines
