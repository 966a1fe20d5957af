#include "lines/section_window.h"

#include "common/number_text.h"

namespace eterlab::lines {

ui::Input section_frequency_input(ui::Parent parent) {
  return {parent,
          "txtfrequenza",
          "FREQUENZA in MHz",
          {.range = section_frequency_range_mhz, .prompt_name = "Label1"}};
}

std::string ohms(Real impedance_ohm) { return fixed(impedance_ohm, 1) + " Ohm"; }

std::string tenths_of_mm(Real length_mm) { return fixed(length_mm, 1) + " mm"; }

}  // namespace eterlab::lines
