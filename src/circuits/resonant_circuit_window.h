#pragma once

#include <string_view>

#include "circuits/circuit_drawing.h"
#include "circuits/impedance_parts.h"
#include "circuits/resonance.h"
#include "ui/plot.h"
#include "ui/ui.h"

namespace eterlab::circuits {

/// What tells the two circuits of a coil, a capacitor and a resistor apart.
struct ResonantCircuit {
  std::string_view window;
  std::string_view title;
  Circuit circuit;  ///< of the coil, the capacitor, then the resistor
  Complex (*impedance_ohm)(Real frequency_hz, Real inductance_h, Real capacitance_f,
                           Real resistance_ohm);
  Selectivity (*selectivity)(Real inductance_h, Real capacitance_f, Real resistance_ohm);
  std::string_view example_ohm;
};

/// A coil, a capacitor and a resistor together: their impedance at a frequency and around
/// resonance.
class ResonantCircuitWindow : public ui::Calculator {
 public:
  explicit ResonantCircuitWindow(const ResonantCircuit& circuit);

  void show_example() override { fill_in({"5", "10", "100", circuit_.example_ohm}); }

 private:
  void compute() override;

  const ResonantCircuit& circuit_;
  ui::Input txtfrequenza{this, "txtfrequenza", frequency_prompt, {.range = frequency_range}};
  ui::Input txtinduttanza{this, "txtinduttanza", inductance_prompt};
  ui::Input txtcapacita{this, "txtcapacita", capacitance_prompt};
  ui::Input txtohm{this, "txtohm", resistance_prompt};
  ImpedanceResult impedance{this};
  ui::Result lblrisonanza{this, "lblrisonanza"};
  ui::Result lblq{this, "lblq"};
  ui::Result lblbanda{this, "lblbanda"};
  CircuitDrawing drawing;
  ui::Plot plot{this,
                "plot",
                {.title = "FREQUENZA", .unit = "Hz", .scale = ui::Scale::logarithmic},
                {.title = "IMPEDENZA", .unit = "Ohm", .scale = ui::Scale::logarithmic}};
};

}  // namespace eterlab::circuits
