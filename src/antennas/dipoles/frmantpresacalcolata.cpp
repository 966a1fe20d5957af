#include <optional>

#include "antennas/dipoles/dipole_drawing.h"
#include "antennas/dipoles/dipole_window.h"
#include "antennas/dipoles/off_centre_dipole.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A half wave with its tap where a single wire, a balun or a two-wire line finds its impedance.
class frmantpresacalcolata final : public DipoleWindow {
  ui::Frame Frame1{this, "Frame1", "DISCESA"};
  ui::OptionArray Option1{Frame1, "Option1", {"MONOFILARE (WINDOM)", "BALUN O LINEA BIFILARE"}};
  ui::Input txtfrequenza{
      this, "txtfrequenza", "FREQUENZA in MHz", {.range = frequencies, .prompt_name = "Label1"}};
  ui::Input txtdiametro{
      this, "txtdiametro", "DIAMETRO DEL FILO in mm", {.range = any, .prompt_name = "Label2"}};
  ui::Input txtimpedenza{this,
                         "txtimpedenza",
                         "IMPEDENZA DELLA DISCESA in Ohm",
                         {.tooltip = "600 per un filo solo; 200 con balun 4:1, 300 con 6:1",
                          .holds = "600",
                          .range = {{10, 5000}},
                          .prompt_name = "Label3"}};
  ui::Schematic drawing{this, "drawing", 54, 17};
  ui::Schematic drawing2{this, "drawing2", 54, 17};
  ui::Value lbltratto1{drawing, "lbltratto1"};
  ui::Value lbltratto2{drawing, "lbltratto2"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Result lblpresa{this, "lblpresa"};
  ui::Result lblpercento{this, "lblpercento"};
  ui::Result lblbalun{this, "lblbalun"};
  ui::ResultTable table{this,
                        "table",
                        4,
                        {{.name = "lblf", .head = "FREQUENZA", .head_name = "Label10"},
                         {.name = "lblz", .head = "IMPEDENZA Ohm", .head_name = "Label11"},
                         {.name = "lblros", .head = "ROS ALLA PRESA", .head_name = "Label12"}}};

 public:
  frmantpresacalcolata()
      : DipoleWindow{"frmantpresacalcolata", "DIPOLO A MEZZA ONDA CON PRESA CALCOLATA"} {
    table.reserve(0, "4.000,000 MHz");
    table.reserve(1, "12.345 - j12.345");
    ui::give_up_place_when_hidden({&table});
    Frame1.arrange(Option1);
    lay_out(ui::column(ui::row(ui::column(Frame1, ui::form(txtfrequenza, txtdiametro, txtimpedenza),
                                          ui::stretch()),
                               ui::column(ui::alternatives(drawing, drawing2), ui::stretch())),
                       lbllunghezza, lblpresa, lblpercento, lblbalun, table));

    Option1.preset(0);
    offer(0);
    Option1.on_click([this](int index) {
      offer(index);
      txtimpedenza = index == 0 ? "600" : "200";
    });
  }

  void show_example() override { fill_in({"7.1", "2", "600"}); }

 private:
  void offer(int index) {
    const bool is_cut = index == 1;
    ui::Schematic& shown = is_cut ? drawing2 : drawing;
    show_one(shown, is_cut ? drawing : drawing2, {&lbltratto1, &lbltratto2});
    draw(shown, is_cut);
    table.setVisible(is_cut);
  }

  void draw(ui::Schematic& shown, bool is_cut) {
    using Side = ui::Schematic::Side;
    constexpr double wire = 6;
    constexpr double left_end = 4;
    constexpr double right_end = 50;
    constexpr double middle = (left_end + right_end) / 2;
    constexpr double tap = 36;
    constexpr double insulator = 1;
    constexpr double balun_top = wire + 5;
    constexpr double balun_bottom = balun_top + 3;
    constexpr double bottom = 16.5;
    shown.box({left_end - 2, wire - insulator / 2}, {left_end, wire + insulator / 2})
        .box({right_end, wire - insulator / 2}, {right_end + 2, wire + insulator / 2});
    const double gap = is_cut ? half_feed_gap : 0;
    shown.rod({{left_end, wire}, {tap - gap, wire}}).rod({{tap + gap, wire}, {right_end, wire}});
    draw_length(shown, {left_end, wire}, {tap, wire}, 3, lbltratto1);
    shown.extension({right_end, wire - 0.8}, {right_end, 2.4})
        .dimension({tap, 3}, {right_end, 3})
        .label(lbltratto2, {(tap + right_end) / 2, 3}, Side::above);
    shown.extension({middle, wire - 1}, {middle, wire + 2})
        .mark({middle, wire + 2}, "CENTRO", Side::below);
    if (is_cut) {
      for (const double side : {-1.0, 1.0}) {
        shown.wire({{tap + side * gap, wire}, {tap + side * gap, balun_top}})
            .wire({{tap + side * half_feeder, balun_bottom}, {tap + side * half_feeder, bottom}});
      }
      shown.box({tap - 4, balun_top}, {tap + 4, balun_bottom})
          .mark({tap, (balun_top + balun_bottom) / 2}, "BALUN");
    } else {
      shown.junction({tap, wire}).wire({{tap, wire}, {tap, bottom}});
    }
  }

  void compute() override {
    const bool is_cut = Option1.selected() == 1;
    const Conductor conductor{txtfrequenza.value(), txtdiametro.value()};
    const Real feeder_ohm = txtimpedenza.value();
    require_thin(txtdiametro, {conductor.frequency_mhz});
    if (is_cut) {
      advise(feeder_ohm > dipole_impedance_ohm(half_wave_arm_m(conductor), conductor).real(),
             txtimpedenza, "IMPEDENZA INFERIORE A QUELLA DEL CENTRO DEL DIPOLO");
    }
    const std::optional<OffCentreDipole> dipole =
        is_cut ? cut_wire_tap(feeder_ohm, conductor) : single_wire_tap(feeder_ohm, conductor);
    advise(dipole.has_value(), txtimpedenza, "IMPEDENZA TROPPO ALTA PER QUESTO CONDUTTORE");

    const Real near_m = dipole->half_m - dipole->tap_m;
    lbllunghezza = "LUNGHEZZA TOTALE = " + metres_text(2 * dipole->half_m);
    lblpresa = "PRESA A " + metres_text(dipole->tap_m) + " DAL CENTRO";
    lblpercento = "PARI AL " + fixed(100 * near_m / (2 * dipole->half_m), 1) +
                  " % DELLA LUNGHEZZA DALL'ESTREMITA' VICINA";
    lbltratto1 = metres_text(dipole->half_m + dipole->tap_m);
    lbltratto2 = metres_text(near_m);
    if (!is_cut) {
      return;
    }
    lblbalun = "RAPPORTO DEL BALUN PER 50 OHM = " + fixed(feeder_ohm / 50, 1) + " : 1";
    Real frequency_mhz = conductor.frequency_mhz;
    for (int row = 0; row < table.rows(); ++row) {
      const Complex impedance_ohm = dipole->impedance_ohm({frequency_mhz, conductor.diameter_mm});
      table.at(row, 0) = fixed(frequency_mhz, 3) + " MHz";
      table.at(row, 1) = impedance_text(impedance_ohm);
      table.at(row, 2) = standing_wave_text(impedance_ohm, feeder_ohm);
      frequency_mhz *= 2;
    }
  }
};

const ui::Registration<frmantpresacalcolata> registration{"frmantpresacalcolata"};

}  // namespace

}  // namespace eterlab::antennas
