#pragma once

#include <string_view>
#include <vector>

#include "signals/s_meter.h"
#include "ui/ui.h"

namespace eterlab::signals {

/// What an S-meter reading means, as the user types: the windows of the two scales differ in
/// nothing else.
class SMeterWindow : public ui::Calculator {
 public:
  void show_example() override;

 protected:
  SMeterWindow(std::string_view name, std::string_view title, SMeter meter);

 private:
  void Option1_click(int index);
  void compute() override;

  SMeter meter_;
  std::vector<SMeterMark> marks_ = s_meter_marks(meter_);
  ui::OptionArray Option1{this, "Option1", {"DA dBm", "DA MICROVOLT SU 50 OHM"}};
  ui::Input txtinput;
  ui::Result lblsmeter{this, "lblsmeter"};
  ui::Result lbldbm{this, "lbldbm"};
  ui::Result lblmicrovolt{this, "lblmicrovolt"};
  ui::ResultTable table;
};

}  // namespace eterlab::signals
