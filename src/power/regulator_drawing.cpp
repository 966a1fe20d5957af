#include "power/regulator_drawing.h"

namespace eterlab::power::regulator_drawing {

namespace {

using Side = ui::Schematic::Side;

constexpr double input_x = 1;
constexpr double input_capacitor_x = 6;
constexpr double output_capacitor_x = 59;
constexpr double output_x = 73;
constexpr double capacitor_label_y = 17;
constexpr double voltage_y = 4.5;

}  // namespace

void draw_regulator(ui::Schematic& drawing, ui::At input, std::string_view reference_pin_name) {
  const ui::At output = output_of(input);
  const ui::At reference = reference_of(input);
  drawing.box({input.x, input.y - 3.5}, {output.x, reference.y})
      .mark({input.x + 1.6, input.y}, "IN")
      .mark({output.x - 2.2, output.y}, "OUT")
      .mark({reference.x, reference.y - 1.2}, reference_pin_name);
}

void draw_supply(ui::Schematic& drawing, std::string_view reference_pin_name,
                 ui::Label& input_capacitor) {
  drawing.terminal({input_x, supply_y})
      .wire({{input_x, supply_y}, input_pin})
      .electrolytic({input_capacitor_x, supply_y}, {input_capacitor_x, ground_y})
      .junction({input_capacitor_x, supply_y})
      .label(input_capacitor, {input_capacitor_x + 1, capacitor_label_y}, Side::right);
  draw_regulator(drawing, input_pin, reference_pin_name);
  drawing.terminal({input_x, ground_y})
      .wire({{input_x, ground_y}, ground})
      .junction({input_capacitor_x, ground_y})
      .ground(ground);
}

void draw_output(ui::Schematic& drawing, ui::Label& output_capacitor) {
  drawing.wire({output_pin, {output_x, supply_y}})
      .terminal({output_x, supply_y})
      .wire({ground, {output_x, ground_y}})
      .terminal({output_x, ground_y})
      .wire({reference_pin, {reference_pin.x, reference_y}, {divider_x, reference_y}})
      .electrolytic({output_capacitor_x, supply_y}, {output_capacitor_x, ground_y})
      .junction({output_capacitor_x, supply_y})
      .junction({output_capacitor_x, ground_y})
      .label(output_capacitor, {output_capacitor_x + 1, capacitor_label_y}, Side::right);
}

void draw_divider_and_output(ui::Schematic& drawing, const DividerLabels& labels) {
  const double beside_divider_x = divider_x + 0.6;
  draw_output(drawing, labels.output_capacitor);
  drawing.resistor({divider_x, supply_y}, {divider_x, reference_y})
      .resistor({divider_x, reference_y}, {divider_x, ground_y})
      .junction({divider_x, supply_y})
      .junction({divider_x, reference_y})
      .junction({divider_x, ground_y});
  drawing.label(labels.r1, {beside_divider_x, (supply_y + reference_y) / 2}, Side::right)
      .label(labels.r2, {beside_divider_x, (reference_y + ground_y) / 2}, Side::right)
      .label(labels.input_voltage, {0, voltage_y}, Side::right)
      .label(labels.output_voltage, {columns, voltage_y}, Side::left);
}

void draw_protection(ui::Schematic& drawing, ui::Label& capacitor) {
  constexpr double over_the_box_y = 1.5;
  constexpr double before_the_box_x = 21;
  constexpr double behind_the_box_x = 37;
  constexpr double diode_x = 40;
  constexpr double capacitor_x = 36;
  drawing.wire({{behind_the_box_x, supply_y}, {behind_the_box_x, over_the_box_y}})
      .diode({behind_the_box_x, over_the_box_y}, {before_the_box_x, over_the_box_y})
      .wire({{before_the_box_x, over_the_box_y}, {before_the_box_x, supply_y}})
      .junction({before_the_box_x, supply_y})
      .junction({behind_the_box_x, supply_y})
      .diode({diode_x, reference_y}, {diode_x, supply_y})
      .junction({diode_x, reference_y})
      .junction({diode_x, supply_y});
  drawing.electrolytic({capacitor_x, reference_y}, {capacitor_x, ground_y})
      .junction({capacitor_x, reference_y})
      .junction({capacitor_x, ground_y})
      .label(capacitor, {capacitor_x - 1, capacitor_label_y + 0.5}, Side::left);
}

}  // namespace eterlab::power::regulator_drawing
