#include <tuple>

#include "common/number_text.h"
#include "common/preferred_values.h"
#include "filters/rc_filters.h"
#include "filters/response_plot.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::filters {

namespace {

constexpr double nanofarad = 1e-9;
constexpr double kilohm = 1e3;
constexpr double most_db = 60;  // shown of a notch without end

// The twin T, which takes a tone out of an audio signal.
class frmfiltronotch final : public ui::Calculator {
  ui::OptionArray Option1{this, "Option1", {"NOTO IL CONDENSATORE", "NOTA LA RESISTENZA"}};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA DA ELIMINARE in Hz"};
  ui::Input txtinput{this, "txtinput", "C in nF :", {.prompt_name = "lblinput"}};
  ui::Result lblr{this, "lblr"};
  ui::Result lblr2{this, "lblr2"};
  ui::Result lblc{this, "lblc"};
  ui::Result lblc2{this, "lblc2"};
  ui::Result lblcommerciale{this, "lblcommerciale"};
  ui::Schematic drawing{this, "drawing", 56, 27};
  ui::Value lblvaloreringresso{drawing, "lblvaloreringresso"};
  ui::Value lblvaloreruscita{drawing, "lblvaloreruscita"};
  ui::Value lblvalore2c{drawing, "lblvalore2c"};
  ui::Value lblvalorecingresso{drawing, "lblvalorecingresso"};
  ui::Value lblvalorecuscita{drawing, "lblvalorecuscita"};
  ui::Value lblvalorer2{drawing, "lblvalorer2"};
  ui::Plot plot{this, "plot", response_plot::frequency(), response_plot::attenuation(most_db),
                56,   30};

 public:
  frmfiltronotch() : Calculator{"frmfiltronotch", "FILTRO NOTCH R C A DOPPIO T"} {
    Option1.preset(0);
    draw();
    lay_out(ui::column(ui::row(ui::column(Option1, ui::form(txtfrequenza, txtinput), lblr, lblr2,
                                          lblc, lblc2, ui::stretch()),
                               ui::column(drawing, plot)),
                       lblcommerciale));

    Option1.on_click([this](int index) {
      txtinput.ask(index == 0 ? "C in nF :" : "R in kOhm :");
      txtinput = "";
    });
  }

  void show_example() override { fill_in({"50", "100"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double input = 8;
    constexpr double middle = 27;
    constexpr double output = 46;
    constexpr double upper = 6.5;
    constexpr double upper_ground = 12;
    constexpr double lower = 19;
    constexpr double lower_ground = 24.5;
    constexpr double between = (upper + lower) / 2;
    drawing.resistor({input, upper}, {middle, upper})
        .named_beside("R", lblvaloreringresso, Side::above)
        .resistor({middle, upper}, {output, upper})
        .named_beside("R", lblvaloreruscita, Side::above)
        .capacitor({middle, upper}, {middle, upper_ground})
        .named("2 C", lblvalore2c)
        .junction({middle, upper})
        .ground({middle, upper_ground});
    drawing.capacitor({input, lower}, {middle, lower})
        .named_beside("C", lblvalorecingresso, Side::above)
        .capacitor({middle, lower}, {output, lower})
        .named_beside("C", lblvalorecuscita, Side::above)
        .resistor({middle, lower}, {middle, lower_ground})
        .named("R / 2", lblvalorer2)
        .junction({middle, lower})
        .ground({middle, lower_ground});
    for (const auto& [node, terminal, name] :
         {std::tuple{input, input - 4, "INPUT"}, {output, output + 4, "OUTPUT"}}) {
      drawing.wire({{node, upper}, {node, lower}})
          .wire({{node, between}, {terminal, between}})
          .junction({node, between})
          .terminal({terminal, between})
          .named(name);
    }
  }

  void compute() override {
    const bool is_capacitor_known = Option1.selected() == 0;
    const Real frequency_hz = txtfrequenza.value();
    const Real capacitance_f = is_capacitor_known
                                   ? nanofarad * txtinput.value()
                                   : rc_capacitance_f(frequency_hz, kilohm * txtinput.value());
    const Real resistance_ohm = is_capacitor_known ? rc_resistance_ohm(frequency_hz, capacitance_f)
                                                   : kilohm * txtinput.value();
    const Real preferred_ohm = nearest_preferred(resistance_ohm, Series::e24);

    lblvaloreringresso = eng(resistance_ohm, "Ohm");
    lblvaloreruscita = lblvaloreringresso.content();
    lblvalorer2 = eng(resistance_ohm / 2, "Ohm");
    lblvalorecingresso = eng(capacitance_f, "F");
    lblvalorecuscita = lblvalorecingresso.content();
    lblvalore2c = eng(2 * capacitance_f, "F");
    lblr = "R = " + lblvaloreringresso.content();
    lblr2 = "R / 2 = " + lblvalorer2.content();
    lblc = "C = " + lblvalorecingresso.content();
    lblc2 = "2 C = " + lblvalore2c.content();
    lblcommerciale = "CON R = " + eng(preferred_ohm, "Ohm") +
                     " (E24) E C = " + lblvalorecingresso.content() + " IL NOTCH E' A " +
                     eng(rc_frequency_hz(preferred_ohm, capacitance_f), "Hz");
    plot.curve([frequency_hz](Real at_hz) { return twin_t_attenuation_db(frequency_hz, at_hz); },
               frequency_hz / 100, 100 * frequency_hz)
        .marker(frequency_hz, most_db, eng(frequency_hz, "Hz"));
  }
};

const ui::Registration<frmfiltronotch> registration{"frmfiltronotch"};

}  // namespace

}  // namespace eterlab::filters
