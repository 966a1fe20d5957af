#include <string>
#include <string_view>
#include <vector>

#include "coils/printed_coil.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

constexpr std::string_view inductance_prompt = "INDUTTANZA in uH";
constexpr ui::Range inductance_range_uh{0.001, 100};

// Flat spirals etched on a printed board.
class frmbobinepiatte final : public ui::Calculator {
  ui::OptionArray Option1{
      this, "Option1", {"TROVARE IL NUMERO DELLE SPIRE", "TROVARE L'INDUTTANZA"}};
  ui::OptionArray Option2{this, "Option2", {"CIRCOLARE", "QUADRATA"}};
  ui::Input txtdiametro{this,
                        "txtdiametro",
                        "DIAMETRO O LATO INTERNO in mm",
                        {.tooltip = "spazio libero al centro", .range = ui::Range{1, 100}}};
  ui::Input txtpista{
      this, "txtpista", "LARGHEZZA DELLA PISTA in mm", {.range = ui::Range{0.1, 10}}};
  ui::Input txtspazio{
      this, "txtspazio", "SPAZIO TRA LE PISTE in mm", {.range = ui::Range{0.1, 10}}};
  ui::Input txtinput{this,
                     "txtinput",
                     inductance_prompt,
                     {.range = inductance_range_uh, .prompt_name = "lblinput"}};
  ui::Schematic drawing{this, "drawing", 30, 34};
  ui::Value lbld{drawing, "lbld", "D"};
  ui::Value lble{drawing, "lble", "E"};
  ui::Result lblspire{this, "lblspire"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Result lblesterno{this, "lblesterno"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::Note Label6{this, "Label6",
                  "NON LASCIARE RAME SOTTO O ATTORNO ALLA BOBINA: UN PIANO DI MASSA VICINO PUO' "
                  "DIMEZZARE L'INDUTTANZA."};

 public:
  frmbobinepiatte() : Calculator{"frmbobinepiatte", "BOBINE VHF PIATTE STAMPATE"} {
    Option1.preset(0);
    Option2.preset(0);
    draw();
    lay_out(ui::column(
        ui::row(ui::column(Option1, ui::across(Option2),
                           ui::form(txtdiametro, txtpista, txtspazio, txtinput), lblspire,
                           lblinduttanza, lblesterno, lbllunghezza, ui::stretch()),
                drawing),
        Label6));

    Option1.on_click([this](int index) {
      if (index == 0) {
        txtinput.ask_anew(inductance_prompt, inductance_range_uh);
      } else {
        txtinput.ask_anew("NUMERO DELLE SPIRE", {fewest_printed_turns, most_printed_turns});
      }
    });
    Option2.on_click([this](int) { draw(); });
  }

  void show_example() override { fill_in({"6", "0.8", "0.8", "0.25"}); }

 private:
  [[nodiscard]] bool is_round() const { return Option2.selected() == 0; }

  // Seen from above: the free middle is measured over it, the whole under it.
  void draw() {
    constexpr double centre_x = 15;
    constexpr double centre_y = 17;
    constexpr double inner = 4;
    constexpr double pitch = 2;
    constexpr int turns = 3;
    constexpr double outer = inner + turns * pitch;
    constexpr double above = centre_y - outer - 2;
    constexpr double below = centre_y + outer + 2;
    double inner_left = centre_x - inner;
    double outer_left = centre_x - outer + pitch;
    double outer_right = centre_x + outer - pitch;
    drawing.clear();
    if (is_round()) {
      drawing.spiral({centre_x, centre_y}, inner, outer, turns);
      inner_left -= pitch / 2;
      outer_left -= pitch / 2;
      outer_right += pitch;
    } else {
      std::vector<ui::At> corners;
      double half = inner;
      for (int turn = 0; turn < turns; ++turn) {
        const double below_centre = turn == 0 ? centre_y : centre_y + half;
        corners.insert(corners.end(), {{centre_x + half, below_centre},
                                       {centre_x + half, centre_y - half},
                                       {centre_x - half, centre_y - half},
                                       {centre_x - half, centre_y + half + pitch}});
        half += pitch;
      }
      corners.push_back({centre_x + half - pitch, centre_y + half});
      drawing.wire(corners);
    }
    for (const double x : {inner_left, centre_x + inner}) {
      drawing.extension({x, centre_y}, {x, above - 0.5});
    }
    for (const double x : {outer_left, outer_right}) {
      drawing.extension({x, centre_y}, {x, below + 0.5});
    }
    drawing.dimension({inner_left, above}, {centre_x + inner, above})
        .label(lbld, {centre_x, above - 0.5}, ui::Schematic::Side::above)
        .dimension({outer_left, below}, {outer_right, below})
        .label(lble, {centre_x, below + 0.5}, ui::Schematic::Side::below);
  }

  void compute() override {
    constexpr double slack = 1e-6;
    const PrintedSpiral spiral{is_round() ? SpiralShape::round : SpiralShape::square,
                               txtdiametro.value() / 1000, txtpista.value() / 1000,
                               txtspazio.value() / 1000};
    require(spiral.gap_m <= (widest_gap_ratio + slack) * spiral.track_m, txtspazio,
            "SPAZIO TROPPO LARGO: AL MASSIMO TRE VOLTE LA PISTA");
    const PrintedCoil coil =
        Option1.selected() == 0 ? near(spiral) : printed_coil(spiral, txtinput.value());

    lblspire = "SPIRE = " + plain(coil.turns);
    lblinduttanza = "L = " + fixed(coil.inductance_h * 1e6, 3) + " uH";
    const std::string outer = fixed(1000 * coil.outer_m, 1) + " mm";
    lblesterno = (is_round() ? "DIAMETRO ESTERNO = " : "LATO ESTERNO = ") + outer;
    lbllunghezza = "LUNGHEZZA DELLA PISTA = " + fixed(100 * coil.track_length_m, 1) + " cm.";
    lbld = plain(txtdiametro.value()) + " mm";
    lble = outer;
  }

  [[nodiscard]] PrintedCoil near(const PrintedSpiral& spiral) {
    const Real inductance_h = txtinput.value() / 1e6;
    advise(inductance_h >= printed_coil(spiral, fewest_printed_turns).inductance_h, txtdiametro,
           "BASTA MENO DI UNA SPIRA: RIDURRE IL DIAMETRO INTERNO");
    advise(inductance_h <= printed_coil(spiral, most_printed_turns).inductance_h, txtdiametro,
           "OCCORRONO PIU' DI 50 SPIRE: AUMENTARE IL DIAMETRO INTERNO");
    return printed_coil_near(spiral, inductance_h);
  }
};

const ui::Registration<frmbobinepiatte> registration{"frmbobinepiatte"};

}  // namespace

}  // namespace eterlab::coils
