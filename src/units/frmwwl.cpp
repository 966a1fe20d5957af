#include "ui/ui.h"
#include "units/locator.h"

namespace eterlab::units {

namespace {

// Coordinates turned into a locator. It opens together with frmcoordinate.
class frmwwl final : public ui::Window {
  ui::Heading Label6{this, "Label6", "DA COORDINATE SESSAGESIMALI A WORLD WIDE LOCATOR"};
  ui::Label Label3{this, "Label3", "GRADI"};
  ui::Label Label4{this, "Label4", "PRIMI"};
  ui::Label Label5{this, "Label5", "SECONDI"};
  ui::Label Label1{this, "Label1", "LONGITUDINE"};
  ui::TextBox txtlongr{this, "txtlongr"};
  ui::TextBox txtlonpr{this, "txtlonpr"};
  ui::TextBox txtlonse{this, "txtlonse"};
  ui::Label Label2{this, "Label2", "LATITUDINE"};
  ui::TextBox txtlatgr{this, "txtlatgr"};
  ui::TextBox txtlatpr{this, "txtlatpr"};
  ui::TextBox txtlatse{this, "txtlatse"};
  ui::Result lblwwl{this, "lblwwl"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmwwl() : Window{"frmwwl", "  da  COORDINATE   a    W W LOCATOR"} {
    arrange(ui::column(Label6,
                       ui::table({&Label3, &Label4, &Label5},
                                 {{&Label1, {&txtlongr, &txtlonpr, &txtlonse}},
                                  {&Label2, {&txtlatgr, &txtlatpr, &txtlatse}}}),
                       lblwwl, ui::buttons(cmdcalcola, cmdesci)),
            72);

    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void load() override { centre_across_screen(6000); }

  void show_example() override {
    txtlongr = "12";
    txtlonpr = "28";
    txtlonse = "59";
    txtlatgr = "41";
    txtlatpr = "53";
    txtlatse = "24";
    cmdcalcola.click();
  }

 private:
  void cmdcalcola_click() {
    const Real longitude_deg = degrees_of(txtlongr.number(), txtlonpr.number(), txtlonse.number());
    const Single latitude_deg{degrees_of(txtlatgr.number(), txtlatpr.number(), txtlatse.number())};
    lblwwl = "il WORLD WIDE LOCATOR è :  " + locator_of({longitude_deg, latitude_deg});
  }
};

const ui::Registration<frmwwl> registration{"frmwwl"};

}  // namespace

}  // namespace eterlab::units
