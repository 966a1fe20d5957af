#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "lines/baluns/air_balun.h"
#include "lines/section_window.h"
#include "ui/measures.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

// A voltage balun of wires side by side on a tube.
class frmbaluninaria final : public LineWindow {
  ui::OptionArray Option1{this, "Option1", {"RAPPORTO 1:1 - TRE FILI", "RAPPORTO 4:1 - DUE FILI"}};
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA MINIMA in MHz",
                         {.range = ui::Range{0.5, 60}, .prompt_name = "Label1"}};
  ui::Input txtz0{this,
                  "txtz0",
                  "IMPEDENZA DEL CAVO in OHM",
                  {.range = balun_impedance_range_ohm, .prompt_name = "Label2"}};
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEL SUPPORTO in mm",
                        {.range = ui::Range{5, 300}, .prompt_name = "Label3"}};
  ui::Input txtfilo{this,
                    "txtfilo",
                    "DIAMETRO DEL FILO CON L'ISOLANTE in mm",
                    {.range = ui::Range{0.3, 10}, .prompt_name = "Label4"}};
  ui::Schematic drawing{this, "drawing", 50, 34};
  ui::Value lblvaloresupporto{drawing, "lblvaloresupporto"};
  ui::Value lblvaloreavvolgimento{drawing, "lblvaloreavvolgimento"};
  ui::Result lblspire{this, "lblspire"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblros{this, "lblros"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Result lblfilo{this, "lblfilo"};
  ui::Result lblfmax{this, "lblfmax"};

 public:
  frmbaluninaria() : LineWindow{"frmbaluninaria", "BALUN IN ARIA A FILI AFFIANCATI"} {
    Option1.preset(0);
    draw();
    lay_out(
        ui::row(ui::column(Option1, ui::form(txtfrequenza, txtz0, txtdiametro, txtfilo), lblspire,
                           lblinduttanza, lblros, lbllunghezza, lblfilo, lblfmax, ui::stretch()),
                drawing));

    Option1.on_click([this](int /*index*/) { draw(); });
  }

  void show_example() override { fill_in({"3.5", "50", "30", "1.5"}); }

 private:
  [[nodiscard]] AirBalunRatio ratio() const {
    return Option1.selected() == 0 ? AirBalunRatio::one : AirBalunRatio::four;
  }

  void draw() {
    drawing.clear();
    draw_winding();
    if (ratio() == AirBalunRatio::one) {
      draw_three_wires();
    } else {
      draw_two_wires();
    }
  }

  void draw_winding() {
    constexpr double tube_top = 2;
    constexpr double tube_bottom = 7;
    constexpr double axis = (tube_top + tube_bottom) / 2;
    constexpr double left = 5;
    constexpr double right = 25;
    constexpr double thicker = 0.8;  // than the tube
    constexpr int turns = 8;
    drawing.box({1, tube_top}, {29, tube_bottom})
        .winding({left, axis}, {right, axis}, tube_bottom - tube_top + thicker, turns);
    measure_height(drawing, {29.5, tube_top}, {29.5, tube_bottom}, 32, lblvaloresupporto,
                   Side::right);
    measure_width(drawing, {left, tube_bottom + 0.9}, {right, tube_bottom + 0.9}, 10,
                  lblvaloreavvolgimento, Side::below);
  }

  /// The wires in series, from the cable's inner conductor on, and the names of their ends.
  void draw_wires(double from, double length, int wires) {
    static constexpr std::array<std::string_view, 4> ends{"A", "B", "C", "D"};
    for (int wire = 0; wire < wires; ++wire) {
      const double start = from + wire * length;
      drawing.inductor({start, series}, {start + length, series})
          .winding_dot({start + 2.5, series - 1.2});
    }
    for (int end = 0; end <= wires; ++end) {
      drawing.junction({from + end * length, series})
          .mark({from + end * length - 0.2, series + 1.4}, ends[static_cast<std::size_t>(end)],
                Side::left);
    }
  }

  void draw_three_wires() {
    constexpr double first = 6;
    constexpr double length = 12;
    draw_wires(first, length, 3);
    draw_cable(first, first + 2 * length);
    draw_antenna(first + length, first + 3 * length);
  }

  void draw_two_wires() {
    constexpr double first = 9;
    constexpr double length = 16;
    draw_wires(first, length, 2);
    draw_cable(first, first + length);
    draw_antenna(first, first + 2 * length);
  }

  void draw_cable(double inner, double braid) {
    constexpr double end = series + 6;
    drawing.wire({{inner, series}, {inner, end}})
        .terminal({inner, end})
        .wire({{braid, series}, {braid, end}})
        .terminal({braid, end})
        .mark({(inner + braid) / 2, end}, "CAVO", Side::centre)
        .wire({{braid, end - 2}, {braid + 4, end - 2}})
        .junction({braid, end - 2})
        .ground({braid + 4, end - 2})
        .mark({inner, end + 0.4}, "CENTRALE", Side::below)
        .mark({braid, end + 0.4}, "CALZA", Side::below);
  }

  void draw_antenna(double one_side, double other_side) {
    constexpr double end = series - 5;
    for (const double side : {one_side, other_side}) {
      drawing.wire({{side, series}, {side, end}}).terminal({side, end});
    }
    drawing.mark({(one_side + other_side) / 2, end}, "ANTENNA", Side::centre);
  }

  void compute() override {
    const Real lowest_mhz = txtfrequenza.value();
    const auto balun =
        air_balun(ratio(), lowest_mhz, txtz0.value(), txtdiametro.value(), txtfilo.value());
    require(balun.has_value(), txtdiametro, "OLTRE 100 SPIRE: AUMENTARE IL DIAMETRO DEL SUPPORTO");
    advise(balun->highest_frequency_mhz >= lowest_mhz, txtdiametro,
           "FILI TROPPO LUNGHI PER LA FREQUENZA: USARE UN NUCLEO DI FERRITE");
    const AirWinding& winding = balun->winding;
    const std::string length = fixed(1000 * winding.length_m(), 0) + " mm";
    lblspire = "SPIRE = " + plain(winding.turns) +
               (ratio() == AirBalunRatio::one ? " TRIFILARI" : " BIFILARI");
    lblinduttanza = "INDUTTANZA DI OGNI FILO = " + fixed(1e6 * balun->inductance_h, 2) + " uH";
    lblros = "ROS AGGIUNTO ALLA FREQUENZA MINIMA = " + fixed(balun->swr_at_lowest, 2);
    lbllunghezza = "LUNGHEZZA DELL'AVVOLGIMENTO = " + length;
    lblfilo = "OGNI FILO = " + fixed(100 * winding.wire_length_m(), 0) + " cm. PIU' I TERMINALI";
    lblfmax = "FREQUENZA MASSIMA CIRCA = " + fixed(balun->highest_frequency_mhz, 1) + " MHz";
    lblvaloresupporto = millimetres(txtdiametro.value());
    lblvaloreavvolgimento = length;
  }

  static constexpr double series = 23;  // of the windings, on the drawing
};

const ui::Registration<frmbaluninaria> registration{"frmbaluninaria"};

}  // namespace

}  // namespace eterlab::lines
