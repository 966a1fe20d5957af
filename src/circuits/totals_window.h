#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::circuits {

/// What tells the window of resistors from that of capacitors.
struct TotalsKind {
  std::string_view window;
  std::string_view title;
  std::string_view box;
  std::array<double, 3> factors;  ///< of the units that the options name
  std::string_view unit;          ///< without a prefix
  std::string_view letter;        ///< of the parts' names
  ui::Schematic& (ui::Schematic::*part)(ui::At from, ui::At to);
  bool add_in_series;
};

/// Two to six parts in series and in parallel, as the user types.
class TotalsWindow : public ui::Calculator {
 public:
  TotalsWindow(const TotalsKind& kind, std::initializer_list<std::string_view> units,
               std::initializer_list<std::string_view> prompts);

  void show_example() override;

 private:
  void compute() override;
  void draw(const std::vector<int>& indices);
  [[nodiscard]] std::string text_of(Real value) const;

  const TotalsKind& kind_;
  ui::OptionArray Option1;
  ui::InputArray boxes;
  ui::Result lblserie;
  ui::Result lblparallelo;
  ui::Schematic drawing;
  ui::ControlArray<ui::Value> lblvaloreserie;
  ui::ControlArray<ui::Value> lblvaloreparallelo;
  std::vector<int> drawn_;  ///< of which parts the drawing is
};

}  // namespace eterlab::circuits
