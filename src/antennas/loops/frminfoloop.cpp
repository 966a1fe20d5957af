#include <array>

#include "antennas/loops/magnetic_loop.h"
#include "antennas/wavelength.h"
#include "common/number_text.h"
#include "materials/metals.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

struct Example {
  double conductor_m;
  double frequency_mhz;
};
constexpr std::array<Example, 9> examples{{{6.283, 3.6},
                                           {6.283, 7.1},
                                           {6.283, 10.12},
                                           {3.142, 7.1},
                                           {3.142, 10.12},
                                           {3.142, 14.2},
                                           {3.142, 18.12},
                                           {3.142, 21.2},
                                           {2.0, 28.5}}};

// What a newcomer should know before he cuts tube for a magnetic loop.
class frminfoloop final : public ui::Window {
  using enum ui::ResultTable::Kind;

  ui::Note Label1{
      this, "Label1",
      "Il loop magnetico è una sola spira, lunga meno di un quarto d'onda, chiusa su un "
      "condensatore variabile che la porta in risonanza. Irradia nel piano della spira; "
      "i due minimi stanno sull'asse e servono a spegnere un disturbo."};
  ui::Note Label2{this, "Label2",
                  "Rendimento: la resistenza di radiazione cresce con la quarta potenza della "
                  "frequenza e vale centesimi o decimi di ohm. Ogni giunzione conta: tubo grosso, "
                  "saldature, nessun contatto strisciante, condensatore collegato direttamente."};
  ui::Note Label3{this, "Label3",
                  "Accordo: la banda è di pochi kHz, perciò il condensatore si comanda con una "
                  "demoltiplica o un motore e si ritocca ad ogni spostamento."};
  ui::Note Label4{
      this, "Label4",
      "Alimentazione: spira di accoppiamento lunga un quinto del loop, dal lato opposto "
      "al condensatore, da deformare fino al minimo ROS; oppure gamma match."};
  ui::Note Label5{this, "Label5",
                  "Installazione: in verticale, con il bordo inferiore ad almeno un diametro dal "
                  "suolo e lontano da masse metalliche. In orizzontale rende solo se è alto almeno "
                  "mezza lunghezza d'onda."};
  // The distances: the field of these loops, by a Biot-Savart integral of their current, against
  // the Italian limits of DPCM 8 July 2003, 20 V/m and 0.05 A/m, 6 V/m and 0.016 A/m for long
  // stays.
  ui::Note Label6{this, "Label6",
                  "Sicurezza: ai capi del condensatore ci sono migliaia di volt anche con poca "
                  "potenza. Con 100 Watt continui stare ad almeno 8 metri dal loop durante la "
                  "trasmissione, 16 dove si soggiorna a lungo."};
  ui::Heading Heading1{this, "Heading1", "LOOP CIRCOLARI DI TUBO DI RAME DA 22 mm, 100 WATT"};
  ui::ResultTable tblesempi{this,
                            "tblesempi",
                            static_cast<int>(examples.size()),
                            {{"lbldiametro", "DIAMETRO mt.", number},
                             {"lblfrequenza", "MHz", number},
                             {"lblperimetro", "PERIMETRO / LAMBDA", number},
                             {"lblcondensatore", "CONDENSATORE pF", number},
                             {"lblrendimento", "RENDIMENTO %", number},
                             {"lbldb", "dB", number},
                             {"lblbanda", "BANDA kHz", number},
                             {"lbltensione", "TENSIONE kV", number}}};
  ui::ExitButton cmdchiudi{this, "cmdchiudi", "CHIUDI"};

 public:
  frminfoloop() : Window{"frminfoloop", "INFORMAZIONI SUL LOOP MAGNETICO"} {
    fill_table();
    arrange(ui::column(Label1, Label2, Label3, Label4, Label5, Label6, Heading1, tblesempi,
                       ui::buttons(cmdchiudi)));
  }

 private:
  void fill_table() {
    constexpr double tube_mm = 22;
    constexpr double power_w = 100;
    int row = 0;
    for (const auto& [conductor_m, frequency_mhz] : examples) {
      const MagneticLoop loop{LoopShape::circle, conductor_m, tube_mm,
                              materials::copper.resistivity_ohm_m()};
      const TunedLoop tuned = tuned_loop(loop, frequency_mhz * 1e6);
      int column = 0;
      tblesempi.at(row, column++) = fixed(loop_width_m(loop), 2);
      tblesempi.at(row, column++) = plain(frequency_mhz);
      tblesempi.at(row, column++) = fixed(conductor_m / wavelength_m(frequency_mhz), 2);
      tblesempi.at(row, column++) = fixed(1e12 * tuned.capacitance_f, 0);
      tblesempi.at(row, column++) = fixed(100 * tuned.efficiency, 0);
      tblesempi.at(row, column++) = fixed(10 * log10(tuned.efficiency), 1);
      tblesempi.at(row, column++) = fixed(tuned.bandwidth_hz / 1000, 0);
      tblesempi.at(row, column) = fixed(loop_load(tuned, power_w).capacitor_peak_v / 1000, 1);
      ++row;
    }
  }
};

const ui::Registration<frminfoloop> registration{"frminfoloop"};

}  // namespace

}  // namespace eterlab::antennas
