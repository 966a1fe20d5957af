#include "signals/s_meter_window.h"

#include <optional>
#include <string>

#include "common/number_text.h"
#include "signals/decibel_watt.h"

namespace eterlab::signals {

namespace {

constexpr ui::Range levels_dbm{-200, 100};
constexpr double microvolts_in_volt = 1e6;

constexpr std::string_view level_prompt = "LIVELLO IN dBm :";
constexpr std::string_view voltage_prompt = "TENSIONE IN MICROVOLT :";

/// One unit everywhere, so that readings compare.
std::string microvolts(Real level_dbm) {
  const Real power = power_w(level_dbm - one_watt_dbm);
  return sig(rms_voltage_v(power, s_meter_impedance_ohm) * microvolts_in_volt, 3) + " µV";
}

std::string name_of(const SMeterMark& mark) {
  const std::string over = mark.db_over_s9 == 0 ? "" : " + " + plain(mark.db_over_s9) + " dB";
  return "S " + plain(mark.s_units) + over;
}

std::string text_of(const std::optional<SMeterReading>& reading) {
  if (!reading) {
    return "SOTTO S 0";
  }
  return reading->db_over_s9 > 0 ? "S 9 + " + fixed(reading->db_over_s9, 1) + " dB"
                                 : "S " + fixed(reading->s_units, 1);
}

}  // namespace

SMeterWindow::SMeterWindow(std::string_view name, std::string_view title, SMeter meter)
    : Calculator{name, title, Computes::as_typed},
      meter_{meter},
      txtinput{this, "txtinput", level_prompt, {.range = levels_dbm, .prompt_name = "lblinput"}},
      table{this,
            "table",
            static_cast<int>(marks_.size()),
            {{"lblpunti", "S-METER", ui::ResultTable::Kind::text},
             {"lbltabdbm", "dBm", ui::ResultTable::Kind::number},
             {"lbltabvolt", "SU 50 OHM", ui::ResultTable::Kind::number}}} {
  for (int row = 0; const SMeterMark& mark : marks_) {
    table.at(row, 0) = name_of(mark);
    table.at(row, 1) = plain(mark.level_dbm);
    table.at(row, 2) = microvolts(mark.level_dbm);
    ++row;
  }
  Option1.preset(0);
  txtinput.prompt().reserve(voltage_prompt);
  lay_out(ui::row(
      ui::column(Option1, ui::form(txtinput), lblsmeter, lbldbm, lblmicrovolt, ui::stretch()),
      table));
  Option1.on_click([this](int index) { Option1_click(index); });
}

void SMeterWindow::show_example() { fill_in({"-73"}); }

void SMeterWindow::Option1_click(int index) {
  if (index == 0) {
    txtinput.ask(level_prompt, levels_dbm);
  } else {
    txtinput.ask(voltage_prompt, ui::Range{});
  }
  txtinput = "";
}

void SMeterWindow::compute() {
  table.mark(-1);
  const std::optional<Real> input = txtinput.usable();
  if (!input) {
    return;
  }
  const Real level_dbm = Option1.selected() == 0 ? *input
                                                 : level_dbm_of_voltage(*input / microvolts_in_volt,
                                                                        s_meter_impedance_ohm);
  if (level_dbm < levels_dbm.lowest || level_dbm > levels_dbm.highest) {
    return;
  }
  lblsmeter = "S-METER : " + text_of(s_meter_reading(meter_, level_dbm));
  lbldbm = "LIVELLO = " + fixed(level_dbm, 1) + " dBm";
  lblmicrovolt = "SU 50 OHM = " + microvolts(level_dbm);
  table.mark(highest_mark_reached(marks_, level_dbm).value_or(-1));
}

}  // namespace eterlab::signals
