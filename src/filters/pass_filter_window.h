#pragma once

#include <string>
#include <string_view>

#include "filters/lc_filters.h"
#include "ui/fixed_area.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::filters {

/// What tells the low-pass window from the high-pass one.
struct PassFilter {
  std::string_view window;
  std::string_view title;
  std::string_view pi_caption;
  std::string_view tee_caption;
  std::string_view frequency_prompt;
  std::string_view impedance_prompt;
  std::string_view note;
  bool has_series_inductors;
  FilterElements (*compute)(FilterForm form, Real cutoff_mhz, Real impedance_ohm);
  std::string (*inductance_text)(Real inductance_uh);
};

/// A filter of three elements. First its form is chosen, by a click on one of two pictures; then
/// the other picture makes room for the inputs. There is no way back.
class PassFilterWindow : public ui::Window {
 public:
  explicit PassFilterWindow(const PassFilter& filter);

  void load() override;
  void show_example() override;

 private:
  void draw_pi();
  void draw_tee();
  void Image1_click();
  void Image2_click();
  void begin_work();
  void cmdcalcola_click();

  const PassFilter& filter_;
  ui::FixedArea area;
  ui::Heading lblistruzione;
  ui::Schematic Image1;
  ui::Label lblpigreco;
  ui::Schematic Image2;
  ui::Label lblT;
  ui::Label lblfrequenza;
  ui::TextBox txtfrequenza;
  ui::Label lblimpedenza;
  ui::TextBox txtimpedenza;
  ui::Result lblinduttanza;
  ui::Result lblcapacita;
  ui::Note lblnota;
  ui::ComputeButton cmdcalcola;
  ui::Button cmdbobine;
  ui::ExitButton cmdesci;
};

}  // namespace eterlab::filters
