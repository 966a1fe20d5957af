#include "filters/pass_filter_window.h"

#include "common/number_text.h"

namespace eterlab::filters {

namespace {

constexpr ui::TwipsSize client_area{9000, 4900};
constexpr ui::TwipsPoint picture_corner{240, 840};
constexpr ui::TwipsSize full_width{8520, 0};
constexpr ui::TwipsSize caption_size{3150, 0};  // as wide as a picture, which has it in its middle

// The pictures, in steps of their grid.
constexpr int columns = 28;
constexpr int rows = 14;
constexpr double line = 5.2;
constexpr double common_line = 13;
constexpr double between_lines = (line + common_line) / 2;
constexpr double above_line = 2.6;
constexpr double left_end = 2;
constexpr double right_end = 26;

struct Part {
  ui::Schematic& (ui::Schematic::*draw)(ui::Schematic::At from, ui::Schematic::At to);
  std::string_view letter;
};
constexpr Part inductor{&ui::Schematic::inductor, "L"};
constexpr Part capacitor{&ui::Schematic::capacitor, "C"};

void draw_ends(ui::Schematic& picture) {
  picture.wire({{left_end, common_line}, {right_end, common_line}});
  for (const double x : {left_end, right_end}) {
    picture.terminal({x, line}).terminal({x, common_line});
  }
}

void draw_in_line(ui::Schematic& picture, const Part& part, double from, double to) {
  (picture.*part.draw)({from, line}, {to, line}).mark({(from + to) / 2, above_line}, part.letter);
}

void draw_across(ui::Schematic& picture, const Part& part, double x, double letter_x) {
  (picture.*part.draw)({x, line}, {x, common_line})
      .junction({x, line})
      .junction({x, common_line})
      .mark({letter_x, between_lines}, part.letter);
}

}  // namespace

PassFilterWindow::PassFilterWindow(const PassFilter& filter)
    : Window{filter.window, filter.title},
      filter_{filter},
      area{this, "area", client_area},
      lblistruzione{area, "lblistruzione", "PER I CALCOLI CLICCA SUL TIPO DI FILTRO PRESCELTO"},
      Image1{area, "Image1", columns, rows, ui::tooltip("clicca su di me")},
      lblpigreco{area, "lblpigreco", filter.pi_caption, ui::tooltip("clicca sul circuito")},
      Image2{area, "Image2", columns, rows, ui::tooltip("clicca su di me")},
      lblT{area, "lblT", filter.tee_caption, ui::tooltip("clicca sul circuito")},
      lblfrequenza{area, "lblfrequenza", filter.frequency_prompt},
      txtfrequenza{area, "txtfrequenza"},
      lblimpedenza{area, "lblimpedenza", filter.impedance_prompt},
      txtimpedenza{area, "txtimpedenza"},
      lblinduttanza{area, "lblinduttanza"},
      lblcapacita{area, "lblcapacità"},
      lblnota{area, "lblnota", filter.note},
      cmdcalcola{area, "cmdcalcola"},
      cmdbobine{area, "cmdbobine", "DATI COSTRUZIONE BOBINE"},
      cmdesci{area, "cmdesci"} {
  draw_pi();
  draw_tee();
  lblpigreco.set_prompt_of(Image1);
  lblT.set_prompt_of(Image2);
  lblpigreco.set_role(ui::Label::Role::drawing);
  lblT.set_role(ui::Label::Role::drawing);

  area.place(lblistruzione, {240, 240});
  area.place(Image1, picture_corner);
  area.place(lblpigreco, {240, 2520}, caption_size);
  area.place(Image2, {4800, 840});
  area.place(lblT, {4800, 2520}, caption_size);
  area.place(ui::form(field(lblfrequenza, txtfrequenza), field(lblimpedenza, txtimpedenza)),
             {3700, 1000});
  area.place(lblnota, {240, 3450}, full_width);
  area.place(ui::buttons(cmdcalcola, cmdbobine, cmdesci), {240, 4350}, full_width);
  arrange(area);

  Image1.on_click([this] { Image1_click(); });
  Image2.on_click([this] { Image2_click(); });
  cmdcalcola.on_click([this] { cmdcalcola_click(); });
  cmdbobine.on_click([this] { open_companion("frmbobine", {180, 180}, {4100, 2800}); });
}

void PassFilterWindow::draw_pi() {
  const Part& series = filter_.has_series_inductors ? inductor : capacitor;
  const Part& shunt = filter_.has_series_inductors ? capacitor : inductor;
  constexpr double left = 7;
  constexpr double right = 21;
  constexpr double to_letter = 2.6;
  draw_ends(Image1);
  Image1.wire({{left_end, line}, {left, line}}).wire({{right, line}, {right_end, line}});
  draw_in_line(Image1, series, left, right);
  draw_across(Image1, shunt, left, left - to_letter);
  draw_across(Image1, shunt, right, right + to_letter);
}

void PassFilterWindow::draw_tee() {
  const Part& series = filter_.has_series_inductors ? inductor : capacitor;
  const Part& shunt = filter_.has_series_inductors ? capacitor : inductor;
  constexpr double middle = (left_end + right_end) / 2;
  constexpr double to_letter = 2.6;
  draw_ends(Image2);
  draw_in_line(Image2, series, left_end, middle);
  draw_in_line(Image2, series, middle, right_end);
  draw_across(Image2, shunt, middle, middle + to_letter);
}

void PassFilterWindow::load() {
  lblistruzione.show();
  for (QWidget* control : std::initializer_list<QWidget*>{
           &lblfrequenza, &lblimpedenza, &txtfrequenza, &txtimpedenza, &lblinduttanza, &lblcapacita,
           &cmdcalcola, &cmdbobine, &lblnota}) {
    control->hide();
  }
}

void PassFilterWindow::show_example() {
  Image1_click();
  txtfrequenza = "7";
  txtimpedenza = "50";
  cmdcalcola.click();
}

void PassFilterWindow::Image1_click() {
  Image1.show();
  Image2.hide();
  lblpigreco.show();
  lblT.hide();
  begin_work();
}

void PassFilterWindow::Image2_click() {
  Image1.hide();
  area.place(Image2, picture_corner);
  Image2.show();
  lblpigreco.hide();
  area.place(lblT, {1200, 720});
  lblT.show();
  begin_work();
}

void PassFilterWindow::begin_work() {
  lblistruzione.hide();
  lblfrequenza.show();
  lblimpedenza.show();
  txtfrequenza.show();
  txtimpedenza.show();
  cmdcalcola.show();
  cmdbobine.show();
  txtfrequenza.setFocus();
}

void PassFilterWindow::cmdcalcola_click() {
  const Real cutoff_mhz = txtfrequenza.number();
  const Real impedance_ohm = txtimpedenza.number();
  const Real product = cutoff_mhz * impedance_ohm;
  if (product == 0) {
    refuse(txtfrequenza);
    return;
  }
  if (product < 0) {
    return;
  }
  area.place(lblinduttanza, {3700, 2300});
  area.place(lblcapacita, {3700, 2900});
  lblinduttanza.show();
  lblcapacita.show();
  // Which picture is left tells the form.
  const FilterForm form = ui::is_shown(Image1) ? FilterForm::pi : FilterForm::tee;
  const FilterElements elements = filter_.compute(form, cutoff_mhz, impedance_ohm);
  lblinduttanza =
      "INDUTTANZA in microHENRY di L : " + filter_.inductance_text(elements.inductance_uh);
  lblcapacita = "CAPACITA' in picoFARAD di C : " + plain(elements.capacitance_pf);
  lblnota.show();
}

}  // namespace eterlab::filters
