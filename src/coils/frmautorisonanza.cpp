#include <optional>
#include <string>

#include "coils/self_resonance.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

constexpr ui::Range capacitance_range_pf{1, 10'000};
constexpr ui::Range frequency_range_mhz{0.01, 500};

// The capacitance of a coil by itself, from its dimensions or from two measurements.
class frmautorisonanza final : public ui::Calculator {
  ui::OptionArray Option1{this, "Option1", {"DALLE DIMENSIONI", "DA DUE MISURE"}};
  ui::Input txt1{this, "txt1", "", {.prompt_name = "lblinput1"}};
  ui::Input txt2{this, "txt2", "", {.prompt_name = "lblinput2"}};
  ui::Input txt3{this, "txt3", "", {.prompt_name = "lblinput3"}};
  ui::Input txt4{this,
                 "txt4",
                 "SECONDA FREQUENZA in MHz",
                 {.range = frequency_range_mhz, .prompt_name = "lblinput4"}};
  ui::Schematic drawing{this, "drawing", 44, 20};
  ui::Value lbll{drawing, "lbll", "L"};
  ui::Value lblc{drawing, "lblc", "C"};
  ui::Result lbloutput1{this, "lbloutput1"};
  ui::Result lbloutput2{this, "lbloutput2"};
  ui::Result lbloutput3{this, "lbloutput3"};
  ui::Result lbloutput4{this, "lbloutput4"};
  ui::Note Label6{this, "Label6",
                  "IL VALORE IN CIRCUITO VALE PER UN CAPO A MASSA; COLLEGAMENTI E MASSE VICINE LO "
                  "ABBASSANO ANCORA DEL 5 - 20 %. USARE LA BOBINA BEN AL DI SOTTO."};
  ui::Button cmdchiamaawg{this, "cmdchiamaawg", "CONVERSIONI AWG"};

 public:
  frmautorisonanza()
      : Calculator{"frmautorisonanza", "AUTORISONANZA E CAPACITA' PROPRIA DI UNA BOBINA"} {
    Option1.preset(0);
    ask();
    draw();
    lay_out(ui::column(ui::row(ui::column(ui::across(Option1), ui::form(txt1, txt2, txt3, txt4),
                                          ui::stretch()),
                               drawing),
                       lbloutput1, lbloutput2, lbloutput3, lbloutput4, Label6),
            {&cmdchiamaawg});

    Option1.on_click([this](int) {
      for (ui::Input* box : {&txt1, &txt2, &txt3, &txt4}) {
        *box = "";
      }
      ask();
    });
    // It is the window of HF coils that makes room, not this one.
    cmdchiamaawg.on_click([] {
      place("frmbobine", {180, 180});
      place("frmawg", {4100, 3000});
      open("frmawg");
    });
  }

  void show_example() override { fill_in({"50", "100", "20"}); }

 private:
  [[nodiscard]] bool is_by_dimensions() const { return Option1.selected() == 0; }

  void ask() {
    if (is_by_dimensions()) {
      txt1.ask("DIAMETRO MEDIO in mm", {3, 500});
      txt2.ask("LUNGHEZZA in mm", {3, 2000});
      txt3.ask("NUMERO DELLE SPIRE", {2, 2000});
      txt4.hide();
    } else {
      txt1.ask("PRIMO CONDENSATORE in pF", capacitance_range_pf);
      txt2.ask("PRIMA FREQUENZA in MHz", frequency_range_mhz);
      txt3.ask("SECONDO CONDENSATORE in pF", capacitance_range_pf);
      txt4.show();
    }
  }

  // Its own capacitance is no part: its wires are dashed.
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double coil = 17;
    constexpr double capacitor = 26;
    constexpr double top = 4;
    constexpr double bottom = 15;
    constexpr double middle = (top + bottom) / 2;
    constexpr double half = 0.8;
    drawing.terminal({coil, top - 2})
        .wire({{coil, top - 2}, {coil, top}})
        .inductor({coil, top}, {coil, bottom})
        .named(lbll, Side::left)
        .dashed({{coil, top}, {capacitor, top}, {capacitor, middle - half}})
        .capacitor({capacitor, middle - half}, {capacitor, middle + half})
        .label(lblc, {capacitor + 1.8, middle}, Side::right)
        .dashed({{capacitor, middle + half}, {capacitor, bottom}, {coil, bottom}})
        .junction({coil, top})
        .junction({coil, bottom})
        .ground({coil, bottom});
  }

  void compute() override {
    const SelfResonance coil = is_by_dimensions() ? by_dimensions() : by_measurements();
    lbll = fixed(coil.inductance_h * 1e6, 2) + " uH";
    lblc = fixed(coil.capacitance_f * 1e12, 1) + " pF";
    lbloutput1 = "INDUTTANZA = " + lbll.content();
    lbloutput2 = "CAPACITA' PROPRIA CIRCA " + lblc.content();
    lbloutput3 = "AUTORISONANZA IN CIRCUITO CIRCA " + fixed(coil.frequency_hz / 1e6, 1) + " MHz";
    if (is_by_dimensions()) {
      lbloutput4 = "BOBINA ISOLATA, AL GRID-DIP: CIRCA " +
                   fixed(isolated_resonance_ratio * coil.frequency_hz / 1e6, 1) + " MHz";
    }
  }

  [[nodiscard]] SelfResonance by_dimensions() {
    const Real diameter_m = txt1.value() / 1000;
    const Real length_m = txt2.value() / 1000;
    require(has_known_self_capacitance(diameter_m, length_m), txt2,
            "LA LUNGHEZZA DEVE STARE TRA 0,1 E 50 DIAMETRI");
    return coil_self_resonance(diameter_m, length_m, txt3.value());
  }

  [[nodiscard]] SelfResonance by_measurements() {
    require(txt3.value() > txt1.value(), txt3,
            "IL SECONDO CONDENSATORE DEVE ESSERE MAGGIORE DEL PRIMO");
    require(txt4.value() < txt2.value(), txt4,
            "LA SECONDA FREQUENZA DEVE ESSERE MINORE DELLA PRIMA");
    const std::optional<SelfResonance> coil = measured_self_resonance(
        {txt1.value() / 1e12, txt2.value() * 1e6}, {txt3.value() / 1e12, txt4.value() * 1e6});
    advise(coil.has_value(), txt2,
           "MISURE NON COERENTI: LA CAPACITA' PROPRIA NON RISULTA POSITIVA");
    return *coil;
  }
};

const ui::Registration<frmautorisonanza> registration{"frmautorisonanza"};

}  // namespace

}  // namespace eterlab::coils
