#include <array>

#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

struct Band {
  std::string_view height;
  std::string_view radial;
  std::string_view turns;
  std::string_view radiator_data;
  std::string_view radials_data;
  std::string_view coil_data;
};

constexpr std::array<Band, 3> bands{{
    {"340 cm.", "143 cm.", "9 sp.", "RADIATORE cm. 340     DIAMETRO 20 mm.",
     "N. 4 RADIALI cm. 143     DIAMETRO 5 mm.",
     "BOBINA n.9 spire 2 mm. su diametro 3 cm. lunga 3 cm."},
    {"120 cm.", "50 cm.", "5 sp.", "RADIATORE cm. 120     DIAMETRO 10 mm.",
     "N. 4 RADIALI cm. 50     DIAMETRO 5 mm.",
     "BOBINA n.5 spire 2 mm. su diametro 2 cm. lunga 2 cm."},
    {"42 cm.", "17 cm.", "2 sp.", "RADIATORE cm. 42     DIAMETRO 6 mm.",
     "N. 4 RADIALI cm. 17     DIAMETRO 5 mm.",
     "BOBINA n.2 spire 2 mm. su diametro 1.5 cm. lunga 2 cm."},
}};

// What a vertical of 5/8 of a wavelength is built from on three bands.
class frmantenna58 final : public ui::Window {
  ui::Schematic drawing{this, "drawing", 34, 34};
  ui::Label lblaltezza{drawing, "lblaltezza", "radiatore"};
  ui::Label lblcarico{drawing, "lblcarico", "bobina"};
  ui::Label lblradiale{drawing, "lblradiale", "radiali"};
  ui::Frame Frame1{this, "Frame1", "Banda", ui::tooltip("selezionare una frequenza")};
  ui::OptionArray Option1{Frame1, "Option1", {"50 Mcs", "145 Mcs", "433 Mcs"}};
  ui::Result lblradiatore{this, "lblradiatore"};
  ui::Result lblradiali{this, "lblradiali"};
  ui::Result lblbobina{this, "lblbobina"};
  ui::Note Label1{this, "Label1",
                  "IN  FASE  DI  REALIZZAZIONE  AGIRE SULLA LUNGHEZZA DEL RADIATORE PER  IL  "
                  "MIGLIOR  ADATTAMENTO"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmantenna58() : Window{"frmantenna58", "  ANTENNA VERTICALE 5/8 LAMBDA"} {
    draw();
    arrange(ui::column(ui::row(drawing, ui::column(Frame1.arrange(Option1), lblradiatore,
                                                   lblradiali, lblbobina, ui::stretch(), Label1)),
                       ui::buttons(cmdesci)),
            108);

    Option1.on_click([this](int index) { Option1_click(index); });
  }

  void show_example() override { Option1.click(1); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    drawing.rod({{17, 1}, {17, 18}});
    drawing.dimension({20, 1}, {20, 18}).label(lblaltezza, {20, 9.5}, Side::right);
    drawing.winding({17, 18.5}, {17, 23.5}, 3, 5).label(lblcarico, {20, 21}, Side::right);
    drawing.wire({{17, 18}, {17, 18.5}, {15.5, 18.5}}).wire({{15.5, 23.5}, {17, 23.5}, {17, 25}});
    drawing.box({15.8, 25}, {18.2, 27});
    drawing.rod({{15.8, 26}, {2, 28.6}}).rod({{18.2, 26}, {32, 28.6}});
    drawing.rod({{15.8, 26.5}, {9, 31}}).rod({{18.2, 26.5}, {25, 31}});
    drawing.label(lblradiale, {28, 26.9}, Side::above);
    drawing.wire({{16.5, 27}, {16.5, 34}}).wire({{17.5, 27}, {17.5, 34}});
  }

  void Option1_click(int index) {
    const Band& band = bands[static_cast<std::size_t>(index)];
    lblaltezza = band.height;
    lblradiale = band.radial;
    lblradiatore = band.radiator_data;
    lblradiali = band.radials_data;
    lblbobina = band.coil_data;
    lblcarico = band.turns;
  }
};

const ui::Registration<frmantenna58> registration{"frmantenna58"};

}  // namespace

}  // namespace eterlab::antennas
