#include <array>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "antennas/dipoles/dipole_drawing.h"
#include "antennas/dipoles/dipole_window.h"
#include "antennas/dipoles/trap_dipole.h"
#include "circuits/impedance.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

constexpr double picofarad = 1e-12;

// The usual trap dipole for two or three bands, with capacitors at hand.
class frmantmultigamma final : public DipoleWindow {
  ui::Frame Frame1{this, "Frame1", "BANDE"};
  ui::OptionArray Option1{Frame1, "Option1", {"2 BANDE", "3 BANDE"}};
  ui::Input txtf1{
      this, "txtf1", "FREQUENZA PIU' ALTA in MHz", {.range = frequencies, .prompt_name = "Label1"}};
  ui::Input txtf2{this,
                  "txtf2",
                  "FREQUENZA INTERMEDIA in MHz",
                  {.range = frequencies, .prompt_name = "Label2"}};
  ui::Input txtf3{this,
                  "txtf3",
                  "FREQUENZA PIU' BASSA in MHz",
                  {.range = frequencies, .prompt_name = "Label3"}};
  ui::Input txtc1{this,
                  "txtc1",
                  "CONDENSATORE DELLA TRAPPOLA INTERNA in pF",
                  {.range = any, .prompt_name = "Label4"}};
  ui::Input txtc2{this,
                  "txtc2",
                  "CONDENSATORE DELLA TRAPPOLA ESTERNA in pF",
                  {.range = any, .prompt_name = "Label5"}};
  ui::Input txtdiametro{
      this, "txtdiametro", "DIAMETRO DEL FILO in mm", {.range = any, .prompt_name = "Label6"}};
  ui::Schematic drawing{this, "drawing", 44, 13};
  ui::Schematic drawing2{this, "drawing2", 44, 13};
  ui::Value lbldisA{drawing, "lbldisA", "A"};
  ui::Value lbldisB{drawing, "lbldisB", "B"};
  ui::Value lbldisC{drawing2, "lbldisC", "C"};
  ui::ResultTable table{
      this,
      "table",
      3,
      {{.name = "lblbanda", .head = "BANDA", .head_name = "Label10"},
       {.name = "lbltratto", .head = "TRATTO DEL BRACCIO", .head_name = "Label11"},
       {.name = "lbltrappola", .head = "BOBINA DELLA TRAPPOLA", .head_name = "Label12"},
       {.name = "lblresistenza", .head = "RESISTENZA", .head_name = "Label13"}}};
  ui::Result lbltotale{this, "lbltotale"};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINA", {"frmbobine", {180, 180}, {4100, 2800}}};
  ui::Button cmdavviso{this, "cmdavviso", "AVVERTENZA"};

 public:
  frmantmultigamma() : DipoleWindow{"frmantmultigamma", "DIPOLO MULTIGAMMA CON TRAPPOLE L C"} {
    open_warning_by(cmdavviso);
    table.reserve(0, "999,999999999 MHz");
    Frame1.arrange(ui::across(Option1));
    lay_out(
        ui::column(
            ui::row(ui::column(Frame1, ui::form(txtf1, txtf2, txtf3, txtc1, txtc2, txtdiametro),
                               ui::stretch()),
                    ui::column(ui::stretch(), ui::alternatives(drawing, drawing2), ui::stretch())),
            table, lbltotale),
        {&cmdchiamabobine, &cmdavviso});

    for (ui::Input* input : {&txtf2, &txtc2}) {
      ui::give_up_place_when_hidden({input, &input->prompt()});
    }
    Option1.preset(0);
    offer(0);
    Option1.on_click([this](int index) { offer(index); });
  }

  void show_example() override { fill_in({"7.1", "3.65", "60", "2"}); }

 private:
  void offer(int index) {
    const bool has_three_bands = index == 1;
    for (ui::Input* input : {&txtf2, &txtc2}) {
      has_three_bands ? input->show() : input->hide();
    }
    if (has_three_bands) {
      draw(drawing2, drawing, {&lbldisA, &lbldisB, &lbldisC});
    } else {
      draw(drawing, drawing2, {&lbldisA, &lbldisB});
    }
  }

