#include <optional>

#include "common/number_text.h"
#include "transformers/core_window.h"
#include "transformers/smoothing_choke.h"
#include "transformers/winding_text.h"
#include "transformers/wire_table.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::transformers {

namespace {

// The choke that smooths the current of a power supply.
class frmimpedenzefiltro final : public CoreWindow {
  ui::Input txtinduttanza{this,
                          "txtinduttanza",
                          "INDUTTANZA in H",
                          {.range = ui::Range{0.1, 100}, .prompt_name = "Label1"}};
  ui::Input txtma{this,
                  "txtma",
                  "CORRENTE CONTINUA in mA",
                  {.range = ui::Range{1, 1000}, .prompt_name = "Label2"}};
  ui::Input txtvr{this,
                  "txtvr",
                  "RONZIO A 100 Hz in V EFF. (FACOLTATIVO)",
                  {.tooltip = "ai capi dell'impedenza; ingresso a condensatore: trascurabile; "
                              "ingresso a impedenza: circa 0,47 volte la continua",
                   .range = ui::Range{0, 500},
                   .is_optional = true,
                   .prompt_name = "Label3"}};
  ui::Result lblnucleo{this, "lblnucleo"};
  ui::Result lblspire{this, "lblspire"};
  ui::Result lblfilo{this, "lblfilo"};
  ui::Result lbltraferro{this, "lbltraferro"};
  ui::Result lblresistenza{this, "lblresistenza"};
  ui::Result lblcaduta{this, "lblcaduta"};
  ui::Schematic drawing{this, "drawing", 46, 24};
  ui::Value lbldisg{drawing, "lbldisg"};
  ui::Value lbldism{drawing, "lbldism"};
  ui::Value lbldisn{drawing, "lbldisn"};
  ui::Note Label5{
      this, "Label5",
      "IL TRAFERRO E' UN VALORE DI PARTENZA: RITOCCARLO MISURANDO IL RONZIO A PIENO CARICO"};
  ui::CompanionButton cmdchiamatabella{*this, "cmdchiamatabella", "TABELLA FILI SMALTATI",
                                       wire_table};

 public:
  frmimpedenzefiltro()
      : CoreWindow{"frmimpedenzefiltro", "CALCOLO DELLE IMPEDENZE DI FILTRO", "Label4"} {
    name_hint("Label6");
    draw();
    lay_out(ui::column(ui::row(ui::column(ui::form(txtinduttanza, txtma, txtvr, txtsezione),
                                          ui::stretch()),
                               drawing),
                       lblnucleo,
                       ui::row(ui::column(lblspire, lblfilo, lbltraferro),
                               ui::column(lblresistenza, lblcaduta, ui::stretch())),
                       Label5),
            {&cmdchiamatabella});
  }

  void show_example() override { fill_in({"10", "60", "", ""}); }

 private:
  /// A scrapless lamination, under an I over a spacer.
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double tongue = 6.4;
    constexpr double half = tongue / 2;
    constexpr double left = 2;
    constexpr double window_left = left + half;
    constexpr double tongue_left = window_left + half;
    constexpr double tongue_right = tongue_left + tongue;
    constexpr double window_right = tongue_right + half;
    constexpr double right = window_right + half;
    constexpr double i_top = 2;
    constexpr double i_bottom = i_top + half;
    constexpr double e_top = i_bottom + 0.9;  // far more than to scale
    constexpr double window_bottom = e_top + 3 * half;
    constexpr double e_bottom = window_bottom + half;
    drawing.shaded_box({left, i_top}, {right, i_bottom})
        .shaded({{left, e_top},
                 {window_left, e_top},
                 {window_left, window_bottom},
                 {tongue_left, window_bottom},
                 {tongue_left, e_top},
                 {tongue_right, e_top},
                 {tongue_right, window_bottom},
                 {window_right, window_bottom},
                 {window_right, e_top},
                 {right, e_top},
                 {right, e_bottom},
                 {left, e_bottom}});

    drawing.box({left, i_bottom}, {right, e_top});  // the spacer

    // Both sides of the winding, in section.
    constexpr double air = 0.6;
    constexpr double coil_top = e_top + air;
    constexpr double coil_bottom = window_bottom - air;
    for (const double x : {window_left, tongue_right}) {
      constexpr double width = half - 2 * air;
      const double from = x + air;
      drawing.box({from, coil_top}, {from + width, coil_bottom})
          .wire({{from, coil_top}, {from + width, coil_bottom}})
          .wire({{from, coil_bottom}, {from + width, coil_top}});
    }

    constexpr double beside = right + 3;
    constexpr double arrow_length = 2.2;
    for (const double y : {i_bottom, e_top}) {
      drawing.extension({right + 0.4, y}, {beside + 1, y});
    }
    drawing.arrow({beside, i_bottom - arrow_length}, {beside, i_bottom})
        .arrow({beside, e_top + arrow_length}, {beside, e_top})
        .label(lbldisg, {beside + 1, (i_bottom + e_top) / 2}, Side::right);

    constexpr double under = e_bottom + 2;
    for (const double x : {tongue_left, tongue_right}) {
      drawing.extension({x, window_bottom}, {x, under + 0.6});
    }
    drawing.dimension({tongue_left, under}, {tongue_right, under})
        .label(lbldism, {(tongue_left + tongue_right) / 2, under}, Side::below);

    constexpr double coil_right = window_right - air;
    constexpr double middle = (coil_top + coil_bottom) / 2 + 1;
    drawing.arrow({beside + 1, middle}, {coil_right, middle})
        .label(lbldisn, {beside + 1, middle}, Side::right);
  }

  void compute() override {
    const ChokeTask task{txtinduttanza.value(), txtma.value() / 1000, txtvr.value()};
    const std::optional<LaminatedCore> smallest =
        smallest_core([&](const LaminatedCore& core) { return smoothing_choke(task, core).fits; });
    require(smallest.has_value(), txtinduttanza,
            "NUCLEO OLTRE 50 cmq: RIDURRE L'INDUTTANZA O LA CORRENTE");
    const LaminatedCore core = is_section_typed() ? LaminatedCore{txtsezione.value()} : *smallest;
    const SmoothingChoke choke = smoothing_choke(task, core);
    require(choke.fits, txtsezione,
            "NUCLEO TROPPO PICCOLO: SERVONO ALMENO " + typed_section(*smallest) + " cmq");
    lblnucleo = core_text(core);
    lblspire = "SPIRE = " + fixed(choke.turns, 0);
    lblfilo = "FILO = " + wire_text(*choke.wire) + ", " + fixed(choke.copper_g, 0) + " g";
    lbltraferro = spacer_text(choke.gap_m);
    lblresistenza = "RESISTENZA = " + fixed(choke.resistance_ohm, 0) + " Ohm";
    lblcaduta =
        "CADUTA DI TENSIONE = " + fixed(choke.resistance_ohm * task.direct_current_a, 1) + " V";
    lbldisg = has_no_spacer(choke.gap_m) ? "0" : fixed(spacer_mm(choke.gap_m), 2) + " mm";
    lbldism = fixed(core.tongue_to_buy_mm(), 0) + " mm";
    lbldisn = fixed(choke.turns, 0) + " SPIRE";
  }
};

const ui::Registration<frmimpedenzefiltro> registration{"frmimpedenzefiltro"};

}  // namespace

}  // namespace eterlab::transformers
