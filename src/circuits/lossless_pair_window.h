#pragma once

#include <string_view>

#include "circuits/circuit_drawing.h"
#include "circuits/impedance.h"
#include "circuits/impedance_parts.h"
#include "ui/ui.h"

namespace eterlab::circuits {

/// What tells the two connections of a lossless coil and capacitor apart.
struct Connection {
  std::string_view window;
  std::string_view title;
  Circuit circuit;  ///< of the coil, then the capacitor
  LosslessPair (*pair)(Real frequency_hz, Real inductance_h, Real capacitance_f);
  std::string_view at_resonance;
};

/// What a lossless coil and capacitor are together at a frequency, and the single part that is the
/// same there.
class LosslessPairWindow : public ui::Calculator {
 public:
  explicit LosslessPairWindow(const Connection& connection);

  void show_example() override { fill_in({"7", "10", "100"}); }

 private:
  void compute() override;

  const Connection& connection_;
  ui::Input txtfrequenza{this, "txtfrequenza", frequency_prompt, {.range = frequency_range}};
  ui::Input txtinduttanza{this, "txtinduttanza", inductance_prompt};
  ui::Input txtcapacita{this, "txtcapacita", capacitance_prompt};
  ui::Result lblxl{this, "lblxl"};
  ui::Result lblxc{this, "lblxc"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lblequivale{this, "lblequivale"};
  ui::Result lblrisonanza{this, "lblrisonanza"};
  CircuitDrawing drawing;
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINE", {"frmbobine", {180, 180}, {4100, 2800}}};
};

}  // namespace eterlab::circuits