  static void draw(ui::Schematic& shown, ui::Schematic& hidden,
                   std::initializer_list<ui::Value*> lengths) {
    show_one(shown, hidden, lengths);
    constexpr double wire = 5;
    constexpr double dimension = 9.5;
    constexpr double left = 4;
    constexpr double right = 41;
    const auto sections = static_cast<double>(lengths.size());
    const double section = (right - left - 2 * half_trap * (sections - 1)) / sections;
    shown.terminal({left - 0.4, wire}).terminal({left - 0.4, wire + 2});
    double start = left;
    for (ui::Value* length : lengths) {
      const bool is_last = length == *std::prev(lengths.end());
      const double end = start + section;
      shown.rod({{start, wire}, {end, wire}});
      draw_length(shown, {start, wire + (start > left ? 2.0 : 2.6)},
                  {end, wire + (is_last ? 0.0 : 2.0)}, dimension, *length);
      if (!is_last) {
        draw_trap(shown, {end + half_trap, wire});
      }
      start = end + 2 * half_trap;
    }
  }

  /// The capacitor's reactance at the frequency of its trap must be from 50 to 1000 Ohm.
  void require_usual(ui::Input& capacitor_pf, Real frequency_mhz) const {
    constexpr double least_ohm = 50;
    constexpr double most_ohm = 1000;
    const auto capacitance_pf = [&](double reactance_ohm) {
      return circuits::capacitance_of_reactance_f(frequency_mhz * 1e6, reactance_ohm) / picofarad;
    };
    require(reaches(capacitor_pf.value(), capacitance_pf(most_ohm)) &&
                reaches(capacitance_pf(least_ohm), capacitor_pf.value()),
            capacitor_pf,
            "IL CONDENSATORE DELLA TRAPPOLA A " + plain(frequency_mhz) + " MHz DEVE STARE TRA " +
                fixed_up(capacitance_pf(most_ohm), 0) + " E " +
                fixed_down(capacitance_pf(least_ohm), 0) + " pF");
  }

  void compute() override {
    const bool has_three_bands = Option1.selected() == 1;
    std::vector<ui::Input*> bands{&txtf1, &txtf3};
    std::vector<ui::Input*> capacitors{&txtc1};
    if (has_three_bands) {
      bands.insert(bands.begin() + 1, &txtf2);
      capacitors.push_back(&txtc2);
    }
    std::vector<Real> frequencies_mhz;
    for (const ui::Input* band : bands) {
      frequencies_mhz.push_back(band->value());
    }
    require_thin(txtdiametro, {txtf1.value(), frequencies_mhz[1], txtf3.value()});
    for (std::size_t band = 1; band < bands.size(); ++band) {
      require(reaches(0.9 * frequencies_mhz[band - 1], frequencies_mhz[band]), *bands[band],
              "LE FREQUENZE DEVONO DECRESCERE DI ALMENO IL 10 %");
    }
    std::vector<Real> capacitances_pf;
    for (std::size_t trap = 0; trap < capacitors.size(); ++trap) {
      require_usual(*capacitors[trap], frequencies_mhz[trap]);
      capacitances_pf.push_back(capacitors[trap]->value());
    }
    const std::optional<std::vector<TrapSection>> sections =
        trap_dipole(frequencies_mhz, capacitances_pf, txtdiametro.value());
    advise(sections.has_value(), txtc1, "LE TRAPPOLE CARICANO TROPPO: AUMENTARE I CONDENSATORI");

    Real arm_m = 0;
    const std::array<ui::Value*, 3> lengths{&lbldisA, &lbldisB, &lbldisC};
    int row = 0;
    for (const TrapSection& section : *sections) {
      const auto index = static_cast<std::size_t>(row);
      const std::string length = metres_text(section.length_m);
      arm_m += section.length_m;
      *lengths.at(index) = std::string{"ABC"[index]} + " " + length;
      table.at(row, 0) = plain(section.frequency_mhz) + " MHz";
      table.at(row, 1) = length;
      if (section.inductance_h > 0) {
        table.at(row, 2) = fixed(section.inductance_h * 1e6, 2) + " uH";
      }
      table.at(row, 3) = fixed(section.resistance_ohm, 0) + " Ohm";
      ++row;
    }
    lbltotale = "LUNGHEZZA TOTALE = " + metres_text(2 * arm_m);
  }
};

const ui::Registration<frmantmultigamma> registration{"frmantmultigamma"};

}  // namespace

}  // namespace eterlab::antennas
