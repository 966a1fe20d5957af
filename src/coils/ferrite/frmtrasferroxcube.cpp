#include <algorithm>
#include <cstddef>
#include <string>

#include "coils/ferrite/ferrite_cores.h"
#include "coils/ferrite/ferrite_transformer.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

constexpr ui::Range impedance_range_ohm{1, 10'000};

// A wideband impedance transformer on a ferrite ring.
class frmtrasferroxcube final : public ui::Calculator {
  ui::Label cmbnucleo_prompt{this, "cmbnucleo_prompt", "NUCLEO"};
  ui::ComboBox cmbnucleo{this, "cmbnucleo", "SCEGLI IL NUCLEO"};
  // Of the core, whatever stands in the boxes: it is not emptied with the results.
  ui::Label lblnucleo{this, "lblnucleo"};
  ui::Input txtprimario{
      this, "txtprimario", "IMPEDENZA DEL PRIMARIO in OHM", {.range = impedance_range_ohm}};
  ui::Input txtsecondario{
      this, "txtsecondario", "IMPEDENZA DEL SECONDARIO in OHM", {.range = impedance_range_ohm}};
  ui::Input txtfrequenza{
      this, "txtfrequenza", "FREQUENZA PIU' BASSA in MHz", {.range = ui::Range{0.05, 60}}};
  ui::Schematic drawing{this, "drawing", 26, 12};
  ui::Value lblp{drawing, "lblp", "P"};
  ui::Value lbls{drawing, "lbls", "S"};
  ui::Result lblprimario{this, "lblprimario"};
  ui::Result lblsecondario{this, "lblsecondario"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Result lblperdita{this, "lblperdita"};
  ui::Note Label6{
      this, "Label6",
      "AVVOLGERE I DUE AVVOLGIMENTI UNO SULL'ALTRO CON FILI CORTI. AL DEI NUCLEI +/- 20 "
      "%. SE IL NUCLEO SCALDA AUMENTARE LE SPIRE DI ENTRAMBI."};

 public:
  frmtrasferroxcube()
      : Calculator{"frmtrasferroxcube", "TRASFORMATORI A LARGA BANDA SU NUCLEI IN FERRITE"} {
    lblnucleo.set_role(ui::Label::Role::result);
    for (const FerriteCore& core : ferrite_cores()) {
      cmbnucleo.add(core.name);
    }
    draw();
    lay_out(ui::column(
        ui::row(ui::form(field(cmbnucleo_prompt, cmbnucleo)), ui::stretch()), lblnucleo,
        ui::row(ui::column(ui::form(txtprimario, txtsecondario, txtfrequenza), ui::stretch()),
                drawing),
        lblprimario, lblsecondario, lblimpedenza, lblreattanza, lblpotenza, lblperdita, Label6));

    cmbnucleo.on_choose([this] {
      lblnucleo = "AL = " + plain(core().inductance_index_nh) + " nH PER SPIRA AL QUADRATO, " +
                  plain(core().outer_diameter_mm) + " x " + plain(core().inner_diameter_mm) +
                  " x " + plain(core().height_mm) + " mm";
    });
  }

  void show_example() override {
    cmbnucleo.choose("FT-240-43");
    fill_in({"50", "200", "3.5"});
  }

 private:
  [[nodiscard]] const FerriteCore& core() const {
    return ferrite_cores()[static_cast<std::size_t>(cmbnucleo.chosen())];
  }

  void draw() {
    using Side = ui::Schematic::Side;
    constexpr ui::Transformer transformer{{13, 6}, ui::Transformer::Core::iron};
    constexpr double left = 3;
    constexpr double right = 23;
    drawing.transformer(transformer)
        .label(lblp, {transformer.primary_tap.x - 1.2, transformer.primary_tap.y}, Side::left)
        .label(lbls, {transformer.secondary_tap.x + 1.2, transformer.secondary_tap.y}, Side::right);
    for (const ui::At& end : {transformer.primary_top, transformer.primary_bottom}) {
      drawing.wire({{left, end.y}, end}).terminal({left, end.y});
    }
    for (const ui::At& end : {transformer.secondary_top, transformer.secondary_bottom}) {
      drawing.wire({end, {right, end.y}}).terminal({right, end.y});
    }
  }

  void check() override {
    require(cmbnucleo.chosen() >= 0, cmbnucleo, "SCEGLIERE UN NUCLEO");
    Calculator::check();
  }

  void compute() override {
    constexpr int most_low_turns = 40;
    constexpr int most_high_turns = 200;
    const Real primary_ohm = txtprimario.value();
    const Real secondary_ohm = txtsecondario.value();
    const auto [low_ohm, high_ohm] = std::minmax(primary_ohm, secondary_ohm);
    const Real frequency_hz = txtfrequenza.value() * 1e6;
    advise(least_low_turns(core(), low_ohm, frequency_hz) <= most_low_turns, cmbnucleo,
           "TROPPE SPIRE: SCEGLIERE UN NUCLEO CON AL MAGGIORE");
    const FerriteTransformer transformer =
        ferrite_transformer(core(), low_ohm, high_ohm, frequency_hz);
    advise(transformer.high_turns <= most_high_turns, txtsecondario,
           "TROPPE SPIRE: IL RAPPORTO TRA LE IMPEDENZE E' TROPPO ALTO");

    const bool steps_up = primary_ohm <= secondary_ohm;
    const Real primary_turns = steps_up ? transformer.low_turns : transformer.high_turns;
    const Real secondary_turns = steps_up ? transformer.high_turns : transformer.low_turns;
    const Real turns_ratio = primary_turns / secondary_turns;
    lblp = plain(primary_turns);
    lbls = plain(secondary_turns);
    lblprimario = "PRIMARIO = " + lblp.content() + " SPIRE";
    lblsecondario = "SECONDARIO = " + lbls.content() + " SPIRE";
    lblimpedenza =
        "IMPEDENZA VISTA AL PRIMARIO = " + fixed(secondary_ohm * turns_ratio * turns_ratio, 1) +
        " Ohm  (ROS " + fixed(transformer.standing_wave_ratio, 2) + ")";
    lblreattanza = "IMPEDENZA DEL PRIMARIO A VUOTO = " +
                   fixed(transformer.turn_impedance_ohm * primary_turns * primary_turns, 0) +
                   " Ohm";
    lblpotenza = "POTENZA MASSIMA CIRCA " + fixed(transformer.greatest_power_w, 1) + " WATT";
    lblperdita = "PERDITA NEL NUCLEO CIRCA " + fixed(transformer.core_loss_db, 2) + " dB";
  }
};

const ui::Registration<frmtrasferroxcube> registration{"frmtrasferroxcube"};

}  // namespace

}  // namespace eterlab::coils
