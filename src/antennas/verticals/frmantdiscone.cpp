#include <string>

#include "antennas/verticals/discone.h"
#include "antennas/wavelength.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "ui/lengths.h"
#include "ui/measures.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// The wide-band antenna of scanners.
class frmantdiscone final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA MINIMA in MHz"};
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO DEL CONO IN ALTO in mm",
                        {.tooltip = "poco più del cavo coassiale", .holds = "12"}};
  ui::Result lblcono{this, "lblcono"};
  ui::Result lblbase{this, "lblbase"};
  ui::Result lblaltezza{this, "lblaltezza"};
  ui::Result lbldisco{this, "lbldisco"};
  ui::Result lbldistanza{this, "lbldistanza"};
  ui::Result lblcampo{this, "lblcampo"};
  ui::Schematic drawing{this, "drawing", 56, 34};
  ui::Value lblvalorecono{drawing, "lblvalorecono"};
  ui::Value lblvalorebase{drawing, "lblvalorebase"};
  ui::Value lblvalorealtezza{drawing, "lblvalorealtezza"};
  ui::Value lblvaloredisco{drawing, "lblvaloredisco"};
  ui::Value lblvaloredistanza{drawing, "lblvaloredistanza"};
  ui::Value lblvalorediametro{drawing, "lblvalorediametro"};

 public:
  frmantdiscone() : Calculator{"frmantdiscone", "ANTENNA DISCONE"} {
    draw();
    lay_out(ui::row(ui::column(ui::form(txtfrequenza, txtdiametro), lblcono, lblbase, lblaltezza,
                               lbldisco, lbldistanza, lblcampo, ui::stretch()),
                    drawing));
  }

  void show_example() override { fill_in({"100", "12"}); }

 private:
  /// The section; the top of the cone and the gap over it are larger than they are.
  void draw() {
    using enum ui::Schematic::Side;
    constexpr double middle = 26;
    constexpr double disc = 4.5;
    constexpr double half_disc = 8;
    constexpr double disc_thickness = 0.6;
    constexpr double under_disc = disc + disc_thickness;
    constexpr double top = 10;
    constexpr double half_top = 1.6;
    constexpr double slant = 20;
    constexpr double bottom = top + slant * 0.866;
    constexpr double half_base = half_top + slant / 2;
    constexpr ui::At top_left{middle - half_top, top};
    constexpr ui::At top_right{middle + half_top, top};
    constexpr ui::At bottom_left{middle - half_base, bottom};
    constexpr ui::At bottom_right{middle + half_base, bottom};
    constexpr ui::CoaxialCable cable{{middle, bottom - 1}, {middle, top - 1}};
    constexpr double screen = ui::CoaxialCable::half_thickness;
    drawing.shaded_box({middle - half_disc, disc}, {middle + half_disc, under_disc})
        .rod({top_left, bottom_left})
        .rod({top_right, bottom_right})
        .coaxial_cable(cable)
        .wire({{middle, top - 1}, {middle, under_disc}})
        .wire({top_left, {middle - screen, top}})
        .wire({{middle + screen, top}, top_right});

    measure_width(drawing, {middle - half_disc, disc}, {middle + half_disc, disc}, 2.7,
                  lblvaloredisco, above);
    measure_width(drawing, bottom_left, bottom_right, bottom + 2.5, lblvalorebase, below);
    measure_height(drawing, {middle + half_disc, under_disc}, top_right, middle + 10,
                   lblvaloredistanza, right);
    measure_height(drawing, top_right, bottom_right, middle + 14.5, lblvalorealtezza, right);
    constexpr double over_top = 7.7;
    measure_thin_width(drawing, top_left, top_right, over_top, lblvalorediametro, above);
    drawing.label(lblvalorediametro, {middle - half_top - 2, over_top}, left);

    // Along the cone, so far outside.
    constexpr ui::At outwards{-0.866 * 2.5, -0.5 * 2.5};
    const auto outside = [&](ui::At place) {
      return ui::At{place.x + outwards.x, place.y + outwards.y};
    };
    const ui::At from = outside(top_left);
    const ui::At to = outside(bottom_left);
    drawing.extension(top_left, from)
        .extension(bottom_left, to)
        .dimension(from, to)
        .label(lblvalorecono, {(from.x + to.x) / 2, (from.y + to.y) / 2 - 1}, left);
  }

  void compute() override {
    constexpr double mm_in_metre = 1000;
    const Real frequency_mhz = txtfrequenza.value();
    const Real top_diameter_m = txtdiametro.value() / mm_in_metre;
    const Real longest_m = wavelength_m(frequency_mhz);
    require(reaches(widest_discone_top_wavelengths * longest_m, top_diameter_m), txtdiametro,
            "DIAMETRO SUPERIORE TROPPO GRANDE PER QUESTA FREQUENZA");
    const Discone antenna = discone(longest_m, top_diameter_m);
    const std::string gap = fixed(mm_in_metre * antenna.gap_m, 1) + " mm";
    lblcono = "LATO DEL CONO = " + ui::centimetres(antenna.slant_m);
    lblbase = "DIAMETRO ALLA BASE DEL CONO = " + ui::centimetres(antenna.base_m);
    lblaltezza = "ALTEZZA DEL CONO = " + ui::centimetres(antenna.cone_height_m);
    lbldisco = "DIAMETRO DEL DISCO = " + ui::centimetres(antenna.disc_diameter_m);
    lbldistanza = "DISTANZA TRA DISCO E CONO = " + gap;
    lblcampo = "UTILIZZABILE FINO A CIRCA " + fixed(discone_bandwidth * frequency_mhz, 0) + " MHz";
    lblvalorecono = ui::centimetres(antenna.slant_m);
    lblvalorebase = ui::centimetres(antenna.base_m);
    lblvalorealtezza = ui::centimetres(antenna.cone_height_m);
    lblvaloredisco = ui::centimetres(antenna.disc_diameter_m);
    lblvaloredistanza = gap;
    lblvalorediametro = plain(txtdiametro.value()) + " mm";
  }
};

const ui::Registration<frmantdiscone> registration{"frmantdiscone"};

}  // namespace

}  // namespace eterlab::antennas
