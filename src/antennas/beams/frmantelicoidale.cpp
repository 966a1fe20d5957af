#include <algorithm>
#include <string>

#include "antennas/beams/axial_helix.h"
#include "antennas/wavelength.h"
#include "common/number_text.h"
#include "ui/lengths.h"
#include "ui/measures.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// The circularly polarized helix for satellites and links.
class frmantelicoidale final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in MHz"};
  ui::Input txtspire{this,
                     "txtspire",
                     "NUMERO DELLE SPIRE",
                     {.holds = "10", .range = ui::Range{fewest_helix_turns, most_helix_turns}}};
  ui::Result lbldiametro{this, "lbldiametro"};
  ui::Result lblpasso{this, "lblpasso"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Result lblfilo{this, "lblfilo"};
  ui::Result lblriflettore{this, "lblriflettore"};
  ui::Result lblguadagno{this, "lblguadagno"};
  ui::Result lblapertura{this, "lblapertura"};
  ui::Result lbladattatore{this, "lbladattatore"};
  ui::Schematic drawing{this, "drawing", 80, 25};
  ui::Value lblvalorediametro{drawing, "lblvalorediametro"};
  ui::Value lblvalorepasso{drawing, "lblvalorepasso"};
  ui::Value lblvalorelunghezza{drawing, "lblvalorelunghezza"};

 public:
  frmantelicoidale() : Calculator{"frmantelicoidale", "ANTENNA ELICOIDALE IN MODO ASSIALE"} {
    draw(whole_turns());
    lay_out(ui::column(ui::form(txtfrequenza, txtspire), drawing, lbldiametro, lblpasso,
                       lbllunghezza, lblfilo, lblriflettore, lblguadagno, lblapertura,
                       lbladattatore));
  }

  void show_example() override { fill_in({"435", "10"}); }

 private:
  /// The whole part of what is typed.
  [[nodiscard]] Real turns() const { return floor(txtspire.value()); }
  [[nodiscard]] int whole_turns() const { return static_cast<int>(turns().value()); }

  void check() override {
    check_presence();
    check_range(txtfrequenza);
    if (turns() != most_helix_turns) {  // with what is typed behind the point
      check_range(txtspire);
    }
  }

  /// Seen from the side, to scale.
  void draw(int turns) {
    using enum ui::Schematic::Side;
    constexpr double reflector = 6;
    constexpr double axis = 12.5;
    constexpr double most_length = 58;
    constexpr double most_reflector = 16;
    const AxialHelix helix = axial_helix(1, turns);
    const double scale = std::min(most_length / helix.length_m.value(),
                                  most_reflector / helix.reflector_diameter_m.value());
    const double pitch = scale * helix.pitch_m.value();
    const double radius = scale * helix.diameter_m.value() / 2;
    const double half_reflector = scale * helix.reflector_diameter_m.value() / 2;
    const double end = reflector + scale * helix.length_m.value();
    const double top_of_turn = reflector + 1.5 * pitch;
    drawing.clear();
    drawing.rod({{reflector, axis - half_reflector}, {reflector, axis + half_reflector}})
        .winding({reflector, axis}, {end, axis}, 2 * radius, turns)
        .wire({{reflector - 3, axis + radius}, {reflector, axis + radius}})
        .terminal({reflector - 3, axis + radius});
    measure_thin_width(drawing, {top_of_turn, axis - radius}, {top_of_turn + pitch, axis - radius},
                       axis - radius - 2, lblvalorepasso, above);
    measure_height(drawing, {end, axis - radius}, {end, axis + radius}, end + 2.5,
                   lblvalorediametro, right);
    measure_width(drawing, {reflector, axis + half_reflector}, {end, axis + radius},
                  axis + half_reflector + 2, lblvalorelunghezza, below);
  }

  void compute() override {
    const Real frequency_mhz = txtfrequenza.value();
    const AxialHelix helix = axial_helix(wavelength_m(frequency_mhz), whole_turns());
    const auto length = [frequency_mhz](Real length_m) {
      constexpr double first_in_mm_mhz = 1000;
      return frequency_mhz < first_in_mm_mhz ? ui::centimetres(length_m)
                                             : fixed(1000 * length_m, 1) + " mm";
    };
    lbldiametro = "DIAMETRO DELLE SPIRE = " + length(helix.diameter_m);
    lblpasso = "PASSO TRA LE SPIRE = " + length(helix.pitch_m);
    lbllunghezza = "LUNGHEZZA DELL'ELICA = " + length(helix.length_m);
    lblfilo = "CONDUTTORE OCCORRENTE = " + fixed(helix.conductor_m, 2) + " mt.";
    lblriflettore = "RIFLETTORE: DIAMETRO ALMENO " + length(helix.reflector_diameter_m);
    lblguadagno = "GUADAGNO CIRCA " + fixed(helix.gain_dbi, 1) + " dBi";
    lblapertura = "APERTURA DEL FASCIO = " + fixed(helix.beamwidth_degrees, 0) + " GRADI";
    lbladattatore = "IMPEDENZA " + plain(helix_resistance_ohm) +
                    " OHM : TRASFORMATORE A 1/4 D'ONDA DA " + plain(helix_transformer_ohm) + " OHM";
    draw(whole_turns());
    lblvalorediametro = length(helix.diameter_m);
    lblvalorepasso = length(helix.pitch_m);
    lblvalorelunghezza = length(helix.length_m);
  }
};

const ui::Registration<frmantelicoidale> registration{"frmantelicoidale"};

}  // namespace

}  // namespace eterlab::antennas
