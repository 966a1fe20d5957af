#include <array>

#include "common/number_text.h"
#include "materials/galvanic_series.h"
#include "ui/ui.h"

namespace eterlab::materials {

namespace {

// In the order of Contact.
constexpr std::array<std::string_view, 4> verdicts{
    "COPPIA ADATTA ANCHE ALL'APERTO E AL MARE",
    "ADATTA ALL'INTERNO, ALL'APERTO SOLO PROTETTA",
    "SOLO IN AMBIENTE ASCIUTTO",
    "DA EVITARE: CORROSIONE SICURA CON L'UMIDITA'",
};

// Which metals may touch each other outdoors.
class frmddpcontatto final : public ui::Calculator {
  ui::List cmbmetallo1{this, "cmbmetallo1", "PRIMO METALLO"};
  ui::List cmbmetallo2{this, "cmbmetallo2", "SECONDO METALLO"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lblcorrode{this, "lblcorrode"};
  ui::Result lblgiudizio{this, "lblgiudizio"};
  ui::ResultTable table{this,
                        "table",
                        static_cast<int>(galvanic_series().size()),
                        {{"lblmetallo", "METALLO", ui::ResultTable::Kind::text},
                         {"lblindice", "INDICE in VOLT", ui::ResultTable::Kind::number}}};

 public:
  frmddpcontatto()
      : Calculator{"frmddpcontatto", "DIFFERENZA DI POTENZIALE DI CONTATTO TRA METALLI",
                   Computes::as_typed} {
    cmbmetallo1.offer(galvanic_series());
    cmbmetallo1.choose("ALLUMINIO 6060");
    cmbmetallo2.offer(galvanic_series());
    cmbmetallo2.choose("RAME");
    int row = 0;
    for (const GalvanicMetal& metal : galvanic_series()) {
      table.at(row, 0) = metal.name;
      table.at(row, 1) = fixed(metal.anodic_index_v, 2);
      ++row;
    }
    lay_out(ui::column(ui::row(ui::form(cmbmetallo1, cmbmetallo2), ui::stretch()), lbloutput,
                       lblcorrode, lblgiudizio, table));
  }

 private:
  void compute() override {
    const GalvanicMetal& first = cmbmetallo1.chosen_of(galvanic_series());
    const GalvanicMetal& second = cmbmetallo2.chosen_of(galvanic_series());
    const Real voltage_v = contact_voltage_v(first, second);
    lbloutput = "DIFFERENZA DI POTENZIALE = " + fixed(voltage_v, 2) + " Volt";
    if (first.anodic_index_v != second.anodic_index_v) {
      const GalvanicMetal& corroding =
          first.anodic_index_v > second.anodic_index_v ? first : second;
      lblcorrode = "SI CORRODE: " + std::string{corroding.name};
    }
    lblgiudizio = verdicts[static_cast<std::size_t>(contact_at(voltage_v))];
    table.mark({cmbmetallo1.chosen(), cmbmetallo2.chosen()});
  }
};

const ui::Registration<frmddpcontatto> registration{"frmddpcontatto"};

}  // namespace

}  // namespace eterlab::materials
