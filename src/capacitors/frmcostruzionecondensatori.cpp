#include <algorithm>

#include "capacitors/plate_capacitor.h"
#include "common/number_text.h"
#include "materials/dielectrics.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::capacitors {

namespace {

enum Wanted : std::uint8_t { capacitance, area, distance };  // in the order of the options

// A capacitor of flat plates: capacitance, area or distance out of the other two.
class frmcostruzionecondensatori final : public ui::Calculator {
  static constexpr int columns = 36;
  static constexpr int rows = 28;

  ui::OptionArray Option1{
      this, "Option1", {"TROVARE LA CAPACITA'", "TROVARE LA SUPERFICIE", "TROVARE LA DISTANZA"}};
  ui::List cmbdielettrico{this, "cmbdielettrico", "DIELETTRICO"};
  ui::Input txtepsilon{this,
                       "txtepsilon",
                       "COSTANTE DIELETTRICA",
                       {.range = ui::Range{.lowest = 1}, .is_optional = true}};
  ui::Input txtarmature{this,
                        "txtarmature",
                        "NUMERO DELLE ARMATURE",
                        {.holds = "2", .range = ui::Range{.lowest = 2}, .is_optional = true}};
  ui::InputArray txtinput{this, "txtinput", {"", ""}, {.prompt_name = "lblinput"}};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lbltensione{this, "lbltensione"};
  ui::Note Label1{this, "Label1",
                  "GLI EFFETTI DI BORDO SONO TRASCURATI: L'ERRORE E' DI POCHI PER CENTO SE I LATI "
                  "DELLE ARMATURE SUPERANO 100 VOLTE LA LORO DISTANZA"};
  ui::Schematic drawing{this, "drawing", columns, rows};
  ui::Value lblvaloresuperficie{drawing, "lblvaloresuperficie"};
  ui::Value lblvaloredistanza{drawing, "lblvaloredistanza"};

 public:
  frmcostruzionecondensatori()
      : Calculator{"frmcostruzionecondensatori", "COSTRUZIONE DI CONDENSATORI A FACCE PIANE"} {
    cmbdielettrico.offer(materials::dielectrics());
    cmbdielettrico.add("ALTRO");
    Option1.preset(capacitance);
    ask_for(capacitance);
    choose_dielectric();
    draw();
    lay_out(ui::column(
        ui::row(ui::column(Option1, ui::form(cmbdielettrico, txtepsilon, txtarmature, txtinput),
                           ui::stretch()),
                drawing),
        lbloutput, lbltensione, Label1));
    Option1.on_click([this](int wanted) { ask_for(wanted); });
    cmbdielettrico.on_choose([this] { choose_dielectric(); });
    txtarmature.on_change([this] { draw(); });
  }

  void show_example() override { fill_in({"1.0006", "2", "100", "1"}); }

 private:
  void ask_for(int wanted) {
    const char* const capacitance_prompt = "CAPACITA' in pF :";
    const char* const area_prompt = "SUPERFICIE DI UNA ARMATURA in cmq :";
    const char* const distance_prompt = "DISTANZA TRA LE ARMATURE in mm :";
    txtinput.clear();
    txtinput[0].ask(wanted == capacitance ? area_prompt : capacitance_prompt);
    txtinput[1].ask(wanted == distance ? area_prompt : distance_prompt);
  }

  [[nodiscard]] bool is_of_catalogue() const {
    return cmbdielettrico.chosen() < static_cast<int>(materials::dielectrics().size());
  }

  void choose_dielectric() {
    txtepsilon = "";
    if (is_of_catalogue()) {
      txtepsilon =
          as_typed(cmbdielettrico.chosen_of(materials::dielectrics()).relative_permittivity);
    }
    txtepsilon.set_read_only(is_of_catalogue());
  }

  [[nodiscard]] Real plates() const { return floor(txtarmature.value()); }

  /// As many plates as there are, seven at most; every other one is connected to the left.
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double left_bus = 5;
    constexpr double right_bus = columns - left_bus;
    constexpr double gap_at_the_end = 2.5;
    constexpr double area_arrow_x = 12;
    constexpr double distance_arrow_x = 12;
    const int count = static_cast<int>(std::clamp(plates(), Real{2}, Real{7}).value());
    const double pitch = std::min(5.0, 19.2 / (count - 1));
    const auto height_of = [&](int plate) {
      return rows / 2.0 + 1 + (plate - (count - 1) / 2.0) * pitch;
    };
    drawing.clear();
    for (int plate = 0; plate < count; ++plate) {
      const double y = height_of(plate);
      const bool is_left = plate % 2 == 0;
      const double bus = is_left ? left_bus : right_bus;
      const double from = is_left ? left_bus : left_bus + gap_at_the_end;
      const double to = is_left ? right_bus - gap_at_the_end : right_bus;
      drawing.rod({{from, y}, {to, y}});
      if (plate >= 2) {
        drawing.wire({{bus, height_of(plate - 2)}, {bus, y}});
      }
    }
    const double top = height_of(0);
    const double second = height_of(1);
    drawing.terminal({1, top}).wire({{1, top}, {left_bus, top}});
    drawing.terminal({columns - 1, second}).wire({{right_bus, second}, {columns - 1, second}});
    drawing.arrow({area_arrow_x, top - 2.6}, {area_arrow_x, top - 0.3})
        .mark({area_arrow_x, top - 2.2}, "A", Side::above)
        .label(lblvaloresuperficie, {area_arrow_x + 0.8, top - 2.2 - 1.1}, Side::right);
    drawing.dimension({distance_arrow_x, top + 0.2}, {distance_arrow_x, second - 0.2})
        .mark({distance_arrow_x, (top + second) / 2}, "d", Side::left)
        .label(lblvaloredistanza, {distance_arrow_x, (top + second) / 2}, Side::right);
  }

  void check() override {
    require(txtepsilon.value() >= 1, txtepsilon,
            "LA COSTANTE DIELETTRICA NON PUO' ESSERE INFERIORE A 1");
    require(plates() >= 2, txtarmature, "OCCORRONO ALMENO DUE ARMATURE");
    check_range(txtepsilon);
    check_range(txtarmature);
    check_presence();
    check_ranges();
  }

  void compute() override {
    const Real permittivity = txtepsilon.value();
    const Real first = txtinput[0].value();
    const Real second = txtinput[1].value();
    const int wanted = Option1.selected();
    Real area_cm2 = wanted == capacitance ? first : second;
    Real distance_mm = second;
    if (wanted == capacitance) {
      lbloutput = "CAPACITA' = " +
                  eng(plate_capacitance_pf(permittivity, plates(), first, second) * 1e-12, "F");
    } else if (wanted == area) {
      area_cm2 = plate_area_cm2(permittivity, plates(), first, second);
      lbloutput = "SUPERFICIE DI UNA ARMATURA = " + sig(area_cm2, 4) + " cmq";
    } else {
      distance_mm = plate_distance_mm(permittivity, plates(), first, second);
      lbloutput = "DISTANZA TRA LE ARMATURE = " + sig(distance_mm, 4) + " mm";
    }
    if (cmbdielettrico.content() == "ARIA") {
      lbltensione =
          "TENSIONE MASSIMA CIRCA " + fixed(air_gap_voltage_v(distance_mm), 0) + " Volt di picco";
    }
    lblvaloresuperficie = sig(area_cm2, 4) + " cmq";
    lblvaloredistanza = sig(distance_mm, 4) + " mm";
  }
};

const ui::Registration<frmcostruzionecondensatori> registration{"frmcostruzionecondensatori"};

}  // namespace

}  // namespace eterlab::capacitors
