#include <array>
#include <string_view>

#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// Peak voltages of air capacitors by the spacing of their plates: the ARRL Handbook, which has it
// in inches: 0.015, 0.02, 0.03, 0.05, 0.07, 0.08, 0.125, 0.15, 0.17, 0.2, 0.25, 0.35, 0.5.
struct PlateSpacing {
  double spacing_mm;
  double peak_v;
};
constexpr std::array<PlateSpacing, 13> plate_spacings{{{0.4, 1000},
                                                       {0.5, 1200},
                                                       {0.8, 1500},
                                                       {1.3, 2000},
                                                       {1.8, 3000},
                                                       {2.0, 3500},
                                                       {3.2, 4500},
                                                       {3.8, 6000},
                                                       {4.3, 7000},
                                                       {5.1, 7500},
                                                       {6.4, 9000},
                                                       {8.9, 11'000},
                                                       {12.7, 13'000}}};

struct CableCapacitor {
  std::string_view cable;
  double pf_per_m;   // 1 / (Z0 v)
  double working_v;  // effective, MIL-C-17
};
constexpr std::array<CableCapacitor, 4> cable_capacitors{{{"RG 58", 101, 1400},
                                                          {"RG 59", 67, 1700},
                                                          {"RG 213", 101, 3700},
                                                          {"RG 142 - RG 400", 96, 1400}}};

struct Kind {
  std::string_view name;
  std::string_view losses;
  std::string_view use;
};
constexpr std::array<Kind, 6> kinds{
    {{"SOTTOVUOTO", "MINIME", "il migliore: 10 - 15 kV in poco spazio"},
     {"A FARFALLA", "BASSE", "nessun contatto strisciante: le due sezioni lavorano in serie"},
     {"DUE SEZIONI IN SERIE", "BASSE",
      "capacità metà, tensione doppia: si collegano i due statori, il rotore resta libero"},
     {"UNA SEZIONE", "ALTE", "solo per prove: il contatto strisciante può perdere quanto il loop"},
     {"TUBI COASSIALI O LASTRE", "BASSE",
      "facile da costruire: si accorda avvicinando le lastre o sfilando il tubo"},
     {"SPEZZONE DI RG 213", "MEDIE",
      "per una sola frequenza: aperto in fondo, molto più corto di un quarto d'onda"}}};

// How to choose or build the capacitor of a magnetic loop.
class frmhelpcondensatore final : public ui::Window {
  using enum ui::ResultTable::Kind;

  ui::Note Label1{
      this, "Label1",
      "La tensione indicata dal calcolo è di picco e vale per la potenza data: varia con "
      "la radice quadrata della potenza. Scegliere un condensatore con un margine di "
      "almeno un terzo."};
  ui::Heading Heading1{this, "Heading1", "DISTANZA TRA LE LAMINE (ARIA)"};
  ui::ResultTable tbllamine{this,
                            "tbllamine",
                            static_cast<int>(plate_spacings.size()),
                            {{"lbldistanza", "DISTANZA mm", number},
                             {"lbllaminetensione", "TENSIONE DI PICCO V", number}}};
  ui::Heading Heading2{this, "Heading2", "SPEZZONI DI CAVO COME CONDENSATORE FISSO"};
  ui::ResultTable tblcavi{this,
                          "tblcavi",
                          static_cast<int>(cable_capacitors.size()),
                          {{"lblcavo", "CAVO", text},
                           {"lblpf", "pF AL METRO", number},
                           {"lblcavotensione", "TENSIONE DI PICCO V", number}}};
  ui::Heading Heading3{this, "Heading3", "TIPI DI CONDENSATORE"};
  ui::ResultTable tbltipi{this,
                          "tbltipi",
                          static_cast<int>(kinds.size()),
                          {{"lbltipo", "TIPO", text},
                           {"lblperdite", "PERDITE", text},
                           {"lblimpiego", "IMPIEGO", text}}};
  ui::Note Label2{this, "Label2",
                  "Il cavo scalda: oltre 50 Watt preferire l'aria o il vuoto. Dove le lamine hanno "
                  "spigoli vivi la tensione ammessa è minore."};
  ui::ExitButton cmdchiudi{this, "cmdchiudi", "CHIUDI"};

 public:
  frmhelpcondensatore() : Window{"frmhelpcondensatore", "IL CONDENSATORE DEL LOOP"} {
    fill_tables();
    arrange(ui::column(
        Label1,
        ui::row(ui::column(Heading1, tbllamine), ui::column(Heading2, tblcavi, ui::stretch())),
        Heading3, tbltipi, Label2, ui::buttons(cmdchiudi)));
  }

 private:
  void fill_tables() {
    int row = 0;
    for (const PlateSpacing& plates : plate_spacings) {
      tbllamine.at(row, 0) = fixed(plates.spacing_mm, 1);
      tbllamine.at(row++, 1) = fixed(plates.peak_v, 0);
    }
    row = 0;
    for (const CableCapacitor& capacitor : cable_capacitors) {
      tblcavi.at(row, 0) = capacitor.cable;
      tblcavi.at(row, 1) = fixed(capacitor.pf_per_m, 0);
      tblcavi.at(row++, 2) = fixed(sqrt(Real{2}) * capacitor.working_v, 0);
    }
    row = 0;
    for (const Kind& kind : kinds) {
      tbltipi.at(row, 0) = kind.name;
      tbltipi.at(row, 1) = kind.losses;
      tbltipi.at(row, 2).setWordWrap(true);
      tbltipi.at(row, 2).reserve(kind.use);
      tbltipi.at(row++, 2) = kind.use;
    }
  }
};

const ui::Registration<frmhelpcondensatore> registration{"frmhelpcondensatore"};

}  // namespace

}  // namespace eterlab::antennas
