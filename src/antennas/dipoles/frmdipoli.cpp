#include "antennas/dipoles/wire_antennas.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// The arms of a half-wave dipole, flat or as an inverted V, as the user types.
class frmdipoli final : public ui::Window {
  ui::Schematic drawing{this, "drawing", 60, 14};
  ui::Label Label1{drawing, "Label1", "1/4 lambda", ui::tooltip("semidipolo 1/4 lambda")};
  ui::Label lbllunghezza{drawing, "lbllunghezza", "", ui::tooltip("semidipolo 1/4 lambda")};
  ui::Label Label2{drawing, "Label2", "discesa coax", ui::tooltip("centrale dipolo")};
  ui::Label Label3{this, "Label3", "FREQUENZA DI CENTRO BANDA IN MHz  :"};
  ui::TextBox txtfrequenza{this, "txtfrequenza", ui::tooltip("frequenza di risonanza dipolo")};
  ui::Note Label4{this, "Label4", " FREQUENZE AMMISSIBILI : da 0,1 a 500 MHz"};
  ui::Result lblbraccio{this, "lblbraccio"};
  ui::Note Label5{this, "Label5",
                  "QUALORA SI INTENDA COSTRUIRE IL DIPOLO NELLA VERSIONE A  \"V INVERTITA\" LA "
                  "LUNGHEZZA DEL BRACCIO A UN QUARTO D' ONDA SARA' DI METRI :"};
  ui::Result lbllunghezzavert{this, "lbllunghezzavert"};
  ui::Note Label6{this, "Label6", "separare i decimali con il punto del tastierino numerico"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmdipoli() : Window{"frmdipoli", "LUNGHEZZA DEL BRACCIO DEL DIPOLO"} {
    draw();
    Label5.set_prompt_of(lbllunghezzavert);
    arrange(ui::column(ui::row(ui::stretch(), drawing, ui::stretch()),
                       ui::form(field(Label3, txtfrequenza)), Label4, lblbraccio, Label5,
                       lbllunghezzavert, Label6, ui::buttons(cmdesci)),
            76);

    txtfrequenza.on_change([this] { txtfrequenza_change(); });
  }

  void show_example() override { txtfrequenza = "7.1"; }

 private:
  void draw() {
    drawing.rod({{3, 5}, {29, 5}}).rod({{31, 5}, {57, 5}});
    drawing.terminal({2.5, 5}).terminal({57.5, 5});
    drawing.dashed({{0, 5}, {2, 5}}).dashed({{58, 5}, {60, 5}});
    drawing.dimension({3, 3}, {29, 3}).label(Label1, {16, 3}, ui::Schematic::Side::above);
    drawing.dimension({31, 3}, {57, 3}).label(lbllunghezza, {44, 3}, ui::Schematic::Side::above);
    drawing.wire({{28.9, 5}, {28.9, 7}, {29.6, 8}, {29.6, 13.5}});
    drawing.wire({{31.1, 5}, {31.1, 7}, {30.4, 8}, {30.4, 13.5}});
    drawing.label(Label2, {31, 11}, ui::Schematic::Side::right);
  }

  void txtfrequenza_change() {
    const Single frequency_mhz{txtfrequenza.number()};
    if (frequency_mhz.value() <= 0) {
      lbllunghezza.hide();
      lbllunghezzavert.hide();
      lblbraccio.hide();
      return;
    }
    // Before the texts: a label that does not show is not announced to screen readers.
    lbllunghezza.show();
    lblbraccio.show();
    lbllunghezzavert.show();
    const std::string arm_m = fixed(dipole_arm_m(frequency_mhz), 2);
    lbllunghezza = arm_m + " mt.";
    lblbraccio = "LUNGHEZZA DEL BRACCIO in mt.: " + arm_m;
    lbllunghezzavert = fixed(inverted_v_arm_m(frequency_mhz), 2);
  }
};

const ui::Registration<frmdipoli> registration{"frmdipoli"};

}  // namespace

}  // namespace eterlab::antennas
