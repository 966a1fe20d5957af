#include "coils/flat_spiral.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

constexpr std::string_view mean_radius_at_rest = "RAGGIO MEDIO";
constexpr std::string_view width_at_rest = "SPESSORE";

// A flat spiral air coil from its turns and radii.
class frminduttanzaspirale final : public ui::Window {
  ui::Heading Label1{
      this, "Label1",
      "BOBINA A SPIRALE SENZA NUCLEO                                FORMULA  APPROSSIMATIVA"};
  ui::Label Label2{this, "Label2", "NUMERO DELLE SPIRE"};
  ui::TextBox txtnr{this, "txtnr"};
  ui::Label Label3{this, "Label3", "RAGGIO INTERNO in mm"};
  ui::TextBox txtr1{this, "txtr1", ui::tooltip("diametro del supporto")};
  ui::Label Label4{this, "Label4", "RAGGIO ESTERNO in mm"};
  ui::TextBox txtr2{this, "txtr2",
                    ui::tooltip("digitare un dato compatibile con la sezione del filo")};
  ui::Note Label5{this, "Label5", "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO"};
  ui::Schematic sketch{this, "sketch", 44, 37};
  ui::Label lblraggiointerno{sketch, "lblraggiointerno", "raggio interno"};
  ui::Label lblspessore{sketch, "lblspessore", width_at_rest};
  ui::Label lblmedio{sketch, "lblmedio", mean_radius_at_rest};
  ui::Label lblraggioesterno{sketch, "lblraggioesterno", "raggio esterno"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci", "E X I T"};

 public:
  frminduttanzaspirale()
      : Window{"frminduttanzaspirale", "CALCOLO INDUTTANZA DI  UNA BOBINA A SPIRALE"} {
    draw();
    lblinduttanza.hide();
    arrange(ui::column(Label1,
                       ui::row(ui::column(ui::form(field(Label2, txtnr), field(Label3, txtr1),
                                                   field(Label4, txtr2)),
                                          Label5, lblinduttanza, ui::stretch()),
                               sketch),
                       ui::buttons(cmdcalcola, cmdesci)));

    for (ui::TextBox* box : {&txtnr, &txtr1, &txtr2}) {
      box->on_change([this] { input_change(); });
    }
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtnr = "10";
    txtr1 = "10";
    txtr2 = "30";
    cmdcalcola.click();
  }

 private:
  // The coil from above; its radii are measured below it.
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double centre = 18;
    constexpr double inner = 5;
    constexpr double outer = 13;
    constexpr double mean = (inner + outer) / 2;
    constexpr double first = 2 * outer + 3;
    constexpr double second = first + 3;
    constexpr double third = second + 3;
    sketch.spiral({centre, outer + 1}, inner, outer, 5)
        .junction({centre, outer + 1})
        .dashed({{centre, outer + 1}, {centre, third + 1}})
        .dashed({{centre + inner, outer + 1}, {centre + inner, first + 1}})
        .dashed({{centre + mean, outer + 1}, {centre + mean, second + 1}})
        .dashed({{centre + outer, outer + 1}, {centre + outer, third + 1}})
        .dimension({centre, first}, {centre + inner, first})
        .dimension({centre + inner, first}, {centre + outer, first})
        .dimension({centre, second}, {centre + mean, second})
        .dimension({centre, third}, {centre + outer, third})
        .label(lblraggiointerno, {centre, first}, Side::left)
        .label(lblspessore, {centre + outer, first}, Side::right)
        .label(lblmedio, {centre, second}, Side::left)
        .label(lblraggioesterno, {centre, third}, Side::left);
  }

  // The outer radius keeps its last text.
  void input_change() {
    lblinduttanza.hide();
    lblmedio = mean_radius_at_rest;
    lblspessore = width_at_rest;
  }

  void cmdcalcola_click() {
    const Real turns = txtnr.number();
    const Real inner_radius_mm = txtr1.number();
    const Real outer_radius_mm = txtr2.number();
    if (turns * inner_radius_mm * outer_radius_mm <= 0) {
      refuse(txtnr);
      return;
    }
    if (inner_radius_mm > outer_radius_mm) {
      refuse(txtr1, "IL RAGGIO ESTERNO E' SEMPRE MAGGIORE");
      return;
    }
    const FlatSpiral coil = flat_spiral(turns, inner_radius_mm, outer_radius_mm);
    lblinduttanza = "l'induttanza è µhenry    " + plain(coil.inductance_uh);
    lblmedio = plain(coil.mean_radius_mm) + " mm";
    lblspessore = plain(coil.width_mm) + " mm";
    lblraggioesterno = plain(outer_radius_mm) + " mm";
    lblinduttanza.show();
  }
};

const ui::Registration<frminduttanzaspirale> registration{"frminduttanzaspirale"};

}  // namespace

}  // namespace eterlab::coils
