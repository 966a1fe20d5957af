#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "common/rounding.h"
#include "lines/baluns/quarter_wave_balun.h"
#include "lines/line_section.h"
#include "lines/section_window.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

struct Kind {
  std::string_view prompt;
  std::string_view too_near;
  std::string_view length;
};
constexpr std::array<Kind, 2> kinds{
    {{"DISTANZA TRA GLI ASSI in mm", "LA DISTANZA DEVE ESSERE ALMENO 1,05 VOLTE LA CALZA",
      "LUNGHEZZA DELLO STUB = "},
     {"DIAMETRO INTERNO DEL MANICOTTO in mm", "IL MANICOTTO DEVE ESSERE ALMENO 1,05 VOLTE LA CALZA",
      "LUNGHEZZA DEL MANICOTTO = "}}};

// The balun that a quarter wave outside the feed cable makes.
class frmbaluncoax1quarto final : public LineWindow {
  ui::OptionArray Option1{this, "Option1", {"STUB PARALLELO (PAWSEY)", "MANICOTTO (BAZOOKA)"}};
  ui::Input txtfrequenza = section_frequency_input(this);
  ui::Input txtz0{this,
                  "txtz0",
                  "IMPEDENZA DEL CAVO in OHM",
                  {.range = section_impedance_range_ohm, .prompt_name = "Label2"}};
  ui::Input txtcalza{this,
                     "txtcalza",
                     "DIAMETRO DELLA CALZA DEL CAVO in mm",
                     {.range = conductor_range_mm, .prompt_name = "Label3"}};
  ui::Input txtdistanza{this,
                        "txtdistanza",
                        kinds[0].prompt,
                        {.range = conductor_range_mm, .prompt_name = "lblinput"}};
  ui::Input txtvelocita{
      this,
      "txtvelocita",
      "FATTORE DI VELOCITA' ESTERNO ALLA CALZA",
      {.holds = "0.95", .range = section_velocity_range, .prompt_name = "Label5"}};
  ui::Schematic drawing{this, "drawing", 48, 33};
  ui::Value lblquarto{drawing, "lblquarto"};
  ui::Value lblasse{drawing, "lblasse"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lblbanda{this, "lblbanda"};
  ui::Note Label6{this, "Label6",
                  "IL FATTORE DI VELOCITA' DEL CAVO NON CONTA: IL CAMPO STA FUORI DELLA CALZA. IN "
                  "ARIA 0.95 - CAVI DISTANZIATI 10 mm 0.92 - CAVI ACCOSTATI CON GUAINA IN PVC 0.73 "
                  "- MANICOTTO ADERENTE ALLA GUAINA IN PVC 0.58"};
  ui::CompanionButton cmdchiamacavi{*this, "cmdchiamacavi", "CAVI COASSIALI", cable_catalogue};

 public:
  frmbaluncoax1quarto() : LineWindow{"frmbaluncoax1quarto", "BALUN 1:1 A 1/4 D'ONDA"} {
    Option1.preset(0);
    draw();
    lay_out(
        ui::column(
            ui::row(ui::column(Option1,
                               ui::form(txtfrequenza, txtz0, txtcalza, txtdistanza, txtvelocita),
                               lbllunghezza, lblimpedenza, lblbanda, ui::stretch()),
                    drawing),
            Label6),
        {&cmdchiamacavi});

    Option1.on_click([this](int /*index*/) {
      txtdistanza.ask(kind().prompt);
      draw();
    });
  }

  void show_example() override { fill_in({"145", "50", "8", "20", "0.95"}); }

 private:
  [[nodiscard]] const Kind& kind() const {
    return kinds[static_cast<std::size_t>(Option1.selected())];
  }
  [[nodiscard]] bool is_sleeve() const { return Option1.selected() == 1; }

  void draw() {
    constexpr ui::CoaxialCable cable{{axis, 5}, {axis, 31}};
    constexpr double gap = 1.5;
    drawing.clear();
    drawing.rod({{4, dipole}, {axis - gap, dipole}})
        .rod({{axis + gap + 1, dipole}, {46, dipole}})
        .coaxial_cable(cable)
        .wire({{axis - gap, dipole}, {axis, dipole}, cable.from})
        .wire({cable.screen_from, {axis + gap + 1, cable.screen_from.y}, {axis + gap + 1, dipole}})
        .mark({axis + 1, 30}, "CAVO", Side::right);
    is_sleeve() ? draw_sleeve() : draw_stub();
  }

  void draw_stub() {
    constexpr double stub = 18;
    drawing.rod({{stub, top}, {stub, bottom}})
        .wire({{stub, top}, {stub, dipole}})
        .junction({stub, dipole})
        .wire({{stub, bottom}, {axis - braid, bottom}})
        .junction({axis - braid, bottom});
    measure(stub - 0.5, stub, axis);
  }

  void draw_sleeve() {
    constexpr double radius = 3;
    constexpr double wall = 0.8;
    for (const double side : {-1, 1}) {
      const double inner = axis + side * radius;
      const double outer = inner + side * wall;
      drawing.shaded_box({std::min(inner, outer), top}, {std::max(inner, outer), bottom})
          .wire({{inner, bottom}, {axis + side * braid, bottom}})
          .junction({axis + side * braid, bottom});
    }
    measure(axis - radius - wall, axis - radius, axis + radius);
  }

  /// The length, from there to the left, and what lies between the second and the third place.
  void measure(double body, double left, double right) {
    constexpr double length = 14;
    for (const double end : {top, bottom}) {
      drawing.extension({body - 0.3, end}, {length - 0.5, end});
    }
    drawing.dimension({length, top}, {length, bottom})
        .label(lblquarto, {length - 0.5, (top + bottom) / 2}, Side::left);
    constexpr double below = bottom + 3;
    for (const double end : {left, right}) {
      drawing.extension({end, bottom + 0.4}, {end, below + 0.5});
    }
    drawing.dimension({left, below}, {right, below})
        .label(lblasse, {right + 1, below}, Side::right);
  }

  void compute() override {
    constexpr double in_air = 1;
    const Real frequency_mhz = txtfrequenza.value();
    const Real braid_mm = txtcalza.value();
    const Real spacing_mm = txtdistanza.value();
    const Real widest_mm = 1000 * wavelength_in_line_m(frequency_mhz, in_air) / 10;
    require(reaches(spacing_mm, 1.05 * braid_mm), txtdistanza, kind().too_near);
    require(spacing_mm <= widest_mm, txtdistanza,
            "MISURE TROPPO GRANDI PER LA FREQUENZA: MASSIMO " + fixed_down(widest_mm, 0) + " mm");
    const QuarterWaveBalun balun = quarter_wave_balun(
        is_sleeve() ? QuarterWaveBalunKind::sleeve : QuarterWaveBalunKind::pawsey_stub,
        frequency_mhz, txtz0.value(), braid_mm, spacing_mm, txtvelocita.value());
    lbllunghezza = std::string{kind().length} + centimetres(balun.length_m);
    lblimpedenza = "IMPEDENZA DELLA LINEA ESTERNA = " + ohms(balun.impedance_ohm);
    lblbanda = "BANDA UTILE DA " + fixed(balun.lowest_frequency_mhz, 2) + " A " +
               fixed(balun.highest_frequency_mhz, 2) + " MHz";
    lblquarto = centimetres(balun.length_m);
    lblasse = millimetres(spacing_mm);
  }

  // On the drawing
  static constexpr double dipole = 3;
  static constexpr double axis = 28;  // of the cable
  static constexpr double braid = ui::CoaxialCable::half_thickness;
  static constexpr double top = 8;
  static constexpr double bottom = 24;
};

const ui::Registration<frmbaluncoax1quarto> registration{"frmbaluncoax1quarto"};

}  // namespace

}  // namespace eterlab::lines
