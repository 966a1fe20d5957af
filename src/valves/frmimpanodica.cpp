#include <array>
#include <string>

#include "common/number_text.h"
#include "ui/plot.h"
#include "ui/ui.h"
#include "valves/anode_load.h"

namespace eterlab::valves {

namespace {

constexpr std::array conduction_degrees{class_a_degrees, class_ab_degrees, class_b_degrees,
                                        class_c_degrees};
constexpr ui::Range volts{10, 10000};
constexpr double whole_cycle_degrees = 360;
constexpr int columns = 56;
constexpr int rows = 24;

ui::Axis cycle() {
  return {.title = "ANGOLO",
          .unit = "GRADI",
          .range = ui::Interval{0, whole_cycle_degrees},
          .step = whole_cycle_degrees / 4};
}

// The load that the anodes of a power stage must see.
class frmimpanodica final : public ui::Calculator {
  ui::Frame Frame1{this, "Frame1", "CLASSE DI LAVORO"};
  ui::OptionArray Option1{Frame1,
                          "Option1",
                          {"CLASSE A (360 GRADI)", "CLASSE AB (210 GRADI)", "CLASSE B (180 GRADI)",
                           "CLASSE C (120 GRADI)"}};
  ui::Frame Frame2{this, "Frame2", "VALVOLE"};
  ui::OptionArray Option2{Frame2, "Option2", {"UNA, O PIU' IN PARALLELO", "IN CONTROFASE"}};
  ui::Input txtva{
      this, "txtva", "TENSIONE ANODICA in V", {.range = volts, .prompt_name = "Label1"}};
  ui::Input txtia{this,
                  "txtia",
                  "CORRENTE ANODICA TOTALE A PIENO PILOTAGGIO in mA",
                  {.range = ui::Range{1, 10000}, .prompt_name = "Label2"}};
  ui::Input txtvmin{this,
                    "txtvmin",
                    "TENSIONE ANODICA MINIMA in V (FACOLTATIVA)",
                    {.tooltip = "vuota: 15 % della tensione anodica",
                     .range = ui::Range{0, 10000},
                     .is_optional = true,
                     .prompt_name = "Label3"}};
  ui::Result lblimpedenza{this, "lblimpedenza"};
  ui::Result lblingresso{this, "lblingresso"};
  ui::Result lbluscita{this, "lbluscita"};
  ui::Result lblrendimento{this, "lblrendimento"};
  ui::Result lbldissipazione{this, "lbldissipazione"};
  ui::Result lblpicco{this, "lblpicco"};
  ui::Plot plot{this, "plot", cycle(), {.title = "TENSIONE ANODICA", .unit = "V"}, columns, rows};
  ui::Plot plot2{this,    "plot2", cycle(), {.title = "CORRENTE DI UNA VALVOLA", .unit = "mA"},
                 columns, rows};
  ui::CompanionButton cmdchiamaadattatore{
      *this,
      "cmdchiamaadattatore",
      "ADATTATORE A PI-GRECO",
      {.window = "frmadattimppassabasso", .caller_corner = {180, 180}, .corner = {4100, 2800}}};

 public:
  frmimpanodica() : Calculator{"frmimpanodica", "IMPEDENZA ANODICA DI CARICO"} {
    name_hint("Label4");
    Option1.preset(0);
    Option2.preset(0);
    lay_out(ui::column(Frame1.arrange(ui::across(Option1)),
                       ui::row(Frame2.arrange(Option2), ui::form(txtva, txtia, txtvmin)),
                       ui::row(ui::column(lblimpedenza, lblingresso, lbluscita, lblrendimento,
                                          lbldissipazione, lblpicco, ui::stretch()),
                               ui::column(plot, plot2))),
            {&cmdchiamaadattatore}, 122);
  }

  void show_example() override {
    Option1.click(3);
    fill_in({"600", "100", ""});
  }

 private:
  void compute() override {
    constexpr double milli = 1e-3;
    const bool is_push_pull = Option2.selected() == 1;
    const Real supply_v = txtva.value();
    const Real least_v = txtvmin.value();
    require(least_v < supply_v, txtvmin, "LA TENSIONE MINIMA DEVE ESSERE MINORE DI QUELLA ANODICA");
    const PowerStage stage{conduction_degrees[static_cast<std::size_t>(Option1.selected())],
                           is_push_pull ? ValvesInUse::push_pull : ValvesInUse::parallel, supply_v,
                           txtia.value() * milli,
                           least_v == 0 ? usual_least_share_of_supply * supply_v : least_v};
    const AnodeLoad load = anode_load(stage);
    const bool is_class_a = Option1.selected() == 0;
    lblimpedenza = (is_push_pull ? "IMPEDENZA DA ANODO AD ANODO = " : "IMPEDENZA ANODICA = ") +
                   fixed(load.load_ohm, 0) + " Ohm";
    lblingresso = "POTENZA ASSORBITA = " + fixed(load.input_w, 1) + " W";
    lbluscita = "POTENZA RESA = " + fixed(load.output_w, 1) + " W";
    lblrendimento = "RENDIMENTO = " + fixed(100 * load.output_w / load.input_w, 0) + " %";
    lbldissipazione = "DISSIPAZIONE ANODICA = " + fixed(load.greatest_heat_w, 1) +
                      (is_class_a ? " W SENZA SEGNALE" : " W A PIENO PILOTAGGIO");
    lblpicco = "TENSIONE ANODICA DI PICCO = " + fixed(load.peak_anode_v, 0) + " V";

    plot.axes(cycle(), {.title = "TENSIONE ANODICA",
                        .unit = "V",
                        .range = ui::Interval{0, load.peak_anode_v.value()}})
        .curve([&](Real degrees) { return anode_voltage_v(stage, degrees); }, 0,
               whole_cycle_degrees)
        .marker(0, "Vmin " + eng(stage.least_anode_v, "V"))
        .marker(whole_cycle_degrees / 4, "Va " + eng(supply_v, "V"));
    // Room for the text over the peak.
    const double shown_ma = (1.3 * load.peak_current_a / milli).value();
    plot2
        .axes(
            cycle(),
            {.title = "CORRENTE DI UNA VALVOLA", .unit = "mA", .range = ui::Interval{0, shown_ma}})
        .curve([&](Real degrees) { return anode_current_a(stage, degrees) / milli; }, 0,
               whole_cycle_degrees)
        .marker(0, "Ipk " + eng(load.peak_current_a, "A"));
  }
};

const ui::Registration<frmimpanodica> registration{"frmimpanodica"};

}  // namespace

}  // namespace eterlab::valves
