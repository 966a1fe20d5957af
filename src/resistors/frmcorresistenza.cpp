#include "common/number_text.h"
#include "resistors/power_rating.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

// What a resistor of given value and power bears.
class frmcorresistenza final : public ui::Calculator {
  ui::Input txtohm{this, "txtohm", "RESISTENZA in OHM"};
  ui::Input txtwatt{this, "txtwatt", "POTENZA in WATT"};
  ui::Result lblcorrente{this, "lblcorrente"};
  ui::Result lbltensione{this, "lbltensione"};
  ui::Result lblconsigliata{this, "lblconsigliata"};
  ui::Note Label1{this, "Label1",
                  "OLTRE 250 VOLT (TIPI DA 1/4 W) O 350 VOLT (DA 1/2 W) VALE IL LIMITE DI TENSIONE "
                  "DEL TIPO, NON QUELLO DI POTENZA"};

 public:
  frmcorresistenza()
      : Calculator{"frmcorresistenza", "MASSIMA CORRENTE SOPPORTATA DA UNA RESISTENZA"} {
    set_message_title("messaggio di errore");
    lay_out(ui::column(ui::form(txtohm, txtwatt), lblcorrente, lbltensione, lblconsigliata, Label1),
            {}, 76);
  }

  void show_example() override { fill_in({"470", "0.25"}); }

 private:
  void compute() override {
    const PowerRating rating = power_rating(txtohm.value(), txtwatt.value());
    lblcorrente = "MASSIMA CORRENTE = " + eng(rating.current_a, "A");
    lbltensione = "MASSIMA TENSIONE = " + eng(rating.voltage_v, "V");
    lblconsigliata =
        "CORRENTE CONSIGLIATA (META' DELLA POTENZA) = " + eng(rating.advised_current_a, "A");
  }
};

const ui::Registration<frmcorresistenza> registration{"frmcorresistenza"};

}  // namespace

}  // namespace eterlab::resistors
