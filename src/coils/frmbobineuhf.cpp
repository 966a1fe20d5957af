#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "coils/resonant_line.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

/// What an option asks for and tells.
struct Kind {
  LineConductor conductor;
  std::string_view size_prompt;
  std::string_view distance_prompt;
  std::string_view length;
};
constexpr std::array<Kind, 3> kinds{{
    {LineConductor::rod_over_plane, "DIAMETRO DEL TONDINO in mm",
     "ALTEZZA DEL CENTRO SUL PIANO in mm", "LUNGHEZZA DELLA LINEA = "},
    {LineConductor::strip_over_plane, "LARGHEZZA DELLA STRISCIA in mm", "ALTEZZA SUL PIANO in mm",
     "LUNGHEZZA DELLA LINEA = "},
    {LineConductor::wire_fork, "DIAMETRO DEL FILO in mm", "DISTANZA TRA I CENTRI DEI FILI in mm",
     "LUNGHEZZA DI OGNI BRACCIO = "},
}};
constexpr ui::Range size_range_mm{0.2, 50};
constexpr ui::Range distance_range_mm{0.2, 100};

// At UHF a line takes the place of a coil.
class frmbobineuhf final : public ui::Calculator {
  ui::OptionArray Option1{this,
                          "Option1",
                          {"TONDINO SOPRA UN PIANO DI MASSA", "STRISCIA SOPRA UN PIANO DI MASSA",
                           "FORCELLA DI FILO (U)"}};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz", {.range = ui::Range{100, 3000}}};
  ui::Input txtcapacita{this,
                        "txtcapacita",
                        "CAPACITA' TOTALE in pF",
                        {.tooltip = "condensatore più capacità del transistor o della valvola",
                         .range = ui::Range{0.1, 50}}};
  ui::Input txtconduttore{this,
                          "txtconduttore",
                          kinds[0].size_prompt,
                          {.range = size_range_mm, .prompt_name = "lblconduttore"}};
  ui::Input txtdistanza{this,
                        "txtdistanza",
                        kinds[0].distance_prompt,
                        {.range = distance_range_mm, .prompt_name = "lbldistanza"}};
  ui::Schematic drawing{this, "drawing", 46, 18};
  ui::Value lbll{drawing, "lbll", "L"};
  ui::Value lblc{drawing, "lblc", "C"};
  ui::Result lblz0{this, "lblz0"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblquarto{this, "lblquarto"};
  ui::Note Label6{this, "Label6",
                  "DIELETTRICO ARIA. IL CAPO FREDDO VA SALDATO DIRETTAMENTE ALLA MASSA (O "
                  "ALL'ALTRO BRACCIO); IL COMPENSATORE VA AL CAPO CALDO."};

 public:
  frmbobineuhf() : Calculator{"frmbobineuhf", "COSTRUZIONE BOBINE PER UHF   LINEE RISONANTI"} {
    Option1.preset(0);
    draw();
    lay_out(ui::column(
        ui::row(ui::column(Option1, ui::form(txtfrequenza, txtcapacita, txtconduttore, txtdistanza),
                           ui::stretch()),
                drawing),
        lblz0, lbllunghezza, lblinduttanza, lblquarto, Label6));

    Option1.on_click([this](int) {
      txtconduttore.ask_anew(kind().size_prompt, size_range_mm);
      txtdistanza.ask_anew(kind().distance_prompt, distance_range_mm);
    });
  }

  void show_example() override { fill_in({"432", "3", "6", "10"}); }

 private:
  [[nodiscard]] const Kind& kind() const {
    return kinds[static_cast<std::size_t>(Option1.selected())];
  }

  // From the side; of a fork the plane is the other arm.
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double cold = 3;
    constexpr double hot = 25;
    constexpr double conductor = 7;
    constexpr double plane = 14;
    constexpr double above = 4;
    drawing.rod({{cold, plane}, {cold, conductor}, {hot, conductor}})
        .rod({{cold, plane}, {hot + 3, plane}})
        .capacitor({hot, conductor}, {hot, plane})
        .label(lblc, {hot + 1.8, (conductor + plane) / 2}, Side::right)
        .ground({cold + 3, plane});
    for (const double end : {cold, hot}) {
      drawing.extension({end, conductor - 0.7}, {end, above - 0.5});
    }
    drawing.dimension({cold, above}, {hot, above})
        .label(lbll, {(cold + hot) / 2, above - 0.5}, Side::above);
  }

  void compute() override {
    constexpr double least_ratio = 1.099999;  // of two distances, or one, to the size
    const Real size_m = txtconduttore.value() / 1000;
    const Real distance_m = txtdistanza.value() / 1000;
    const LineConductor conductor = kind().conductor;
    if (conductor != LineConductor::strip_over_plane) {
      const Real to_centre_m =
          conductor == LineConductor::rod_over_plane ? 2 * distance_m : distance_m;
      require(to_centre_m >= least_ratio * size_m, txtdistanza,
              "I CONDUTTORI SI TOCCANO: AUMENTARE LA DISTANZA");
    }
    const Real impedance_ohm = line_impedance_ohm(conductor, size_m, distance_m);
    const ResonantLine line =
        resonant_line(txtfrequenza.value() * 1e6, txtcapacita.value() / 1e12, impedance_ohm);
    advise(line.length_m >= 2 * distance_m, txtcapacita,
           "LINEA PIU' CORTA DEL DOPPIO DELLA DISTANZA: RIDURRE LA CAPACITA' O LA DISTANZA");

    lbll = fixed(1000 * line.length_m, 1) + " mm";
    lblc = plain(txtcapacita.value()) + " pF";
    lblz0 = "Z0 = " + fixed(impedance_ohm, 1) + " Ohm";
    lbllunghezza = std::string{kind().length} + lbll.content();
    lblinduttanza = "INDUTTANZA EQUIVALENTE = " + fixed(line.inductance_h * 1e9, 1) + " nH";
    lblquarto = "UN QUARTO D'ONDA = " + fixed(1000 * line.quarter_wavelength_m, 1) + " mm";
  }
};

const ui::Registration<frmbobineuhf> registration{"frmbobineuhf"};

}  // namespace

}  // namespace eterlab::coils
