#include <optional>
#include <string>
#include <string_view>

#include "coils/short_coil.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

constexpr std::string_view inductance_prompt = "INDUTTANZA in uH";
constexpr ui::Range inductance_range_uh{0.001, 10};

Real metres(const ui::Input& millimetres) { return millimetres.value() / 1000; }

std::string millimetres(Real length_m, int decimals) {
  return fixed(1000 * length_m, decimals) + " mm";
}

// Self-supporting coils of stiff wire, to be stretched until they are right.
class frmmicrobobine final : public ui::Calculator {
  ui::OptionArray Option1{
      this, "Option1", {"TROVARE IL NUMERO DELLE SPIRE", "TROVARE L'INDUTTANZA"}};
  ui::Input txtdiametro{
      this,
      "txtdiametro",
      "DIAMETRO INTERNO in mm",
      {.tooltip = "diametro della punta su cui si avvolge", .range = ui::Range{1, 30}}};
  ui::Input txtfilo{this, "txtfilo", "DIAMETRO DEL FILO in mm", {.range = ui::Range{0.2, 5}}};
  ui::Input txtpasso{
      this,
      "txtpasso",
      "PASSO in mm",
      {.tooltip = "distanza tra i centri di due spire vicine", .range = ui::Range{0.2, 20}}};
  ui::Input txtinput{this,
                     "txtinput",
                     inductance_prompt,
                     {.range = inductance_range_uh, .prompt_name = "lblinput"}};
  ui::Schematic drawing{this, "drawing", 46, 20};
  ui::Value lbll{drawing, "lbll", "L"};
  ui::Value lbld{drawing, "lbld", "D"};
  ui::Result lblspire{this, "lblspire"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Result lbltaratura{this, "lbltaratura"};
  ui::Result lblfilo{this, "lblfilo"};
  ui::Note Label6{this, "Label6",
                  "SI ACCORCIA O SI ALLUNGA LA BOBINA PER TARARLA. A SPIRE ACCOSTATE L'INDUTTANZA "
                  "REALE E' DI QUALCHE PER CENTO MINORE, CON PASSO LARGO QUALCHE PER CENTO "
                  "MAGGIORE. I TERMINALI AGGIUNGONO CIRCA 0,6 nH PER mm."};
  ui::Button cmdaprebobineHF{this, "cmdaprebobineHF", "PER BOBINE HF CLICCA QUI"};
  ui::CompanionButton cmdchiamaawg{
      *this, "cmdchiamaawg", "CONVERSIONI AWG", {"frmawg", {180, 180}, {4100, 3000}}};

 public:
  frmmicrobobine() : Calculator{"frmmicrobobine", "COSTRUZIONE BOBINE VHF IN ARIA"} {
    Option1.preset(0);
    draw();
    lay_out(
        ui::column(ui::row(ui::column(Option1, ui::form(txtdiametro, txtfilo, txtpasso, txtinput),
                                      ui::stretch()),
                           drawing),
                   lblspire, lbllunghezza, lblfilo, lbltaratura, Label6),
        {&cmdaprebobineHF, &cmdchiamaawg});

    Option1.on_click([this](int index) {
      if (index == 0) {
        txtinput.ask_anew(inductance_prompt, inductance_range_uh);
      } else {
        txtinput.ask_anew("NUMERO DELLE SPIRE", {1, 50});
      }
    });
    cmdaprebobineHF.on_click([] { open("frmbobine"); });
  }

  void show_example() override { fill_in({"6", "1", "1.5", "0.1"}); }

 private:
  void draw() {
    constexpr double left = 4;
    constexpr double right = 22;
    constexpr double top = 6.5;
    constexpr double bottom = 15.5;
    constexpr double above = 3.5;
    constexpr double beside = 26;
    drawing.winding({left, (top + bottom) / 2}, {right, (top + bottom) / 2}, bottom - top, 6);
    for (const double end : {left, right}) {
      drawing.wire({{end, bottom}, {end, bottom + 3}})
          .extension({end, top - 0.7}, {end, above - 0.5});
    }
    drawing.dimension({left, above}, {right, above})
        .label(lbll, {(left + right) / 2, above - 0.5}, ui::Schematic::Side::above)
        .extension({right - 1, top}, {beside + 0.5, top})
        .extension({right + 0.5, bottom}, {beside + 0.5, bottom})
        .dimension({beside, top}, {beside, bottom})
        .label(lbld, {beside + 0.5, (top + bottom) / 2}, ui::Schematic::Side::right);
  }

  void compute() override {
    const ShortCoil coil{metres(txtdiametro) + metres(txtfilo), metres(txtfilo)};
    check_dimensions(coil);
    if (Option1.selected() == 0) {
      stretch_to(coil, txtinput.value() / 1e6);
    } else {
      const Real turns = txtinput.value();
      const Real pitch_m = metres(txtpasso);
      lblspire = inductance_text(short_coil_inductance_h(coil, turns, pitch_m));
      lbllunghezza = "LUNGHEZZA DELLA BOBINA = " + millimetres(turns * pitch_m, 1);
      show_wire(coil, turns, pitch_m);
    }
  }

  void check_dimensions(const ShortCoil& coil) {
    constexpr double slack_mm = 1e-9;
    require(txtdiametro.value() >= txtfilo.value(), txtdiametro,
            "IL DIAMETRO INTERNO NON PUO' ESSERE MINORE DEL FILO");
    require(txtpasso.value() >= txtfilo.value(), txtpasso,
            "IL PASSO NON PUO' ESSERE MINORE DEL DIAMETRO DEL FILO");
    const Real widest_m = widest_pitch_m(coil);
    require(txtpasso.value() <= 1000 * widest_m + slack_mm, txtpasso,
            "PASSO TROPPO LARGO: AL MASSIMO " + fixed_down(1000 * widest_m, 2) + " mm");
  }

  void stretch_to(const ShortCoil& coil, Real inductance_h) {
    const Real closest_m = metres(txtpasso);
    advise(inductance_h > short_coil_inductance_h(coil, 1, closest_m), txtdiametro,
           "BASTA UNA SPIRA O MENO: RIDURRE IL DIAMETRO INTERNO");
    const std::optional<Real> turns = fewest_turns(coil, closest_m, inductance_h);
    advise(turns.has_value(), txtdiametro,
           "OCCORRONO PIU' DI 50 SPIRE: AUMENTARE IL DIAMETRO INTERNO");
    const std::optional<Real> pitch_m = stretched_pitch_m(coil, *turns, closest_m, inductance_h);
    advise(pitch_m.has_value(), txtdiametro,
           "NESSUN NUMERO INTERO DI SPIRE: CAMBIARE IL DIAMETRO INTERNO");

    lblspire = "SPIRE = " + plain(*turns);
    lbllunghezza = "ALLUNGARE LA BOBINA A " + millimetres(*turns * *pitch_m, 1) + "  (PASSO " +
                   millimetres(*pitch_m, 2) + ")";
    lbltaratura = "AL PASSO DATO: " + millimetres(*turns * closest_m, 1) + ", " +
                  inductance_text(short_coil_inductance_h(coil, *turns, closest_m));
    show_wire(coil, *turns, *pitch_m);
  }

  static std::string inductance_text(Real inductance_h) {
    return "L = " + fixed(inductance_h * 1e6, 4) + " uH";
  }

  void show_wire(const ShortCoil& coil, Real turns, Real pitch_m) {
    lblfilo =
        "FILO NECESSARIO = " + plain(rounded_up(1000 * short_coil_wire_m(coil, turns, pitch_m))) +
        " mm PIU' I TERMINALI";
    lbll = millimetres(turns * pitch_m, 1);
    lbld = plain(txtdiametro.value()) + " mm";
  }
};

const ui::Registration<frmmicrobobine> registration{"frmmicrobobine"};

}  // namespace

}  // namespace eterlab::coils
