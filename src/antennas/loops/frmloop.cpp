#include <array>
#include <string>

#include "antennas/loops/magnetic_loop.h"
#include "antennas/wavelength.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "materials/metals.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

ui::Axis frequency_axis() { return {.title = "FREQUENZA", .unit = "MHz"}; }
ui::Axis efficiency_axis() {
  return {.title = "RENDIMENTO", .unit = "%", .range = ui::Interval{0, 100}};
}

// A small transmitting loop: what tunes it, what that must stand, and how much is radiated.
class frmloop final : public ui::Calculator {
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA in MHz",
                         {.tooltip = "DA 1 A 150 MHz",
                          .range = {{.lowest = 1, .highest = 150}},
                          .prompt_name = "Label1"}};
  ui::Input txtlunghezza{this,
                         "txtlunghezza",
                         "LUNGHEZZA DEL CONDUTTORE in mt.",
                         {.tooltip = "perimetro del loop", .prompt_name = "Label2"}};
  ui::Input txttubo{this, "txttubo", "DIAMETRO DEL TUBO in mm", {.prompt_name = "Label3"}};
  ui::Input txtpotenza{this,
                       "txtpotenza",
                       "POTENZA in WATT",
                       {.range = {{.lowest = 0.1, .highest = 10'000}}, .prompt_name = "Label4"}};
  ui::Frame Frame1{this, "Frame1", "FORMA"};
  ui::OptionArray Option1{Frame1, "Option1", {"CIRCOLARE", "OTTAGONALE", "QUADRATO"}};
  ui::Frame Frame2{this, "Frame2", "MATERIALE"};
  ui::OptionArray Option2{Frame2, "Option2", {"RAME", "ALLUMINIO"}};
  ui::Schematic drawing{this, "drawing", 44, 35};
  ui::Value lblmisura{drawing, "lblmisura"};
  ui::Value lblcondensatore{drawing, "lblcondensatore"};
  ui::Value lblaccoppiamento{drawing, "lblaccoppiamento"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblresradiazione{this, "lblresradiazione"};
  ui::Result lblresperdita{this, "lblresperdita"};
  ui::Result lblrendimento{this, "lblrendimento"};
  ui::Result lblfattoreq{this, "lblfattoreq"};
  ui::Result lblbanda{this, "lblbanda"};
  ui::Result lbltensione{this, "lbltensione"};
  ui::Result lblcorrente{this, "lblcorrente"};
  ui::Plot plot{this, "plot", frequency_axis(), efficiency_axis(), 44, 26};
  ui::Note Label5{this, "Label5",
                  "IL CONDENSATORE TIENE GIA' CONTO DELLA LUNGHEZZA ELETTRICA DEL LOOP. LE PERDITE "
                  "DEL CONDENSATORE, DELLE GIUNZIONI E DEL TERRENO RIDUCONO ANCORA IL RENDIMENTO."};
  ui::Button cmdchiamacondensatore{this, "cmdchiamacondensatore", "CONDENSATORE"};
  ui::Button cmdchiamainfo{this, "cmdchiamainfo", "INFORMAZIONI"};

 public:
  frmloop() : Calculator{"frmloop", "LOOP MAGNETICO"} {
    Option1.preset(0);
    Option2.preset(0);
    name_hint("Label6");
    draw();
    lay_out(ui::column(
                ui::row(ui::column(ui::form(txtfrequenza, txtlunghezza, txttubo, txtpotenza),
                                   ui::row(Frame1.arrange(Option1), Frame2.arrange(Option2)),
                                   lblinduttanza, lblresradiazione, lblresperdita, lblrendimento,
                                   lblfattoreq, lblbanda, lbltensione, lblcorrente, ui::stretch()),
                        ui::column(drawing, plot)),
                Label5),
            {&cmdchiamacondensatore, &cmdchiamainfo}, 116);
    cmdchiamacondensatore.on_click([] { open("frmhelpcondensatore", ui::Showing::modal); });
    cmdchiamainfo.on_click([] { open("frminfoloop", ui::Showing::modal); });
  }

  void show_example() override { fill_in({"14.2", "3.14", "22", "100"}); }

 private:
  void draw() {
    using enum ui::Schematic::Side;
    constexpr ui::At hub{22, 15};
    constexpr double radius = 11.5;
    constexpr double half_gap_degrees = 8;
    constexpr double half_gap = 1.6;  // its sine, nearly
    constexpr double gap_y = hub.y - 0.99027 * radius;
    drawing.arc(hub, radius, 90 + half_gap_degrees, 450 - half_gap_degrees)
        .variable_capacitor({hub.x - half_gap, gap_y}, {hub.x + half_gap, gap_y})
        .named(lblcondensatore);
    drawing.dimension({hub.x - radius, hub.y}, {hub.x + radius, hub.y})
        .label(lblmisura, hub, above);

    constexpr double coupling_radius = 3;
    constexpr double half_feed = 0.4;
    constexpr ui::At coupling{hub.x, hub.y + radius - coupling_radius - 1};
    constexpr double feed_degrees = 7.66;  // whose sine is half_feed / coupling_radius
    constexpr double feed_y = coupling.y + 0.99107 * coupling_radius;
    constexpr ui::CoaxialCable cable{{hub.x - half_feed, hub.y + radius + 1},
                                     {hub.x - half_feed, hub.y + radius + 6}};
    drawing.arc(coupling, coupling_radius, -90 + feed_degrees, 270 - feed_degrees)
        .wire({{hub.x - half_feed, feed_y}, cable.from})
        .wire({{hub.x + half_feed, feed_y}, cable.screen_from})
        .coaxial_cable(cable)
        .label(lblaccoppiamento, {hub.x, cable.to.y}, below);
  }

  [[nodiscard]] MagneticLoop loop() const {
    constexpr std::array shapes{LoopShape::circle, LoopShape::octagon, LoopShape::square};
    return {.shape = shapes[static_cast<std::size_t>(Option1.selected())],
            .conductor_m = txtlunghezza.value(),
            .tube_mm = txttubo.value(),
            .resistivity_ohm_m = Option2.selected() == 0 ? materials::copper.resistivity_ohm_m()
                                                         : aluminium_tube_ohm_m};
  }

  void compute() override {
    const Real frequency_mhz = txtfrequenza.value();
    const MagneticLoop wanted = loop();
    const Real wavelengths = wanted.conductor_m / wavelength_m(frequency_mhz);
    advise(wavelengths <= 0.25, txtlunghezza,
           "IL CONDUTTORE SUPERA UN QUARTO DI LUNGHEZZA D'ONDA: ACCORCIARLO");
    advise(wavelengths >= 0.01, txtlunghezza,
           "IL CONDUTTORE E' PIU' CORTO DI UN CENTESIMO DI LUNGHEZZA D'ONDA: ALLUNGARLO");
    require(wanted.tube_mm >= 1 && reaches(25 * wanted.conductor_m, wanted.tube_mm), txttubo,
            "IL DIAMETRO DEL TUBO VA DA 1 mm A 1/40 DELLA LUNGHEZZA DEL CONDUTTORE");

    const TunedLoop tuned = tuned_loop(wanted, 1e6 * frequency_mhz);
    const LoopLoad load = loop_load(tuned, txtpotenza.value());
    const std::string percent = fixed(100 * tuned.efficiency, 1) + " %";
    lblmisura = (wanted.shape == LoopShape::circle ? "DIAMETRO = " : "LATO = ") +
                fixed(loop_width_m(wanted), 2) + " mt.";
    lblinduttanza = "INDUTTANZA = " + fixed(1e6 * tuned.inductance_h, 2) + " uH";
    lblcondensatore = "CONDENSATORE = " + fixed(1e12 * tuned.capacitance_f, 1) + " pF";
    lblresradiazione = "RESISTENZA DI RADIAZIONE = " + sig(tuned.radiation_ohm, 3) + " Ohm";
    lblresperdita = "RESISTENZA DI PERDITA = " + sig(tuned.loss_ohm, 3) + " Ohm";
    lblrendimento =
        "RENDIMENTO = " + percent + "  ( " + fixed(10 * log10(tuned.efficiency), 1) + " dB )";
    lblfattoreq = "Q = " + fixed(tuned.q, 0);
    lblbanda = "BANDA CON ROS ENTRO 2 = " + fixed(tuned.bandwidth_hz / 1000, 1) + " kHz";
    lbltensione = "TENSIONE DI PICCO SUL CONDENSATORE = " + fixed(load.capacitor_peak_v, 0) + " V";
    lblcorrente = "CORRENTE NEL LOOP = " + fixed(load.current_a, 1) + " A";
    lblaccoppiamento = "SPIRA DI ACCOPPIAMENTO = cm. " + fixed(100 * coupling_loop_m(wanted), 0);
    plot_efficiency(wanted, percent);
  }

  void plot_efficiency(const MagneticLoop& wanted, const std::string& percent) {
    const Real wave_mhz = speed_of_light_m_per_s / wanted.conductor_m / 1e6;
    const Real from_mhz = 0.05 * wave_mhz;
    const Real to_mhz = 0.25 * wave_mhz;
    const Real at_mhz = txtfrequenza.value();
    plot.curve(
        [wanted](Real frequency_mhz) {
          return 100 * tuned_loop(wanted, 1e6 * frequency_mhz).efficiency;
        },
        from_mhz, to_mhz);
    if (at_mhz >= from_mhz && at_mhz <= to_mhz) {
      plot.marker(at_mhz, percent);
    }
  }
};

const ui::Registration<frmloop> registration{"frmloop"};

}  // namespace

}  // namespace eterlab::antennas
