#include "common/number_text.h"
#include "power/ac_power.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::power {

namespace {

using Side = ui::Schematic::Side;

// The powers of a load on alternating current, and the capacitor that corrects it.
class frmcorralternata final : public ui::Calculator {
  ui::Input txtvolt{this, "txtvolt", "TENSIONE EFFICACE in VOLT"};
  ui::Input txtampere{this, "txtampere", "CORRENTE EFFICACE in AMPERE"};
  ui::Input txtcosfi{this, "txtcosfi", "FATTORE DI POTENZA (COSFI)"};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in Hz", {.holds = "50"}};
  ui::Result lblapparente{this, "lblapparente"};
  ui::Result lblattiva{this, "lblattiva"};
  ui::Result lblreattiva{this, "lblreattiva"};
  ui::Result lblfase{this, "lblfase"};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lblrifasamento{this, "lblrifasamento"};
  ui::Schematic drawing{this, "drawing", 46, 33};
  ui::Value lblvalores{drawing, "lblvalores"};
  ui::Value lblvalorep{drawing, "lblvalorep"};
  ui::Value lblvaloreq{drawing, "lblvaloreq"};
  ui::Value lblvalorefi{drawing, "lblvalorefi"};

 public:
  frmcorralternata() : Calculator{"frmcorralternata", "POTENZE IN CORRENTE ALTERNATA"} {
    draw(ac_power(1, 1, 0.8, 1));
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtvolt, txtampere, txtcosfi, txtfrequenza), ui::stretch()),
                drawing),
        lblapparente, lblattiva, lblreattiva, lblfase, lblimpedenza, lblrifasamento));
  }

  void show_example() override { fill_in({"230", "4", "0.8", "50"}); }

 private:
  /// The triangle of powers, to scale.
  void draw(const AcPower& power) {
    constexpr ui::At origin{10, 27};
    constexpr double longest = 25;
    const double across = (longest * power.active_w / power.apparent_va).value();
    const double up = (longest * power.reactive_var / power.apparent_va).value();
    const ui::At corner{origin.x + across, origin.y};
    const ui::At tip{corner.x, origin.y - up};

    drawing.clear();
    drawing.wire({origin, corner, tip, origin})
        .arrow(origin, corner)
        .arrow(corner, tip)
        .arrow(origin, tip)
        .arc(origin, 3, 0, power.phase_degrees.value());
    constexpr double line = 2;
    const ui::At of_p{origin.x + across / 2, origin.y};
    drawing.mark(of_p, "P", Side::below).label(lblvalorep, {of_p.x, of_p.y + line}, Side::below);
    const ui::At of_q{corner.x, origin.y - up / 2};
    drawing.mark({of_q.x, of_q.y - line / 2}, "Q", Side::right)
        .label(lblvaloreq, {of_q.x, of_q.y + line / 2}, Side::right);
    const ui::At of_s{origin.x + across / 2, origin.y - up / 2 - line / 2};
    drawing.mark({of_s.x, of_s.y - line}, "S", Side::left).label(lblvalores, of_s, Side::left);
    drawing.mark({origin.x, origin.y - line / 2}, "φ", Side::left)
        .label(lblvalorefi, {origin.x, origin.y + line / 2}, Side::left);
  }

  void compute() override {
    require(txtcosfi.value() <= 1, txtcosfi, "IL COSFI NON PUO' SUPERARE 1");
    const AcPower power =
        ac_power(txtvolt.value(), txtampere.value(), txtcosfi.value(), txtfrequenza.value());
    lblapparente = "POTENZA APPARENTE = " + eng(power.apparent_va, "VA");
    lblattiva = "POTENZA ATTIVA = " + eng(power.active_w, "W");
    lblreattiva = "POTENZA REATTIVA = " + eng(power.reactive_var, "VAR");
    lblfase = "SFASAMENTO = " + fixed(power.phase_degrees, 1) + " GRADI";
    lblimpedenza = "IMPEDENZA DEL CARICO = " + eng(power.impedance_ohm, "Ohm");
    lblrifasamento = "CONDENSATORE DI RIFASAMENTO (CARICO INDUTTIVO) = " +
                     eng(power.correcting_capacitor_f, "F");
    draw(power);
    lblvalores = eng(power.apparent_va, "VA");
    lblvalorep = eng(power.active_w, "W");
    lblvaloreq = eng(power.reactive_var, "VAR");
    lblvalorefi = fixed(power.phase_degrees, 1) + "°";
  }
};

const ui::Registration<frmcorralternata> registration{"frmcorralternata"};

}  // namespace

}  // namespace eterlab::power
