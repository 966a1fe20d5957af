#include <QApplication>
#include <QKeyEvent>
#include <string>
#include <vector>

#include "shell/finder.h"
#include "shell/menu_catalogue.h"
#include "ui/row_list.h"
#include "ui/ui.h"

namespace eterlab::shell {

namespace {

// Finds an entry of the menu by words that are typed.
class frmcerca final : public ui::Window {
  ui::Label txtcerca_prompt{this, "txtcerca_prompt", "PAROLE DA CERCARE"};
  ui::TextBox txtcerca{this, "txtcerca"};
  ui::Label lstcerca_prompt{this, "lstcerca_prompt", "VOCI DEL MENU'"};
  ui::RowList lstcerca{this, "lstcerca", lstcerca_prompt, 14, 64};
  ui::Note lbltitolo{this, "lbltitolo"};
  ui::ComputeButton cmdapri{this, "cmdapri", "APRI"};
  ui::ExitButton cmdesci{this, "cmdesci"};
  std::vector<const FoundEntry*> found_;

 public:
  frmcerca() : Window{"frmcerca", "CERCA"} {
    constexpr int lines_of_title = 2;
    lbltitolo.setMinimumHeight(lines_of_title * lbltitolo.fontMetrics().height());
    txtcerca.hold_text();
    txtcerca.setMaximumWidth(lstcerca.sizeHint().width());
    arrange(ui::column(ui::form(field(txtcerca_prompt, txtcerca)), lstcerca_prompt, lstcerca,
                       lbltitolo, ui::buttons(cmdapri, cmdesci)));
    txtcerca.on_change([this] { look(); });
    lstcerca.on_current_change([this] { tell_title(); });
    lstcerca.on_double_click([this] { open_current(); });
    cmdapri.on_click([this] { open_current(); });
    look();
  }

  void show_example() override { txtcerca = "bobina 2 m"; }

  void bring_forward() override {
    Window::bring_forward();
    txtcerca.setFocus();
    txtcerca.selectAll();
  }

 protected:
  /// Keys that a box has no use for go through the list.
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Down:
        return lstcerca.step(1);
      case Qt::Key_Up:
        return lstcerca.step(-1);
      case Qt::Key_PageDown:
        return lstcerca.step(lstcerca.rows_in_sight() - 1);
      case Qt::Key_PageUp:
        return lstcerca.step(1 - lstcerca.rows_in_sight());
      default:
        Window::keyPressEvent(event);
    }
  }

 private:
  void look() {
    found_ = find_entries(txtcerca.content());
    std::vector<std::string> rows;
    for (const FoundEntry* found : found_) {
      rows.push_back(found->told);
    }
    lstcerca.show_rows(rows);
    tell_title();
  }

  [[nodiscard]] const FoundEntry* current() const {
    const int row = lstcerca.current();
    return row < 0 ? nullptr : found_[static_cast<std::size_t>(row)];
  }

  void tell_title() {
    const FoundEntry* found = current();
    lbltitolo = found == nullptr ? "NESSUNA VOCE CON QUESTE PAROLE" : found->title;
  }

  void open_current() {
    if (const FoundEntry* found = current(); found != nullptr) {
      close();
      const MenuEntry& entry = *found->entry;
      const bool is_over_modal = QApplication::activeModalWidget() != nullptr;
      open(entry.window, is_over_modal ? ui::Showing::modal : entry.showing);
    }
  }
};

const ui::Registration<frmcerca> registration{"frmcerca"};

}  // namespace

}  // namespace eterlab::shell
