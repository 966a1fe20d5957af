#include <array>

#include "circuits/handbook_reactance.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

struct Kind {
  std::string_view formula;
  std::string_view second_input;
  std::string_view result;
};

constexpr int inductive = 0;
constexpr std::array<Kind, 2> kinds{{
    {"XL in Ohm = 6,28 x (Mhz x induttanza in µH)", "microH", "XL Ohm"},
    {"XC in Ohm = 159.000 : (Mhz x pF)", "picoF", "XC Ohm"},
}};

constexpr ui::Colour chosen_red{255, 0, 0};

// The reactance of an inductor or of a capacitor.
class frmreattanza final : public ui::Window {
  ui::Frame Frame1{this, "Frame1", "Tipo di Reattanza"};
  ui::OptionArray Option1{Frame1, "Option1", {"REATTANZA  INDUTTIVA", "REATTANZA CAPACITIVA"}};
  ui::Label lblfantasma{this, "lblfantasma"};
  ui::LabelArray lblinput{this, "lblinput", 4};
  ui::TextBoxArray txtinput{this, "txtinput", 2};
  ui::Note Label1{this, "Label1", "L'uso dei Mhz e dei micro Henry ottimizza il calcolo per le HF"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "Costruzione bobine", {"frmbobine", {180, 180}, {4100, 2800}}};
  ui::ExitButton cmnesci{this, "cmnesci", "ESCI"};

 public:
  frmreattanza() : Window{"frmreattanza", "Reattanza "} {
    lblfantasma.reserve(kinds[inductive].formula);
    lblinput[2].reserve(kinds.back().result);
    lblinput[3].set_role(ui::Label::Role::result);
    arrange(ui::column(
        ui::row(Frame1.arrange(Option1), ui::column(lblfantasma,
                                                    ui::form(field(lblinput[0], txtinput[0]),
                                                             field(lblinput[1], txtinput[1]),
                                                             field(lblinput[2], lblinput[3])),
                                                    ui::stretch())),
        Label1, ui::buttons(cmdcalcola, cmdchiamabobine, cmnesci)));

    Option1.on_click([this](int index) { Option1_click(index); });
    blank_on_change({&txtinput[0], &txtinput[1]}, {&lblinput[3]});
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    Option1.click(inductive);
    txtinput[0] = "7";
    txtinput[1] = "10";
    cmdcalcola.click();
  }

 private:
  void Option1_click(int index) {
    Option1.mark(index, chosen_red);
    const Kind& kind = kinds[static_cast<std::size_t>(index)];
    lblfantasma = kind.formula;
    lblinput[0] = "Mhz";
    lblinput[1] = kind.second_input;
    lblinput[2] = kind.result;
  }

  void cmdcalcola_click() {
    const Real frequency_mhz = txtinput[0].number();
    const Real second = txtinput[1].number();
    if (frequency_mhz * second <= 0) {
      refuse(txtinput[0]);
      return;
    }
    const Real reactance_ohm = Option1.selected() == inductive
                                   ? handbook_inductive_reactance_ohm(frequency_mhz, second)
                                   : handbook_capacitive_reactance_ohm(frequency_mhz, second);
    lblinput[3] = fixed(reactance_ohm, 3);
  }
};

const ui::Registration<frmreattanza> registration{"frmreattanza"};

}  // namespace

}  // namespace eterlab::circuits
