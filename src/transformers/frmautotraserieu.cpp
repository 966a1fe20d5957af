#include <algorithm>
#include <optional>
#include <string>

#include "common/number_text.h"
#include "transformers/universal_autotransformer.h"
#include "transformers/winding_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::transformers {

namespace {

constexpr ui::Range voltages{100, 260};

constexpr int taps = static_cast<int>(universal_taps_v.size());

std::string tap_text(int tap) { return plain(universal_taps_v[static_cast<std::size_t>(tap)]); }

/// A part of the winding, what it carries and the wire for that.
std::string part_text(const std::string& from, const std::string& to, Real current_a) {
  return "TRATTO " + from + " - " + to + ": " + fixed(current_a, 3) + " A, FILO DA " +
         wire_text(*thinnest_wire_for(current_a));
}

// How the universal autotransformer feeds an old radio from other mains.
class frmautotraserieu final : public ui::Calculator {
  ui::Input txtrete{this,
                    "txtrete",
                    "TENSIONE DI RETE in V",
                    {.holds = "230", .range = voltages, .prompt_name = "Label1"}};
  ui::Input txtradio{
      this, "txtradio", "TENSIONE DELLA RADIO in V", {.range = voltages, .prompt_name = "Label2"}};
  ui::Input txtwatt{this,
                    "txtwatt",
                    "POTENZA DELLA RADIO in W",
                    {.range = ui::Range{1, 1000}, .prompt_name = "Label3"}};
  ui::Result lblrete{this, "lblrete"};
  ui::Result lblradio{this, "lblradio"};
  ui::Result lblvuscita{this, "lblvuscita"};
  ui::Result lbltipo{this, "lbltipo"};
  ui::Result lblcomune{this, "lblcomune"};
  ui::Result lblserie{this, "lblserie"};
  ui::Schematic drawing{this, "drawing", 43, 28};
  ui::ControlArray<ui::Value> lblpresa{drawing, "lblpresa", taps};
  ui::ControlArray<ui::Value> lbluso{drawing, "lbluso", taps};
  ui::Note Label4{this, "Label4",
                  "L'AUTOTRASFORMATORE NON ISOLA DALLA RETE: COLLEGARE IL NEUTRO AL MORSETTO 0 E "
                  "NON TOCCARE IL TELAIO"};

 public:
  frmautotraserieu()
      : Calculator{"frmautotraserieu", "AUTOTRASFORMATORE UNIVERSALE: COLLEGAMENTI"} {
    name_hint("Label5");
    draw();
    lay_out(ui::column(ui::row(ui::column(ui::form(txtrete, txtradio, txtwatt), lblrete, lblradio,
                                          lblvuscita, lbltipo, ui::stretch()),
                               drawing),
                       lblcomune, lblserie, Label4));
  }

  void show_example() override { fill_in({"230", "125", "60"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double core_x = 3;
    constexpr double core_gap = 0.5;
    constexpr double winding_x = 5;
    constexpr double terminal_x = 9;
    constexpr double voltage_x = 19;
    constexpr double use_x = 34;
    constexpr double bottom = 26;
    constexpr double between_taps = 4.8;
    constexpr double top = bottom - between_taps * taps;
    for (const double x : {core_x, core_x + core_gap}) {
      drawing.wire({{x, top}, {x, bottom}});
    }
    drawing.wire({{winding_x, bottom}, {terminal_x, bottom}})
        .terminal({terminal_x, bottom})
        .named("0", Side::right)
        .mark({voltage_x, bottom}, "COMUNE")
        .mark({use_x, bottom}, "RETE E RADIO");
    double y = bottom;
    for (int tap = 0; tap < taps; ++tap) {
      drawing.inductor({winding_x, y}, {winding_x, y - between_taps});
      y -= between_taps;
      drawing.wire({{winding_x, y}, {terminal_x, y}})
          .terminal({terminal_x, y})
          .named(tap_text(tap), Side::right)
          .label(lblpresa[tap], {voltage_x, y})
          .label(lbluso[tap], {use_x, y});
    }
  }

  void compute() override {
    const Real mains_v = txtrete.value();
    const Real radio_v = txtradio.value();
    const std::optional<TapPair> nearest = nearest_taps(mains_v, radio_v);
    require(nearest.has_value(), txtrete, "RETE TROPPO ALTA: LA PRESA 220 SATURA IL NUCLEO");
    const AutotransformerLoad load = autotransformer_load(*nearest, mains_v, txtwatt.value());
    constexpr double noise_v = 1e-9;
    const bool is_near = abs(load.radio_v - radio_v) <= 0.1 * radio_v + noise_v;
    const std::string too_far = "LA TENSIONE PIU' VICINA E' " + fixed(load.radio_v, 1) +
                                " V: OLTRE IL 10 % DA QUELLA DELLA RADIO";
    if (nearest->mains == nearest->radio) {
      advise(is_near, txtradio, too_far);
      advise(false, txtradio, "NON SERVE L'AUTOTRASFORMATORE: COLLEGARE LA RADIO ALLA RETE");
    }
    tell(*nearest, mains_v, load);
    if (!is_near) {
      refuse(txtradio, too_far, "MESSAGGIO DI AVVISO");
    }
  }

  void tell(TapPair pair, Real mains_v, const AutotransformerLoad& load) {
    const std::string lower = tap_text(std::min(pair.mains, pair.radio));
    const std::string higher = tap_text(std::max(pair.mains, pair.radio));
    lblrete = "RETE TRA I MORSETTI 0 E " + tap_text(pair.mains);
    lblradio = "RADIO TRA I MORSETTI 0 E " + tap_text(pair.radio);
    lblvuscita = "TENSIONE ALLA RADIO = " + fixed(load.radio_v, 1) + " V";
    lbltipo = "POTENZA DEL NUCLEO = " + fixed(load.core_va, 1) + " VA";
    lblcomune = part_text("0", lower, load.common_current_a);
    lblserie = part_text(lower, higher, load.series_current_a);
    for (int tap = 0; tap < taps; ++tap) {
      lblpresa[tap] = fixed(tap_voltage_v(pair, mains_v, tap), 1) + " V";
    }
    lbluso[pair.mains] = "RETE";
    lbluso[pair.radio] = "RADIO";
  }
};

const ui::Registration<frmautotraserieu> registration{"frmautotraserieu"};

}  // namespace

}  // namespace eterlab::transformers
