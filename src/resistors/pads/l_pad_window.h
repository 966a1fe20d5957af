#pragma once

#include <string_view>

#include "common/arithmetic.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

/// The two windows of minimum-loss pads ask, check and answer alike. Each completes the schematic
/// by its lower line and brings its own layout.
class LPadWindow : public ui::Window {
 public:
  void show_example() override;

 protected:
  static constexpr double left = 12;
  static constexpr double right = 45;
  static constexpr double bottom = 16;
  static constexpr double shunt = 35;

  LPadWindow(std::string_view name, std::string_view title);

  virtual void write_series_resistors(Real series_ohm) = 0;

  ui::Label lblZI{this, "lblZI", "IMPEDENZA D' INGRESSO in OHM"};
  ui::TextBox txtRH{this, "txtRH", ui::tooltip("inserire i dati")};
  ui::Label lblZo{this, "lblZo", "IMPEDENZA D' USCITA in OHM"};
  ui::TextBox txtRL{this, "txtRL", ui::tooltip("inserire i dati")};
  ui::Schematic schematic{this, "schematic", 57, 19};
  ui::Label Label2{schematic, "Label2", "lato impedenza maggiore"};
  ui::Label Label4{schematic, "Label4", "lato impedenza minore"};
  ui::Label lblR1{schematic, "lblR1"};
  ui::Label lblR2{schematic, "lblR2"};
  ui::Result lblperdita{this, "lblperdita"};
  ui::Note Label3{this, "Label3",
                  "L'IMPEDENZA D' INGRESSO DEVE ESSERE MAGGIORE DELL'IMPEDENZA D' USCITA"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 private:
  void cmdcalcola_click();
};

}  // namespace eterlab::resistors
