#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "shell/product.h"
#include "ui/program_picture.h"
#include "ui/ui.h"

namespace eterlab::shell {

namespace {

constexpr std::array<std::string_view, 5> paragraphs{
    "ETERLAB è un prontuario di calcolo per radioamatori e appassionati di elettronica: bobine, "
    "antenne, linee, filtri, alimentatori. Si sceglie un calcolo dal menù, si scrivono due o tre "
    "numeri e si legge il risultato.",
    "I decimali si scrivono con il punto, qualunque sia la lingua del computer: 7.1 e non 7,1. I "
    "risultati sono scritti come si usa nel proprio paese, in Italia con la virgola.",
    "I risultati sono un punto di partenza per costruire e misurare: tolleranze, montaggio e "
    "ambiente spostano sempre qualcosa.",
    "I menù sono i capitoli del prontuario. Un calcolo si trova con il mouse, con Alt, le "
    "frecce e le prime lettere della voce, oppure con Ctrl+F e le parole che si ricordano.",
    "Un risultato si copia selezionandolo con il mouse e premendo Ctrl+C, oppure con il tasto "
    "destro, che copia anche il solo numero, scritto come lo vogliono le caselle. Le finestre con "
    "il pulsante STAMPA SCHEDA si stampano così come sono sulla stampante predefinita."};

struct Key {
  std::string_view name;
  std::string_view effect;
};
constexpr std::array<Key, 6> keys{
    {{"F10", "apre i menù della finestra principale"},
     {"F1", "apre la guida alla pagina della finestra, con la formula e la sua fonte"},
     {"Ctrl+F, F3", "cerca un calcolo"},
     {"F6", "passa al risultato seguente"},
     {"Ctrl+P", "stampa la finestra"},
     {"Ctrl+Maiusc+C", "copia tutti i dati e i risultati della finestra"}}};

// What a new user needs, on one page, and the licence behind it.
class frmabaut final : public ui::Window {
  static constexpr int about_program = static_cast<int>(paragraphs.size());
  static constexpr int number_of_keys = static_cast<int>(keys.size());

  ui::ProgramPicture picture{this, "picture"};
  ui::Label lbltitolo{this, "lbltitolo", title};
  ui::Label lblversione{this, "lblversione", edition};
  ui::LabelArray lbltesto{this, "lbltesto", about_program + 1};
  ui::LabelArray lbltasto{this, "lbltasto", number_of_keys};
  ui::LabelArray lbleffetto{this, "lbleffetto", number_of_keys};
  ui::Label lbllicenza{this, "lbllicenza"};
  ui::Button cmdlicenza{this, "cmdlicenza", "LICENZA"};
  ui::ExitButton cmdchiudi{this, "cmdchiudi", "CHIUDI"};

 public:
  frmabaut() : Window{"frmabaut", "LEGGIMI"} {
    lbltitolo.set_font("Times New Roman", 20.25, QFont::Bold);
    std::vector<ui::Item> texts;
    texts.reserve(about_program + 3);
    for (int index = 0; index < about_program; ++index) {
      texts.push_back(paragraph(index, paragraphs[static_cast<std::size_t>(index)]));
    }
    texts.push_back(list_of_keys());
    texts.push_back(paragraph(about_program, of_program()));
    texts.push_back(ui::stretch());
    lbllicenza.setWordWrap(true);
    show_licence(false);
    arrange(ui::column(ui::row(picture, ui::column(lbltitolo, lblversione), ui::stretch()),
                       ui::alternatives(ui::column(texts), ui::column(lbllicenza, ui::stretch())),
                       ui::buttons(cmdlicenza, cmdchiudi)),
            80);
    cmdlicenza.on_click([this] { show_licence(!ui::is_shown(lbllicenza)); });
  }

 private:
  ui::Item paragraph(int index, std::string_view text) {
    lbltesto[index] = text;
    lbltesto[index].setWordWrap(true);
    return lbltesto[index];
  }

  ui::Item list_of_keys() {
    ui::Fields lines;
    for (int index = 0; index < number_of_keys; ++index) {
      const Key& key = keys[static_cast<std::size_t>(index)];
      lbltasto[index] = key.name;
      lbleffetto[index] = key.effect;
      lines.push_back(field(lbltasto[index], lbleffetto[index]));
    }
    return ui::form(lines);
  }

  static std::string of_program() {
    return "Versione del programma: " + std::string{program_version} +
           ". Licenza: " + std::string{licence_name} + ". Librerie: Qt " + std::string{qt_version} +
           " (LGPL 3), Boost " + std::string{boost_version} + " (Boost Software License 1.0).";
  }

  /// In place of the texts.
  void show_licence(bool shows) {
    for (int index = 0; index <= about_program; ++index) {
      lbltesto[index].setVisible(!shows);
    }
    for (int index = 0; index < number_of_keys; ++index) {
      lbltasto[index].setVisible(!shows);
      lbleffetto[index].setVisible(!shows);
    }
    if (shows) {  // to lay it out is wasted on who does not ask for it; the texts need more room
      lbllicenza = licence;
    }
    lbllicenza.setVisible(shows);
    cmdlicenza.set_caption(shows ? "LEGGIMI" : "LICENZA");
  }
};

const ui::Registration<frmabaut> registration{"frmabaut"};

}  // namespace

}  // namespace eterlab::shell
