#pragma once

#include "ui/schematic.h"
#include "ui/ui.h"

// What the circuits around a three-terminal regulator have in common, drawn alike in all of them.

namespace eterlab::power::regulator_drawing {

constexpr int columns = 74;
constexpr int rows = 27;

// Places on the grid, for what a window draws besides.
constexpr double supply_y = 7;
constexpr double reference_y = 14;
constexpr double ground_y = 24;
constexpr ui::Schematic::At input_pin{23, supply_y};
constexpr ui::Schematic::At output_pin{35, supply_y};
constexpr ui::Schematic::At reference_pin{29, 10.5};
constexpr ui::Schematic::At ground{reference_pin.x, ground_y};
constexpr ui::Schematic::At name_place{29, 5.2};
constexpr double divider_x = 43;

/// The input with its electrolytic, the regulator's box, and ground.
void draw_supply(ui::Schematic& drawing, std::string_view reference_pin_name,
                 ui::Label& input_capacitor);

struct DividerLabels {
  ui::Label& r1;
  ui::Label& r2;
  ui::Label& output_capacitor;
  ui::Label& input_voltage;
  ui::Label& output_voltage;
};

/// The divider that sets the output, and the output with its electrolytic.
void draw_divider_and_output(ui::Schematic& drawing, const DividerLabels& labels);

}  // namespace eterlab::power::regulator_drawing
