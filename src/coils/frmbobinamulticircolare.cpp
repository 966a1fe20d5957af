#include <optional>
#include <string>

#include "coils/bobbin_drawing.h"
#include "coils/layered_coil.h"
#include "coils/layered_coil_results.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

// The turns of a round coil in layers on a given bobbin.
class frmbobinamulticircolare final : public ui::Calculator {
  ui::Input txtinduttanza{
      this, "txtinduttanza", "INDUTTANZA in uH", {.range = ui::Range{1, 100'000}}};
  ui::Input txtdiametro{
      this, "txtdiametro", "DIAMETRO DEL SUPPORTO in mm", {.range = ui::Range{2, 200}}};
  ui::Input txtlarghezza{this,
                         "txtlarghezza",
                         "LARGHEZZA DELL'AVVOLGIMENTO in mm",
                         {.tooltip = "distanza tra le due guance", .range = ui::Range{1, 200}}};
  ui::Input txtfilo{this,
                    "txtfilo",
                    "DIAMETRO DEL FILO SMALTATO in mm",
                    {.tooltip = "misurato con lo smalto", .range = ui::Range{0.05, 5}}};
  ui::Schematic drawing{this, "drawing", 44, 31};
  ui::Value lbldi{drawing, "lbldi", "Di"};
  ui::Value lblde{drawing, "lblde", "De"};
  ui::Value lbllarg{drawing, "lbllarg", "W"};
  LayeredCoilResults results{this};
  ui::Note Label6{this, "Label6",
                  "SPIRE ACCOSTATE, STRATO SU STRATO, SENZA ISOLANTE TRA GLI STRATI. CON "
                  "AVVOLGIMENTO A MANO IL DIAMETRO ESTERNO RISULTA PIU' GRANDE."};
  ui::Button cmdchiamaawg{this, "cmdchiamaawg", "CONVERSIONI AWG"};

 public:
  frmbobinamulticircolare()
      : Calculator{"frmbobinamulticircolare",
                   "BOBINA MULTISTRATO CIRCOLARE IN ARIA   NUMERO DELLE SPIRE"} {
    draw();
    lay_out(
        ui::column(ui::row(ui::column(ui::form(txtinduttanza, txtdiametro, txtlarghezza, txtfilo),
                                      results, ui::stretch()),
                           drawing),
                   Label6),
        {&cmdchiamaawg});
    // It is the window of VHF coils that makes room, not this one.
    cmdchiamaawg.on_click([] {
      place("frmmicrobobine", {180, 180});
      place("frmawg", {4100, 3000});
      open("frmawg");
    });
  }

  void show_example() override { fill_in({"1000", "20", "10", "0.3"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr BobbinPlace bobbin{.left = 18, .right = 34, .axis = 14};
    constexpr double outside = 15;
    constexpr double inside = 22;
    constexpr double below = bobbin.axis + bobbin.flange + 1.3;
    draw_bobbin(drawing, bobbin);
    for (const double side : {-1.0, 1.0}) {
      drawing.extension({bobbin.left, bobbin.axis + side * bobbin.outer},
                        {outside - 0.5, bobbin.axis + side * bobbin.outer});
    }
    drawing.dimension({outside, bobbin.axis - bobbin.outer}, {outside, bobbin.axis + bobbin.outer})
        .label(lblde, {outside - 0.5, bobbin.axis - 1.5}, Side::left)
        .dimension({inside, bobbin.axis - bobbin.inner}, {inside, bobbin.axis + bobbin.inner})
        .label(lbldi, {inside + 0.5, bobbin.axis - 2.5}, Side::right)
        .dimension({bobbin.left, below}, {bobbin.right, below})
        .label(lbllarg, {(bobbin.left + bobbin.right) / 2, below + 0.2}, Side::below);
  }

  void compute() override {
    const RoundForm form{txtdiametro.value() / 1000};
    const Layering layering{txtlarghezza.value() / 1000, txtfilo.value() / 1000};
    const Real inductance_h = txtinduttanza.value() / 1e6;
    const int per_layer = turns_per_layer(layering);
    require(per_layer >= 1, txtfilo, "IL FILO E' PIU' GROSSO DELLA LARGHEZZA DELL'AVVOLGIMENTO");
    advise(inductance_h >= layered_coil(form, layering, 1).inductance_h, txtdiametro,
           "BASTA MENO DI UNA SPIRA: RIDURRE IL DIAMETRO DEL SUPPORTO");
    const std::optional<LayeredCoil> coil = layered_coil_near(form, layering, inductance_h);
    if (is_limited_by_layers(layering)) {
      advise(coil.has_value(), txtlarghezza,
             "TROPPI STRATI: AUMENTARE LA LARGHEZZA DELL'AVVOLGIMENTO");
    }
    advise(coil.has_value(), txtdiametro,
           "OCCORRONO PIU' DI 1500 SPIRE: AUMENTARE IL DIAMETRO DEL SUPPORTO");

    lblde = fixed(txtdiametro.value() + 2 * coil->layers * txtfilo.value(), 1) + " mm";
    lbldi = plain(txtdiametro.value()) + " mm";
    lbllarg = plain(txtlarghezza.value()) + " mm";
    results.show(*coil, per_layer, "DIAMETRO ESTERNO = " + lblde.content());
  }
};

const ui::Registration<frmbobinamulticircolare> registration{"frmbobinamulticircolare"};

}  // namespace

}  // namespace eterlab::coils
