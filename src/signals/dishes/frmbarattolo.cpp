#include "common/number_text.h"
#include "signals/dishes/can_feed.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

// A dish feed from a tin can.
class frmbarattolo final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz"};
  ui::Input txtdiametro{this, "txtdiametro", "DIAMETRO INTERNO DEL BARATTOLO in mm"};
  ui::Result lbltaglio{this, "lbltaglio"};
  ui::Result lbltagliosup{this, "lbltagliosup"};
  ui::Result lbllambda{this, "lbllambda"};
  ui::Result lblsonda{this, "lblsonda"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Result lblavviso{this, "lblavviso"};
  ui::Schematic drawing{this, "drawing", 48, 26};
  ui::Value lblvalorediametro{drawing, "lblvalorediametro"};
  ui::Value lblvalorefondo{drawing, "lblvalorefondo"};
  ui::Value lblvaloresonda{drawing, "lblvaloresonda"};
  ui::Value lblvalorelunghezza{drawing, "lblvalorelunghezza"};

 public:
  frmbarattolo() : Calculator{"frmbarattolo", "ILLUMINATORE A BARATTOLO PER PARABOLE"} {
    draw();
    lay_out(
        ui::column(ui::row(ui::column(ui::form(txtfrequenza, txtdiametro), ui::stretch()), drawing),
                   lbltaglio, lbltagliosup, lbllambda, lblsonda, lbllunghezza, lblavviso));
  }

  void show_example() override { fill_in({"2437", "84"}); }

 private:
  /// The section of the can, open to the right, a connector with its probe in the upper wall.
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double bottom_x = 2;
    constexpr double mouth_x = 35;
    constexpr double probe_x = 15;
    constexpr double upper_y = 8;
    constexpr double lower_y = 20;
    constexpr double tip_y = 15;
    constexpr double wall = 0.6;
    drawing
        .shaded({{mouth_x, upper_y - wall},
                 {bottom_x - wall, upper_y - wall},
                 {bottom_x - wall, lower_y + wall},
                 {mouth_x, lower_y + wall},
                 {mouth_x, lower_y},
                 {bottom_x, lower_y},
                 {bottom_x, upper_y},
                 {mouth_x, upper_y}})
        .shaded_box({probe_x - 1.5, upper_y - wall - 0.8}, {probe_x + 1.5, upper_y - wall})
        .shaded_box({probe_x - 0.8, upper_y - wall - 3}, {probe_x + 0.8, upper_y - wall - 0.8})
        .rod({{probe_x, upper_y - 1}, {probe_x, tip_y}});

    constexpr double from_bottom_y = lower_y - 2;
    drawing.dashed({{probe_x, tip_y}, {probe_x, from_bottom_y}})
        .dimension({bottom_x, from_bottom_y}, {probe_x, from_bottom_y})
        .label(lblvalorefondo, {(bottom_x + probe_x) / 2, from_bottom_y}, Side::above)
        .dashed({{probe_x, tip_y}, {probe_x + 3, tip_y}})
        .dimension({probe_x + 2, upper_y}, {probe_x + 2, tip_y})
        .label(lblvaloresonda, {probe_x + 2, (upper_y + tip_y) / 2}, Side::right)
        .dimension({bottom_x, lower_y + 2.5}, {mouth_x, lower_y + 2.5})
        .label(lblvalorelunghezza, {(bottom_x + mouth_x) / 2, lower_y + 2.5}, Side::below)
        .dimension({mouth_x + 2, upper_y}, {mouth_x + 2, lower_y})
        .label(lblvalorediametro, {mouth_x + 2, (upper_y + lower_y) / 2}, Side::right);
  }

  void compute() override {
    constexpr double mm_in_metre = 1000;
    const Real frequency_hz = txtfrequenza.value() * 1e6;
    const Real diameter_m = txtdiametro.value() / mm_in_metre;
    require(can_carries(diameter_m, frequency_hz), txtdiametro,
            "BARATTOLO TROPPO STRETTO: DIAMETRO MINIMO " + plain(smallest_can_mm(frequency_hz)) +
                " mm");
    const CanCutoffs cutoffs = can_cutoffs(diameter_m);
    const CanFeed feed = can_feed(diameter_m, frequency_hz);
    const auto mm = [](Real metres) { return fixed(metres * mm_in_metre, 1) + " mm"; };
    lbltaglio = "FREQUENZA DI TAGLIO TE11 = " + eng(cutoffs.te11_hz, "Hz");
    lbltagliosup = "MODO SUPERIORE TM01 DA " + eng(cutoffs.tm01_hz, "Hz");
    lbllambda = "LUNGHEZZA D'ONDA IN GUIDA = " + mm(feed.guide_wavelength_m);
    lblsonda =
        "SONDA A " + mm(feed.probe_from_bottom_m) + " DAL FONDO, LUNGA " + mm(feed.probe_length_m);
    lbllunghezza = "LUNGHEZZA DEL BARATTOLO ALMENO " + mm(feed.can_length_m);
    if (frequency_hz >= cutoffs.tm01_hz) {
      lblavviso = "ATTENZIONE: SI PROPAGA ANCHE IL MODO TM01, MEGLIO UN DIAMETRO MINORE";
    }
    lblvalorediametro = plain(txtdiametro.value()) + " mm";
    lblvalorefondo = mm(feed.probe_from_bottom_m);
    lblvaloresonda = mm(feed.probe_length_m);
    lblvalorelunghezza = mm(feed.can_length_m);
  }
};

const ui::Registration<frmbarattolo> registration{"frmbarattolo"};

}  // namespace

}  // namespace eterlab::signals
