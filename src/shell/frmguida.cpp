#include <QApplication>
#include <algorithm>
#include <string>
#include <vector>

#include "shell/guide.h"
#include "shell/menu_catalogue.h"
#include "ui/page_view.h"
#include "ui/printing.h"
#include "ui/text.h"
#include "ui/ui.h"
#include "ui/window_picture.h"

namespace eterlab::shell {

namespace {

constexpr std::string_view page_ending = ".md";
constexpr std::string_view window_pictures = "immagini/";

/// The picture of a window is made when it is looked at, as fine and in the colours that are
/// wanted.
QImage picture_of_page(std::string_view name, const QPalette& palette, double dots_per_pixel) {
  if (!name.starts_with(window_pictures)) {
    return QImage{":/guida/" + ui::to_qt(name)};
  }
  name.remove_prefix(window_pictures.size());
  const auto window = ui::window_with_example(name.substr(0, name.rfind('.')), palette);
  return ui::picture_of(*window, dots_per_pixel);
}

const MenuEntry* entry_of(std::string_view window) {
  const auto all = menu_catalogue();
  const auto found = std::ranges::find(all, window, &MenuEntry::window);
  return found == all.end() || window.empty() ? nullptr : &*found;
}

// The handbook: a page for each window, which F1 opens it at.
class frmguida final : public ui::Window {
  ui::Button cmdindietro{this, "cmdindietro", "INDIETRO", ui::tooltip("Alt+freccia a sinistra")};
  ui::Button cmdindice{this, "cmdindice", "INDICE"};
  ui::Label txtcerca_prompt{this, "txtcerca_prompt", "CERCA"};
  ui::TextBox txtcerca{this, "txtcerca"};
  ui::ComputeButton cmdseguente{this, "cmdseguente", "SEGUENTE"};
  ui::Button cmdtutte{this, "cmdtutte", "IN TUTTE LE PAGINE"};
  ui::Note lbltrovate{this, "lbltrovate"};
  ui::PageView txtguida{this, "txtguida", "PAGINA DELLA GUIDA", picture_of_page};
  ui::Button cmdapri{this, "cmdapri", "APRI IL CALCOLO"};
  ui::Button cmdstampa{this, "cmdstampa", "STAMPA"};
  ui::ExitButton cmdesci{this, "cmdesci"};

  /// A page, or what was searched for, and where in it the reader was.
  struct Place {
    std::string page;
    std::string searched;
    int scrolled = 0;
  };
  Place here_;
  std::vector<Place> before_;

 public:
  frmguida() : Window{"frmguida", "GUIDA"} {
    constexpr int width = 88;
    constexpr int lines = 34;
    txtcerca.hold_text();
    txtguida.set_size(width, lines);
    arrange(ui::column(ui::row(cmdindietro, cmdindice, ui::stretch(), txtcerca_prompt, txtcerca,
                               cmdseguente, cmdtutte),
                       txtguida, ui::row(lbltrovate, ui::stretch(), cmdapri, cmdstampa, cmdesci)),
            width);
    txtcerca_prompt.set_prompt_of(txtcerca);
    allow_resizing();
    cmdindietro.setEnabled(false);
    cmdapri.setEnabled(false);
    cmdindietro.on_click([this] { go_back(); });
    cmdindice.on_click([this] { turn_to(contents_page); });
    cmdseguente.on_click([this] { search(); });
    cmdtutte.on_click([this] { search_everywhere(); });
    cmdapri.on_click([this] { open_window(); });
    cmdstampa.on_click([this] { print(); });
    txtcerca.on_change([this] { mark(); });
    txtguida.on_back([this] { go_back(); });
    txtguida.on_link([this](const std::string& target) { follow(target); });
  }

  void show_example() override { turn_to("frmrisonanza"); }

  void turn_to(std::string_view window) override {
    const std::string_view page = has_page(window) ? window : contents_page;
    if (page != here_.page) {
      leave_for({std::string{page}, {}, 0});
    }
    txtguida.setFocus();
  }

  void print() override {
    ui::print_with_dialog(*this, QPageLayout::Portrait, [this](QPrinter& printer) {
      return txtguida.print_page(printer, "ETERLAB - GUIDA");
    });
  }

 private:
  void leave_for(const Place& place) {
    if (const bool is_first = here_.page.empty() && here_.searched.empty(); !is_first) {
      here_.scrolled = txtguida.scrolled();
      before_.push_back(here_);
    }
    show_place(place);
  }

  void show_place(const Place& place) {
    here_ = place;
    txtguida.show_page(place.page.empty() ? page_of_found(place.searched)
                                          : page_to_read(place.page));
    txtguida.scroll_to(place.scrolled);
    cmdindietro.setEnabled(!before_.empty());
    cmdapri.setEnabled(entry_of(place.page) != nullptr);
    mark();
  }

  void go_back() {
    if (!before_.empty()) {
      const Place place = before_.back();
      before_.pop_back();
      show_place(place);
    }
  }

  void follow(std::string_view target) {
    if (target.ends_with(page_ending)) {
      leave_for({page_in(target), {}, 0});
      txtguida.go_to_next_mark();
    }
  }

  void mark() {
    const int count = txtguida.mark(txtcerca.content());
    lbltrovate = txtcerca.content().empty() ? ""
                 : count == 1               ? "1 VOLTA IN QUESTA PAGINA"
                                            : std::to_string(count) + " VOLTE IN QUESTA PAGINA";
  }

  /// On this page, or where there is nothing on it in all of them.
  void search() {
    if (txtguida.mark(txtcerca.content()) > 0) {
      txtguida.go_to_next_mark();
    } else {
      search_everywhere();
    }
  }

  void search_everywhere() {
    if (!txtcerca.content().empty()) {
      leave_for({{}, txtcerca.content(), 0});
    }
  }

  void open_window() {
    if (const MenuEntry* entry = entry_of(here_.page); entry != nullptr) {
      const bool is_over_modal = isModal();
      open(entry->window, is_over_modal ? ui::Showing::modal : entry->showing);
    }
  }
};

const ui::Registration<frmguida> registration{"frmguida"};

}  // namespace

}  // namespace eterlab::shell
