#include <optional>
#include <string>
#include <string_view>

#include "coils/layered_coil.h"
#include "coils/layered_coil_results.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

constexpr std::string_view inductance_prompt = "INDUTTANZA in uH";
constexpr ui::Range inductance_range_uh{1, 100'000};
constexpr ui::Range side_range_mm{5, 2000};

// Coils in layers on a square or rectangular form, up to frame aerials.
class frmbobinarettangolare final : public ui::Calculator {
  ui::OptionArray Option1{
      this, "Option1", {"TROVARE IL NUMERO DELLE SPIRE", "TROVARE L'INDUTTANZA"}};
  ui::Input txtlatoa{this, "txtlatoa", "LATO A DEL SUPPORTO in mm", {.range = side_range_mm}};
  ui::Input txtlatob{this, "txtlatob", "LATO B DEL SUPPORTO in mm", {.range = side_range_mm}};
  ui::Input txtlarghezza{
      this, "txtlarghezza", "LARGHEZZA DELL'AVVOLGIMENTO in mm", {.range = ui::Range{1, 500}}};
  ui::Input txtfilo{this,
                    "txtfilo",
                    "DIAMETRO DEL FILO SMALTATO in mm",
                    {.tooltip = "misurato con lo smalto", .range = ui::Range{0.05, 5}}};
  ui::Input txtinput{this,
                     "txtinput",
                     inductance_prompt,
                     {.range = inductance_range_uh, .prompt_name = "lblinput"}};
  ui::Schematic drawing{this, "drawing", 34, 38};
  ui::Value lbla{drawing, "lbla", "A"};
  ui::Value lblb{drawing, "lblb", "B"};
  ui::Value lbllarg{drawing, "lbllarg", "W"};
  LayeredCoilResults results{this};
  ui::Note Label6{this, "Label6",
                  "SPIRE ACCOSTATE, STRATO SU STRATO. GLI SPIGOLI SONO CONSIDERATI VIVI."};

 public:
  frmbobinarettangolare()
      : Calculator{"frmbobinarettangolare", "BOBINA MULTISTRATO RETTANGOLARE IN ARIA"} {
    Option1.preset(0);
    draw();
    lay_out(ui::column(
        ui::row(ui::column(Option1, ui::form(txtlatoa, txtlatob, txtlarghezza, txtfilo, txtinput),
                           results, ui::stretch()),
                drawing),
        Label6));

    Option1.on_click([this](int index) {
      if (is_turns_wanted(index)) {
        txtinput.ask_anew(inductance_prompt, inductance_range_uh);
      } else {
        txtinput.ask_anew("NUMERO DELLE SPIRE", {1, 1500});
      }
    });
  }

  void show_example() override { fill_in({"60", "40", "10", "0.5", "250"}); }

 private:
  static bool is_turns_wanted(int option) { return option == 0; }

  // The form from the front in its turns; under it the winding cut across.
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr ui::At corner{4, 5};
    constexpr ui::At opposite{14, 13};
    constexpr double turn = 0.9;
    constexpr int turns = 3;
    constexpr double below = 18;
    constexpr double beside = 18;
    drawing.shaded_box(corner, opposite);
    for (int i = 1; i <= turns; ++i) {
      drawing.box({corner.x - i * turn, corner.y - i * turn},
                  {opposite.x + i * turn, opposite.y + i * turn});
    }
    for (const double x : {corner.x, opposite.x}) {
      drawing.extension({x, opposite.y}, {x, below + 0.5});
    }
    for (const double y : {corner.y, opposite.y}) {
      drawing.extension({opposite.x, y}, {beside + 0.5, y});
    }
    drawing.dimension({corner.x, below}, {opposite.x, below})
        .label(lbla, {(corner.x + opposite.x) / 2, below + 0.5}, Side::below)
        .dimension({beside, corner.y}, {beside, opposite.y})
        .label(lblb, {beside + 0.5, (corner.y + opposite.y) / 2}, Side::right);

    constexpr double pitch = 1.4;
    constexpr int per_layer = 6;
    constexpr double left = (corner.x + opposite.x - per_layer * pitch) / 2;
    constexpr double right = left + per_layer * pitch;
    constexpr double foot = 33;
    drawing.shaded_box({left - 1, foot}, {right + 1, foot + 2});
    for (int layer = 0; layer < turns; ++layer) {
      for (int i = 0; i < per_layer; ++i) {
        drawing.circle({left + (i + 0.5) * pitch, foot - (layer + 0.5) * pitch}, 0.6);
      }
    }
    for (const double x : {left, right}) {
      drawing.extension({x, foot - turns * pitch - 0.5}, {x, foot - turns * pitch - 3});
    }
    drawing.dimension({left, foot - turns * pitch - 2.5}, {right, foot - turns * pitch - 2.5})
        .label(lbllarg, {(left + right) / 2, foot - turns * pitch - 3}, Side::above);
  }

  void compute() override {
    const RectangularForm form{txtlatoa.value() / 1000, txtlatob.value() / 1000};
    const Layering layering{txtlarghezza.value() / 1000, txtfilo.value() / 1000};
    const int per_layer = turns_per_layer(layering);
    require(per_layer >= 1, txtfilo, "IL FILO E' PIU' GROSSO DELLA LARGHEZZA DELL'AVVOLGIMENTO");
    const LayeredCoil coil =
        is_turns_wanted(Option1.selected()) ? near(form, layering) : of_turns(form, layering);

    const auto size = [&](const ui::Input& side) {
      return fixed(side.value() + 2 * coil.layers * txtfilo.value(), 1);
    };
    results.show(coil, per_layer, "INGOMBRO = " + size(txtlatoa) + " x " + size(txtlatob) + " mm");
    lbla = plain(txtlatoa.value()) + " mm";
    lblb = plain(txtlatob.value()) + " mm";
    lbllarg = plain(txtlarghezza.value()) + " mm";
  }

  [[nodiscard]] LayeredCoil of_turns(const RectangularForm& form, const Layering& layering) {
    const Real turns = txtinput.value();
    require(turns == floor(turns), txtinput, "IL NUMERO DELLE SPIRE DEVE ESSERE INTERO");
    advise_layers(turns <= most_turns(layering));
    return layered_coil(form, layering, static_cast<int>(turns.value()));
  }

  [[nodiscard]] LayeredCoil near(const RectangularForm& form, const Layering& layering) {
    const Real inductance_h = txtinput.value() / 1e6;
    advise(inductance_h >= layered_coil(form, layering, 1).inductance_h, txtlatoa,
           "BASTA MENO DI UNA SPIRA: RIDURRE I LATI");
    const std::optional<LayeredCoil> coil = layered_coil_near(form, layering, inductance_h);
    advise_layers(coil.has_value() || !is_limited_by_layers(layering));
    advise(coil.has_value(), txtlatoa, "OCCORRONO PIU' DI 1500 SPIRE: AUMENTARE I LATI");
    return *coil;
  }

  void advise_layers(bool holds) {
    advise(holds, txtlarghezza, "TROPPI STRATI: AUMENTARE LA LARGHEZZA DELL'AVVOLGIMENTO");
  }
};

const ui::Registration<frmbobinarettangolare> registration{"frmbobinarettangolare"};

}  // namespace

}  // namespace eterlab::coils
