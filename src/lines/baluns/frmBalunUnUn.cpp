#include <cstddef>
#include <string>

#include "common/number_text.h"
#include "lines/baluns/ferrite_balun.h"
#include "lines/section_window.h"
#include "ui/schematic.h"

namespace eterlab::lines {

namespace {

using Side = ui::Schematic::Side;

// Wideband baluns and autotransformers on ferrite rings.
class frmBalunUnUn final : public LineWindow {
  ui::OptionArray Option1{
      this,
      "Option1",
      {"BALUN 1:1 IN CORRENTE", "BALUN 4:1 IN CORRENTE (2 NUCLEI)", "UN-UN 4:1", "UN-UN 9:1"}};
  ui::Label Label1{this, "Label1", "NUCLEO DI FERRITE"};
  ui::ComboBox cmbnucleo{this, "cmbnucleo", ""};
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA MINIMA in MHz",
                         {.range = ui::Range{0.1, 28}, .prompt_name = "Label2"}};
  ui::Input txtz0{this,
                  "txtz0",
                  "IMPEDENZA DEL CAVO in OHM",
                  {.range = balun_impedance_range_ohm, .prompt_name = "Label3"}};
  ui::Input txtpotenza{this,
                       "txtpotenza",
                       "POTENZA in WATT",
                       {.range = ui::Range{0.1, 5000}, .prompt_name = "Label4"}};
  ui::Schematic drawing{this, "drawing", 48, 29};
  ui::Value lbln{drawing, "lbln"};
  ui::Result lblspire{this, "lblspire"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lblros{this, "lblros"};
  ui::Result lblinduzione{this, "lblinduzione"};
  ui::Result lblfilo{this, "lblfilo"};
  ui::Result lblimpedenze{this, "lblimpedenze"};
  ui::Note Label5{this, "Label5",
                  "MISCELA 43 PER FREQUENZE MINIME FINO A 5 MHz, MISCELA 61 OLTRE. NUCLEI IN "
                  "POLVERE DI FERRO NON ADATTI"};

 public:
  frmBalunUnUn() : LineWindow{"frmBalunUnUn", "BALUN E UN-UN A LARGA BANDA SU TOROIDI DI FERRITE"} {
    for (const coils::FerriteCore& core : balun_cores()) {
      cmbnucleo.add(core.name);
    }
    Option1.preset(0);
    draw();
    lay_out(ui::column(
        ui::row(
            ui::column(Option1, ui::form(field(Label1, cmbnucleo), txtfrequenza, txtz0, txtpotenza),
                       ui::stretch()),
            drawing),
        lblspire, lblinduttanza, lblreattanza, lblros, lblinduzione, lblfilo, lblimpedenze,
        Label5));

    Option1.on_click([this](int /*index*/) { draw(); });
  }

  void show_example() override {
    cmbnucleo.choose("FT-240-43");
    fill_in({"1.8", "50", "500"});
  }

 private:
  [[nodiscard]] FerriteBalunKind kind() const {
    return static_cast<FerriteBalunKind>(Option1.selected());
  }

  void draw() {
    drawing.clear();
    switch (kind()) {
      case FerriteBalunKind::current_one_to_one:
        return draw_choke();
      case FerriteBalunKind::current_one_to_four:
        return draw_two_chokes();
      default:
        draw_autotransformer();
    }
  }

  /// A winding across, with the numbers of its ends.
  void draw_winding(double from, double to, double row, int first_end) {
    drawing.inductor({from, row}, {to, row})
        .winding_dot({from + 3, row - 1.1})
        .mark({from + 1.2, row}, std::to_string(first_end), Side::above)
        .mark({to - 1.2, row}, std::to_string(first_end + 1), Side::above);
  }

  /// Two windings on one core.
  void draw_pair(double upper, double lower, int first_end) {
    constexpr double half_gap = 0.3;
    const double core = (upper + lower) / 2;
    draw_winding(start, end, upper, first_end);
    draw_winding(start, end, lower, first_end + 2);
    for (const double line : {core - half_gap, core + half_gap}) {
      drawing.wire({{start + 2, line}, {end - 2, line}});
    }
  }

  void draw_earth(ui::At place) {
    drawing.ground(place).mark({place.x, place.y + 2.2}, "MASSA", Side::below);
  }

  void draw_choke() {
    constexpr double upper = 9;
    constexpr double lower = 17;
    constexpr double middle = (upper + lower) / 2;
    draw_pair(upper, lower, 1);
    for (const double row : {upper, lower}) {
      drawing.wire({{cable, row}, {start, row}})
          .terminal({cable, row})
          .wire({{end, row}, {antenna, row}})
          .terminal({antenna, row});
    }
    drawing.mark({cable, middle}, "CAVO", Side::centre)
        .mark({antenna, middle}, "ANTENNA", Side::centre)
        .wire({{cable + 4, lower}, {cable + 4, lower + 2}})
        .junction({cable + 4, lower})
        .label(lbln, {(start + end) / 2, upper - 1.8}, Side::above);
    draw_earth({cable + 4, lower + 2});
  }

  void draw_two_chokes() {
    constexpr double rows[] = {5, 10, 18, 23};
    constexpr double hot = cable + 6;
    constexpr double earthed = cable + 3.5;
    constexpr double between = end + 4;
    draw_pair(rows[0], rows[1], 1);
    draw_pair(rows[2], rows[3], 5);
    drawing.wire({{cable, rows[0]}, {start, rows[0]}})
        .wire({{hot, rows[0]}, {hot, rows[2]}, {start, rows[2]}})
        .junction({hot, rows[0]})
        .wire({{cable, rows[1]}, {start, rows[1]}})
        .wire({{earthed, rows[1]}, {earthed, rows[3]}, {start, rows[3]}})
        .junction({earthed, rows[1]})
        .terminal({cable, rows[0]})
        .terminal({cable, rows[1]})
        .mark({cable, (rows[0] + rows[1]) / 2}, "CAVO", Side::centre)
        .junction({earthed, rows[3]})
        .wire({{end, rows[1]}, {between, rows[1]}, {between, rows[2]}, {end, rows[2]}})
        .wire({{end, rows[0]}, {antenna, rows[0]}})
        .terminal({antenna, rows[0]})
        .wire({{end, rows[3]}, {antenna, rows[3]}})
        .terminal({antenna, rows[3]})
        .mark({antenna, (rows[0] + rows[3]) / 2}, "ANTENNA", Side::centre)
        .label(lbln, {(start + end) / 2, (rows[1] + rows[2]) / 2}, Side::centre);
    draw_earth({earthed, rows[3]});
  }

  void draw_autotransformer() {
    constexpr double row = 13;
    constexpr double first = 6;
    constexpr double last = 42;
    constexpr double end_of_lead = 20;
    const int windings = traits_of(kind()).wires;
    const double length = (last - first) / windings;
    for (int winding = 0; winding < windings; ++winding) {
      const double from = first + winding * length;
      draw_winding(from, from + length, row, 2 * winding + 1);
      drawing.junction({from + length, row});
    }
    constexpr double half_gap = 0.3;
    for (const double line : {row - 3.5 - half_gap, row - 3.5 + half_gap}) {
      drawing.wire({{first + 2, line}, {last - 2, line}});
    }
    drawing.wire({{first, row}, {first, end_of_lead}})
        .wire({{first + length, row}, {first + length, end_of_lead}})
        .terminal({first + length, end_of_lead})
        .mark({first + length, end_of_lead + 0.5}, "CAVO", Side::below)
        .wire({{last, row}, {last, end_of_lead}})
        .terminal({last, end_of_lead})
        .mark({last, end_of_lead + 0.5}, "ANTENNA", Side::below)
        .label(lbln, {(first + last) / 2, row - 4.5}, Side::above);
    draw_earth({first, end_of_lead});
  }

  void check() override {
    require(cmbnucleo.chosen() >= 0, cmbnucleo, "SCEGLIERE UN NUCLEO");
    Calculator::check();
  }

  void compute() override {
    constexpr double thinnest_mm = 0.3;
    const Real cable_ohm = txtz0.value();
    const auto core = static_cast<std::size_t>(cmbnucleo.chosen());
    const FerriteBalun balun = ferrite_balun({.kind = kind(),
                                              .core = balun_cores()[core],
                                              .lowest_frequency_hz = 1e6 * txtfrequenza.value(),
                                              .cable_ohm = cable_ohm,
                                              .power_w = txtpotenza.value()});
    advise(balun.greatest_wire_mm >= thinnest_mm, cmbnucleo,
           "NUCLEO TROPPO PICCOLO: SCEGLIERNE UNO PIU' GRANDE");
    const bool has_two_cores = kind() == FerriteBalunKind::current_one_to_four;
    const FerriteBalunTraits traits = traits_of(kind());
    const std::string turns = plain(balun.turns);
    lblspire = (has_two_cores ? "2 NUCLEI, SU OGNUNO " : "SPIRE = ") + turns +
               (traits.wires == 3 ? " TRIFILARI" : " BIFILARI");
    lblinduttanza = "INDUTTANZA DI OGNI FILO = " + fixed(1e6 * balun.inductance_h, 1) + " uH";
    lblreattanza =
        "IMPEDENZA DI OGNI FILO ALLA FREQUENZA MINIMA = " + fixed(balun.impedance_ohm, 0) + " Ohm";
    lblros = "ROS AGGIUNTO ALLA FREQUENZA MINIMA = " + fixed(balun.swr_at_lowest, 2);
    lblinduzione = "INDUZIONE = " + fixed(1e3 * balun.flux_density_t, 1) + " mT  (AMMESSI " +
                   fixed(1e3 * balun.greatest_flux_density_t, 1) + " mT)";
    lblfilo = "FILO SMALTATO FINO A " + fixed(balun.greatest_wire_mm, 1) + " mm  -  OGNI FILO " +
              plain(balun.wire_length_cm) + " cm.";
    lblimpedenze = "DA " + plain(cable_ohm) + " A " + plain(traits.impedance_ratio * cable_ohm) +
                   " Ohm  -  IMPEDENZA DEI FILI AFFIANCATI " +
                   plain(traits.wires_ratio * cable_ohm) + " Ohm";
    lbln = turns + " SPIRE";
  }

  // On the drawing
  static constexpr double cable = 4;
  static constexpr double start = 17;
  static constexpr double end = 31;
  static constexpr double antenna = 43;
};

const ui::Registration<frmBalunUnUn> registration{"frmBalunUnUn"};

}  // namespace

}  // namespace eterlab::lines
