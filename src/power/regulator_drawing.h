#pragma once

#include "ui/schematic.h"
#include "ui/ui.h"

// What the circuits around a three-terminal regulator have in common, drawn alike in all of them.

namespace eterlab::power::regulator_drawing {

constexpr int columns = 74;
constexpr int rows = 27;

/// A regulator's box, its upper corners around its input and output pins, with the names of those.
void draw_regulator(ui::Schematic& drawing, ui::At input, std::string_view reference_pin_name);
constexpr ui::At output_of(ui::At input) { return {input.x + 12, input.y}; }
constexpr ui::At reference_of(ui::At input) { return {input.x + 6, input.y + 3.5}; }
/// For the regulator's type.
constexpr ui::At name_in(ui::At input) { return {input.x + 6, input.y - 1.8}; }

// Places on the grid, for what a window draws besides.
constexpr double supply_y = 7;
constexpr double reference_y = 14;
constexpr double ground_y = 24;
constexpr ui::At input_pin{23, supply_y};
constexpr ui::At output_pin = output_of(input_pin);
constexpr ui::At reference_pin = reference_of(input_pin);
constexpr ui::At ground{reference_pin.x, ground_y};
constexpr ui::At name_place = name_in(input_pin);
constexpr double divider_x = 43;

/// The input with its electrolytic, the regulator's box, and ground.
void draw_supply(ui::Schematic& drawing, std::string_view reference_pin_name,
                 ui::Label& input_capacitor);

/// The output with its electrolytic, and the wires of the reference pin and of ground.
void draw_output(ui::Schematic& drawing, ui::Label& output_capacitor);

struct DividerLabels {
  ui::Label& r1;
  ui::Label& r2;
  ui::Label& output_capacitor;
  ui::Label& input_voltage;
  ui::Label& output_voltage;
};

/// The output, and the divider that sets it.
void draw_divider_and_output(ui::Schematic& drawing, const DividerLabels& labels);

/// Diodes that discharge the capacitors past an adjustable regulator when its input or output is
/// shorted, and the capacitor of its reference pin.
void draw_protection(ui::Schematic& drawing, ui::Label& capacitor);

}  // namespace eterlab::power::regulator_drawing
