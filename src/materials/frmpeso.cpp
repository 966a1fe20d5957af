#include "common/number_text.h"
#include "materials/bars.h"
#include "materials/round_wire.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::materials {

namespace {

enum Shape { rod, tube, flat };  // the options

// The weight of bars and tubes.
class frmpeso final : public ui::Calculator {
  ui::OptionArray Option1{this, "Option1", {"TONDO PIENO", "TUBO", "PIATTO"}};
  ui::List cmbmateriale{this, "cmbmateriale", "MATERIALE"};
  ui::InputArray txtinput{this, "txtinput", {"", ""}, {.prompt_name = "lblinput"}};
  ui::Input txtlunghezza{this, "txtlunghezza", "LUNGHEZZA in mt."};
  ui::Result lblspecifico{this, "lblspecifico"};
  ui::Result lblsezione{this, "lblsezione"};
  ui::Result lblmetro{this, "lblmetro"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Schematic drawing{this, "drawing", 34, 22};
  ui::Value lblvalorelarghezza{drawing, "lblvalorelarghezza"};
  ui::Value lblvalorespessore{drawing, "lblvalorespessore"};

 public:
  frmpeso() : Calculator{"frmpeso", "PESO SPECIFICO E PESO DI BARRE E TUBI"} {
    cmbmateriale.offer(bar_materials());
    Option1.preset(rod);
    ask_for(rod);
    txtinput[1].prompt().reserve("SPESSORE DELLA PARETE in mm :");
    lay_out(ui::column(
        ui::across(Option1),
        ui::row(ui::column(ui::form(cmbmateriale, txtinput, txtlunghezza), ui::stretch()), drawing),
        lblspecifico, lblsezione, lblmetro, lbloutput));
    Option1.on_click([this](int shape) {
      ask_for(shape);
      clear_inputs();
    });
  }

  void show_example() override {
    Option1.click(tube);
    fill_in({"25", "1.5", "1"});
  }

 private:
  void ask_for(int shape) {
    drawing.clear();
    switch (shape) {
      case rod:
        txtinput[0].ask("DIAMETRO in mm :");
        txtinput[1].hide();
        draw_rod();
        break;
      case tube:
        txtinput[0].ask("DIAMETRO ESTERNO in mm :");
        txtinput[1].ask("SPESSORE DELLA PARETE in mm :");
        draw_tube();
        break;
      default:
        txtinput[0].ask("LARGHEZZA in mm :");
        txtinput[1].ask("SPESSORE in mm :");
        draw_flat();
    }
  }

  static constexpr ui::At centre{12, 9};
  static constexpr double radius = 7;
  static constexpr double width_y = 18;
  static constexpr double arrow_length = 3;

  void draw_rod() {
    drawing.shaded_circle(centre, radius);
    dimension_across();
  }

  void draw_tube() {
    constexpr double wall = 1.5;
    constexpr double outer = centre.x + radius;
    constexpr double inner = outer - wall;
    drawing.shaded_ring(centre, radius - wall, radius)
        .arrow({inner - arrow_length, centre.y}, {inner, centre.y})
        .arrow({outer + arrow_length, centre.y}, {outer, centre.y})
        .label(lblvalorespessore, {outer + arrow_length, centre.y}, ui::Schematic::Side::right);
    dimension_across();
  }

  void draw_flat() {
    constexpr double half_thickness = 1.5;
    constexpr double top = centre.y - half_thickness;
    constexpr double bottom = centre.y + half_thickness;
    constexpr double right = centre.x + radius;
    constexpr double thickness_x = right + 2;
    drawing.shaded_box({centre.x - radius, top}, {right, bottom})
        .arrow({thickness_x, top - arrow_length}, {thickness_x, top})
        .arrow({thickness_x, bottom + arrow_length}, {thickness_x, bottom})
        .label(lblvalorespessore, {thickness_x, centre.y}, ui::Schematic::Side::right);
    dimension_across();
  }

  void dimension_across() {
    drawing.dimension({centre.x - radius, width_y}, {centre.x + radius, width_y})
        .label(lblvalorelarghezza, {centre.x, width_y}, ui::Schematic::Side::below);
  }

  [[nodiscard]] Real section_mm2() const {
    const Real width_mm = txtinput[0].value();
    const Real thickness_mm = txtinput[1].value();
    switch (Option1.selected()) {
      case rod:
        return round_section_mm2(width_mm);
      case tube:
        return tube_section_mm2(width_mm, thickness_mm);
      default:
        return width_mm * thickness_mm;
    }
  }

  void compute() override {
    const Real width_mm = txtinput[0].value();
    const Real thickness_mm = txtinput[1].value();
    require(Option1.selected() != tube || 2 * thickness_mm < width_mm, txtinput[1],
            "LO SPESSORE DEVE ESSERE MINORE DEL RAGGIO");
    const BarMaterial& material = cmbmateriale.chosen_of(bar_materials());
    const Real section = section_mm2();
    lblspecifico = "PESO SPECIFICO = " + fixed(material.density_kg_per_dm3, 2) + " Kg/dmc";
    lblsezione = "SEZIONE = " + sig(section, 4) + " mmq";
    lblmetro = "PESO AL METRO = " + eng(bar_weight_g(material, section, 1), "g");
    lbloutput = "PESO = " + eng(bar_weight_g(material, section, txtlunghezza.value()), "g");
    lblvalorelarghezza = sig(width_mm, 4) + " mm";
    lblvalorespessore = sig(thickness_mm, 4) + " mm";
  }
};

const ui::Registration<frmpeso> registration{"frmpeso"};

}  // namespace

}  // namespace eterlab::materials
