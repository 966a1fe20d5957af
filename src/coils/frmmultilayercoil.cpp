#include "coils/bobbin_drawing.h"
#include "coils/multilayer_coil.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

constexpr std::string_view inner_at_rest = "r";
constexpr std::string_view outer_at_rest = " R ";
constexpr std::string_view width_at_rest = "larghezza";
constexpr std::string_view thickness_at_rest = "Spessore";

// A multilayer air coil from its turns, bobbin and wire.
class frmmultilayercoil final : public ui::Window {
  ui::Label lblnumerospire{this, "lblnumerospire", "numero delle spire"};
  ui::TextBox txtspire{this, "txtspire"};
  ui::Label lbllarghezza{this, "lbllarghezza", "larghezza del rocchetto in mm"};
  ui::TextBox txtlarghezza{this, "txtlarghezza"};
  ui::Label lblraggionucleo{this, "lblraggionucleo", "raggio interno bobina in mm (r)",
                            ui::tooltip("calcolato al centro spira")};
  ui::TextBox txtraggionucleo{this, "txtraggionucleo",
                              ui::tooltip("digitare un dato compatibile con la sezione del filo")};
  ui::Label lbldiametrofilo{this, "lbldiametrofilo", "diametro filo in mm"};
  ui::TextBox txtdiametrofilo{this, "txtdiametrofilo", ui::tooltip("diametro del supporto")};
  ui::Schematic sketch{this, "sketch", 42, 31};
  ui::Label lblr1{sketch, "lblr1", inner_at_rest};
  ui::Label lblr2{sketch, "lblr2", outer_at_rest};
  ui::Label lbllarg{sketch, "lbllarg", width_at_rest};
  ui::Label lblspessore{sketch, "lblspessore", thickness_at_rest};
  ui::Frame Frame1{this, "Frame1"};
  ui::Result lblhenry{Frame1, "lblhenry"};
  ui::Result lbllunghezzafilo{Frame1, "lbllunghezzafilo"};
  ui::Result lblnspirestrato{Frame1, "lblnspirestrato"};
  ui::Result lblnstrati{Frame1, "lblnstrati"};
  ui::Result lblrdc{Frame1, "lblrdc"};
  ui::Note lbltesto{this, "lbltesto",
                    "LA  FORMULA DI WHEELER UTILIZZATA  E'  EMPIRICA  E  PERTANTO I RISULTATI SONO "
                    "DA CONSIDERARSI APPROSSIMATIVI"};
  ui::Note Label5{this, "Label5", "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO"};
  ui::Button cmdchiamaawg{this, "cmdchiamaawg", "CONVERSIONI AWG"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci", "E X I T"};

 public:
  frmmultilayercoil()
      : Window{"frmmultilayercoil",
               "CALCOLO  BOBINE  MULTISTRATO  CIRCOLARI  IN  ARIA      FORMULA DI WHEELER"} {
    draw();
    Frame1.hide();
    arrange(ui::column(
        ui::row(
            ui::column(ui::form(field(lblnumerospire, txtspire), field(lbllarghezza, txtlarghezza),
                                field(lblraggionucleo, txtraggionucleo),
                                field(lbldiametrofilo, txtdiametrofilo)),
                       Label5, lbltesto, ui::stretch()),
            sketch),
        Frame1.arrange(ui::column(lblhenry, lblnspirestrato, lblnstrati, lbllunghezzafilo, lblrdc)),
        ui::buttons(cmdchiamaawg, cmdcalcola, cmdesci)));

    for (ui::TextBox* box : {&txtspire, &txtlarghezza, &txtraggionucleo, &txtdiametrofilo}) {
      box->on_change([this] { input_change(); });
    }
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
    cmdchiamaawg.on_click([] { cmdchiamaawg_click(); });
  }

  void show_example() override {
    txtspire = "100";
    txtlarghezza = "10";
    txtraggionucleo = "10";
    txtdiametrofilo = "0.5";
    cmdcalcola.click();
  }

 private:
  // The bobbin cut along its axis, with the winding's section on either side of it.
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr BobbinPlace bobbin{.left = 12, .right = 28, .axis = 14};
    constexpr double left = bobbin.left;
    constexpr double right = bobbin.right;
    constexpr double axis = bobbin.axis;
    constexpr double inner = bobbin.inner;
    constexpr double outer = bobbin.outer;
    constexpr double flange = bobbin.flange;
    draw_bobbin(sketch, bobbin);
    sketch.dashed({{left - 4, axis - outer}, {left, axis - outer}})
        .dashed({{left - 4, axis}, {left - 2, axis}})
        .dashed({{right, axis - outer}, {right + 3, axis - outer}})
        .dashed({{right, axis - inner}, {right + 3, axis - inner}})
        .dimension({20, axis}, {20, axis - inner})
        .dimension({left - 3, axis}, {left - 3, axis - outer})
        .dimension({right + 2, axis - inner}, {right + 2, axis - outer})
        .dimension({left, axis + flange + 1.3}, {right, axis + flange + 1.3})
        .label(lblr1, {20, axis - inner / 2}, Side::right)
        .label(lblr2, {left - 3, axis - outer / 2}, Side::left)
        .label(lblspessore, {right + 2, axis - (inner + outer) / 2}, Side::right)
        .label(lbllarg, {20, axis + flange + 1.5}, Side::below);
  }

  void input_change() {
    Frame1.hide();
    lblr1 = inner_at_rest;
    lblr2 = outer_at_rest;
    lbllarg = width_at_rest;
    lblspessore = thickness_at_rest;
  }

  void cmdcalcola_click() {
    const Real wire_cm = txtdiametrofilo.number() / 10;
    const Real inner_radius_cm = txtraggionucleo.number() / 10;
    const Real width_cm = txtlarghezza.number() / 10;
    const Real turns = txtspire.number();
    if (wire_cm * inner_radius_cm * width_cm * turns <= 0) {
      refuse(txtdiametrofilo);
      return;
    }
    const MultilayerCoil coil = multilayer_coil(turns, width_cm, inner_radius_cm, wire_cm);
    if (coil.inductance_uh <= 1000) {
      lblhenry = "L'INDUTTANZA E' µHenry :   " + fixed(coil.inductance_uh, 2);
    } else {
      lblhenry = "L'INDUTTANZA E' milli Henry :   " + plain(coil.inductance_uh / 1000);
    }
    lbllunghezzafilo = "L'AVVOLGIMENTO E' LUNGO CIRCA METRI " + plain(coil.wire_length_m);
    lblnspirestrato = "LE SPIRE PER STRATO SONO " + fixed(coil.turns_per_layer, 1);
    lblnstrati = "GLI STRATI SONO  " + fixed(coil.layers, 1);
    lblrdc = "LA RESISTENZA ALLA CORRENTE CONTINUA E' " + fixed(coil.resistance_ohm, 2) + " OHMS";
    lblr1 = plain(inner_radius_cm) + " cm ";
    lblr2 = fixed(coil.outer_radius_cm, 1) + " cm";
    lbllarg = plain(width_cm) + " cm";
    lblspessore = fixed(coil.thickness_cm, 2) + " cm";
    Frame1.show();
  }

  // It is the window of VHF coils that makes room, not this one.
  static void cmdchiamaawg_click() {
    place("frmmicrobobine", {180, 180});
    place("frmawg", {4100, 3000});
    open("frmawg");
  }
};

const ui::Registration<frmmultilayercoil> registration{"frmmultilayercoil"};

}  // namespace

}  // namespace eterlab::coils
