#pragma once

#include <string_view>

#include "filters/lc_notch.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::filters {

/// What tells the notch for radio frequencies from the one for audio.
struct NotchKind {
  std::string_view window;
  std::string_view title;
  std::string_view frequency_prompt;
  double frequency_unit_hz;
  std::string_view bandwidth_prompt;
  double bandwidth_unit_hz;
  std::string_view usual_impedance;
  std::string_view usual_quality_factor;
};

/// A trap of coil and capacitor between a source and a load, with its response.
class NotchWindow : public ui::Calculator {
 protected:
  explicit NotchWindow(const NotchKind& kind);

 private:
  [[nodiscard]] TrapForm form() const;
  void draw();
  void draw_series_to_ground();
  void draw_parallel_in_line();
  void cmdchiamabobine_click();
  void compute() override;

  const NotchKind& kind_;
  ui::OptionArray Option1{
      this, "Option1", {"L C IN SERIE VERSO MASSA", "L C IN PARALLELO SULLA LINEA"}};
  ui::Input txtfrequenza;
  ui::Input txtbanda;
  ui::Input txtohm;
  ui::Input txtq;
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblattenuazione{this, "lblattenuazione"};
  ui::Result lblbanda{this, "lblbanda"};
  ui::Schematic drawing;
  ui::Value lblvaloresorgente{drawing, "lblvaloresorgente"};
  ui::Value lblvaloreinduttanza{drawing, "lblvaloreinduttanza"};
  ui::Value lblvalorecapacita{drawing, "lblvalorecapacita"};
  ui::Value lblvalorecarico{drawing, "lblvalorecarico"};
  ui::Plot plot;
  ui::Button cmdchiamabobine{this, "cmdchiamabobine", "COSTRUZIONE BOBINE"};
};

}  // namespace eterlab::filters
