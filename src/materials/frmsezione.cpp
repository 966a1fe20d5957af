#include <cmath>
#include <optional>

#include "common/number_text.h"
#include "materials/metals.h"
#include "materials/round_wire.h"
#include "materials/strand.h"
#include "ui/schematic.h"
#include "ui/ui.h"
#include "units/wire_gauge.h"

namespace eterlab::materials {

namespace {

enum Given { wire_diameter, total_section };  // the options

// Section and diameter of wires and strands, as the user types.
class frmsezione final : public ui::Calculator {
  static constexpr double largest = 1e6;

  ui::OptionArray Option1{this, "Option1", {"DAL DIAMETRO", "DALLA SEZIONE TOTALE"}};
  ui::Input txtfili{
      this, "txtfili", "NUMERO DEI FILI", {.holds = "1", .range = ui::Range{1, largest}}};
  ui::Input txtinput{
      this, "txtinput", "", {.range = ui::Range{1e-12, largest}, .prompt_name = "lblinput"}};
  ui::Result lblsezione{this, "lblsezione"};
  ui::Result lbldiametro{this, "lbldiametro"};
  ui::Result lblequivalente{this, "lblequivalente"};
  ui::Result lblawg{this, "lblawg"};
  ui::Result lblkm{this, "lblkm"};
  ui::Schematic drawing{this, "drawing", 24, 22};
  ui::Value lblvalorefili{drawing, "lblvalorefili"};
  ui::Note Label1{this, "Label1",
                  "LA SEZIONE E' QUELLA DEL SOLO RAME: IL DIAMETRO ESTERNO DI UNA TRECCIA E' "
                  "MAGGIORE"};

 public:
  frmsezione()
      : Calculator{"frmsezione", "SEZIONE E DIAMETRO DI FILI E TRECCE", Computes::as_typed} {
    Option1.preset(wire_diameter);
    ask_for(wire_diameter);
    lay_out(
        ui::column(ui::row(ui::column(ui::across(Option1), ui::form(txtfili, txtinput), lblsezione,
                                      lbldiametro, lblequivalente, lblawg, lblkm, ui::stretch()),
                           drawing),
                   Label1),
        {}, 88);
    Option1.on_click([this](int given) { ask_for(given); });
  }

  void show_example() override { fill_in({"7", "0.67"}); }

 private:
  void ask_for(int given) {
    txtinput.ask(given == wire_diameter ? "DIAMETRO DI OGNI FILO in mm :"
                                        : "SEZIONE TOTALE in mmq :");
    txtinput = "";
  }

  void compute() override {
    const std::optional<Real> told_wires = txtfili.usable();
    drawing.clear();
    if (!told_wires) {
      return;
    }
    const Real wires = floor(*told_wires);
    draw(wires);
    const std::optional<Real> told = txtinput.usable();
    if (!told) {
      return;
    }
    const Strand strand = Option1.selected() == wire_diameter ? strand_of_wires(wires, *told)
                                                              : strand_of_section(wires, *told);
    const std::optional<int> gauge = units::nearest_awg(strand.equivalent_diameter_mm);
    const Real per_km_ohm = resistance_ohm(copper, strand.section_mm2, 1000);
    const std::string diameter = sig(strand.wire_diameter_mm, 4) + " mm";
    lblsezione = "SEZIONE TOTALE = " + sig(strand.section_mm2, 4) + " mmq";
    lbldiametro = "DIAMETRO DI OGNI FILO = " + diameter;
    lblequivalente = "EQUIVALE A UN FILO UNICO DI " + sig(strand.equivalent_diameter_mm, 4) + " mm";
    lblawg = "AWG PIU' VICINO = " + (gauge ? std::to_string(*gauge) : "FUORI TABELLA");
    lblkm = "RESISTENZA DEL RAME = " + eng(per_km_ohm, "Ohm") + " AL Km";
    lblvalorefili = plain(wires) + " x " + diameter;
  }

  void draw(Real wires) {
    constexpr ui::At centre{12, 9.5};
    constexpr double radius = 8.5;
    constexpr int most_wires = 37;
    drawing.label(lblvalorefili, {centre.x, centre.y + radius + 1}, ui::Schematic::Side::below);
    if (wires > most_wires) {
      drawing.mark(centre, "PIU' DI 37 FILI");
      return;
    }
    const std::vector<WirePlace> places = wires_in_strand(static_cast<int>(wires.value()));
    const WirePlace& outermost = places.back();
    const double wire_radius = radius / (2 * std::hypot(outermost.x, outermost.y) + 1);
    for (const WirePlace& place : places) {
      drawing.shaded_circle(
          {centre.x + 2 * wire_radius * place.x, centre.y + 2 * wire_radius * place.y},
          wire_radius);
    }
  }
};

const ui::Registration<frmsezione> registration{"frmsezione"};

}  // namespace

}  // namespace eterlab::materials
